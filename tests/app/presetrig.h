#pragma once

#include "support/environmentvariable.h"
#include "support/filedialoghand.h"
#include "timerig.h"

#include <QDateTime>
#include <QMap>
#include <QString>

class AdvancedOptionsDialog;

using PresetTable = QMap<QString, QString>;
Q_DECLARE_METATYPE(PresetTable)

/// The whole table of a version 2.0 file; the test program ends if it can't be read.
PresetTable presetIn(const QString& path);
/// A file of the version that is written now.
void writePreset(const QString& path, const PresetTable& table);
/// A file of the version that is only read.
void writePlainPreset(const QString& path, const PresetTable& table);
/// A version 2.0 file whose digest doesn't fit.
void writeDamagedPreset(const QString& path);
/// What basicLogger() makes of a preset.
PresetTable presetOfBasicLogger();
/// @p table with other values for some keys.
PresetTable presetWith(PresetTable table, const PresetTable& changes);
PresetTable presetWithout(PresetTable table, const QStringList& keys);
/// presetOfBasicLogger() in another zone.
PresetTable presetOfZone(const QString& zone);

/// A test's data with the column "typed": what is no name, empty where the file dialog is cancelled.
void addNamelessRows();

/// The figures of a date as the dialog keeps them.
QDateTime figures(int day, int month, int year, int hour, int minute, int second);
/// "on" and the date in a preset's form, or "off".
QString startDate(const WindowRig& rig);
QString stopDate(const WindowRig& rig);

/// Time configuration off, and "default.bpr" in the current folder as the default preset.
Settings presetSettings();
/// The same with time configuration on.
Settings timeAndPresets();
const QString defaultPreset = QStringLiteral("default.bpr");

/// A window beside a folder of documents, and a hand for its file dialogs.
class PresetRig : public TimeRig
{
public:
    explicit PresetRig(const Settings& settings = presetSettings());

    /// Saves by the menu, typing @p name.
    void save(const QString& name);
    /// Loads by the menu, typing @p name.
    void load(const QString& name);
    /// Makes @p table the default preset, and presses its button.
    void apply(const PresetTable& table);
    /// Triggers an action of the menu and returns when all that it set off is over.
    void trigger(const char* actionName) const;
    AdvancedOptionsDialog* options() const;
    QString document(const QString& name) const { return documents + QLatin1Char('/') + name; }

    FileDialogHand hand;
    EnvironmentVariable home; ///< the folder of documents is found below it
    QString documents;
};
