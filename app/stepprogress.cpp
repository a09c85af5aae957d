// The one loop that walks the steps of the device procedures under a progress dialog.

#include "app/stepprogress.h"

#include "dialogs/titleroom.h"

#include <QCoreApplication>

namespace {

constexpr int lastValue = 17;

} // namespace

StepProgress::StepProgress(const QString& label, const QString& title, QWidget* parent)
    : dialog(label, QCoreApplication::translate("MainWindow", "Cancel"), 0, lastValue, parent)
{
    dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    dialog.setWindowTitle(title);
    makeRoomForTitle(&dialog);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.show();
}

StepResult StepProgress::judge(bool succeeded) const
{
    if (!succeeded)
        return StepResult::Failed;
    return dialog.wasCanceled() ? StepResult::Cancelled : StepResult::Done;
}

StepResult StepProgress::walk(const std::vector<Step>& steps, int firstValue)
{
    int value = firstValue;
    for (const Step& step : steps) {
        const StepResult result = judge(step.run());
        if (result != StepResult::Done)
            return result;
        dialog.setValue(value++);
        if (step.apply)
            step.apply();
    }
    return StepResult::Done;
}

void StepProgress::passThrough(int firstValue, int count)
{
    for (int value = firstValue; value < firstValue + count; ++value)
        setValue(value);
}

void StepProgress::finish()
{
    dialog.setValue(lastValue);
    dialog.close();
}
