#pragma once

#include "presetrig.h"

#include <functional>

class QFileDialog;

/// What basicLogger() makes of a preset, with another text.
PresetTable milkPreset();

/// A window with presets, whose query is under way.
struct WaitingPresetRig : Waiting<PresetRig>
{
    explicit WaitingPresetRig(qint64 ahead = 0)
        : Waiting(timeAndPresets(), ahead)
    {
    }
};

/// The same with a clock so far ahead that the connected logger turns out to be invalid.
struct DoubtfulPresetRig : WaitingPresetRig
{
    DoubtfulPresetRig();

    void tellThatItIsInvalid() { tellTimeUntil(TimeWords::leftPort); }
};

/// Does @p action at each file dialog, before that is answered.
void atFileDialog(PresetRig& rig, const std::function<void(QFileDialog*)>& action);
/// Does @p action at the first box, before that is answered.
void atFirstBox(PresetRig& rig, const std::function<void()>& action);

namespace PresetWords {

const QString saveTitle = QStringLiteral("Save to preset");
const QString unreadable = QStringLiteral("Unable to read from selected file. File is corrupted.");
const QString unsaved = QStringLiteral("Unable to save preset file!");
const QString unreachable =
    QStringLiteral("Loaded preset sets a Time Zone (GMT) but Time Server(s) cannot be reached for "
                   "synchronization.\nTime Zone will be ignored.");

/// The toolkit's own question about a file "own.bpr".
void expectReplace(DialogRobot& robot, QMessageBox::StandardButton answer);

} // namespace PresetWords
