// Presets in a window that waits for the time, and looks at what opens meanwhile.

#include "waitingpresetrig.h"

#include <QTest>

namespace {

constexpr qint64 threeDays = Q_INT64_C(3) * 24 * 60 * 60 * 1000;

} // namespace

PresetTable milkPreset()
{
    return presetWith(presetOfBasicLogger(), {{QStringLiteral("info"), QStringLiteral("Milk")}});
}

DoubtfulPresetRig::DoubtfulPresetRig()
    : WaitingPresetRig(threeDays)
{
    rig.plugAndConnect();
}

void atFileDialog(PresetRig& rig, const std::function<void(QFileDialog*)>& action)
{
    QObject::connect(&rig.hand, &FileDialogHand::sOpened, &rig.window, action);
}

void atFirstBox(PresetRig& rig, const std::function<void()>& action)
{
    QObject::connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window, [&rig, action] {
        if (rig.robot.boxes().size() == 1)
            action();
    });
}

void PresetWords::expectReplace(DialogRobot& robot, QMessageBox::StandardButton answer)
{
    robot.expectWarningQuestion(
        saveTitle, QStringLiteral("own.bpr already exists.\nDo you want to replace it?"), answer);
}
