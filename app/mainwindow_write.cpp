// The write procedure: the window's contents go to the logger, in a fixed order. The logger has no
// transaction; a write that stops half-way leaves a mixed configuration, and the messages say so.

#include "app/mainwindow.h"

#include "app/stepprogress.h"
#include "device/brumaloggerinterface.h"
#include "dialogs/advancedoptionsdialog.h"
#include "ui_mainwindow.h"

#include <QScopedValueRollback>

namespace {

constexpr int synchronisedValue = 1;
constexpr int firstParameterValue = 2;
constexpr int firstTextValue = 5;
/// The bar still passes through the values of what older firmware doesn't have.
constexpr int spareValues = 5;
constexpr int unpadded = -1;

} // namespace

bool MainWindow::plWriteToDevice()
{
    if (procedureRuns)
        return true;
    const QScopedValueRollback<bool> guard(procedureRuns, true);
    if (device->lIsExtendedFirmware() && !advancedOptionsDialog->lValidateDates()) {
        plWarn(tr("Check your START/STOP dates"),
               tr("<p>Your current settings for the automatic START and/or STOP dates are invalid (probably "
                  "outdated). Please check the <b>Advanced Options</b> panel before continuing with the "
                  "<b>Write</b> operation.</p>"));
        return true;
    }
    plDisableControls(true);
    if (closed) // at a notice about the range, which the focus has just left
        return false;
    ui->statusBar->showMessage(tr("Writing to device..."));
    StepProgress progress(tr("Writing to device"), windowTitleBase, this);
    const bool succeeded = plWriteSteps(progress) != StepResult::Failed; // a cancel is no failure
    plFinishWrite(progress, succeeded);
    return succeeded;
}

StepResult MainWindow::plWriteSteps(StepProgress& progress)
{
    const StepResult result = plWriteParameters(progress);
    if (result != StepResult::Done)
        return result;
    return plWriteClosing(progress, firstTextValue + plWriteTexts(progress));
}

StepResult MainWindow::plWriteParameters(StepProgress& progress)
{
    const auto tempMin = static_cast<float>(ui->spindTempMin->value());
    const auto tempMax = static_cast<float>(ui->spindTempMax->value());
    const std::vector<Step> range{
        {[&] { return device->lSetTempRange(tempMin, tempMax); }},
    };
    const std::vector<Step> measurement{
        {[&] { return device->lSetSamplingTime(ui->spinSampling->value() * secondsPerMinute); }},
        {[&] { return device->lSetStartDelay(ui->spinDelay->value() * secondsPerMinute); }},
        {[&] { return device->lSetButtonLock(ui->checkLock->isChecked()); }},
    };
    StepResult result = progress.walk(range, 0);
    if (result == StepResult::Done)
        result = plSynchroniseTime(progress);
    if (result != StepResult::Done)
        return result;
    progress.setValue(synchronisedValue);
    return progress.walk(measurement, firstParameterValue);
}

// A text that can't be written, or a cancel, ends the texts and fails nothing; the next step looks at the
// cancel again.
int MainWindow::plWriteTexts(StepProgress& progress)
{
    int textsWritten = 0;
    for (const TextSlot& slot : textSlots) {
        const QString text = (ui->*slot.edit)->text();
        if (progress.judge(device->lSetText(slot.number, text, slot.limit)) != StepResult::Done)
            break;
        progress.setValue(firstTextValue + textsWritten++);
    }
    return textsWritten;
}

StepResult MainWindow::plWriteClosing(StepProgress& progress, int firstValue)
{
    const QString shipmentType = shipmentTypes.value(ui->comboType->currentIndex());
    const std::vector<Step> steps{
        {[&] { return device->lSetText(shipmentTypeSlot, shipmentType, unpadded); }},
        {[&] { return device->lSendCommandK(); }},
    };
    const StepResult result = progress.walk(steps, firstValue);
    if (result != StepResult::Done)
        return result;
    const int nextValue = firstValue + static_cast<int>(steps.size());
    if (device->lIsExtendedFirmware())
        return plWriteOptions(progress, nextValue);
    progress.passThrough(nextValue, spareValues);
    return StepResult::Done;
}

void MainWindow::plFinishWrite(StepProgress& progress, bool succeeded)
{
    if (progress.wasCanceled())
        plWarn(tr("Warning"),
               tr("Write procedure canceled by user.\nParameters on device may be in an undefined "
                  "state.\nExecuting the procedure again is recommended."));
    progress.finish();
    if (!succeeded)
        plWarn(tr("Warning"),
               tr("<p>Write procedure failed.<br>Parameters on device may be in an undefined "
                  "state.\nExecuting the procedure again is recommended.\nIf the issue persists, "
                  "select <b>Disable fast Read/Write</b> under the <b>Settings</b> menu.</p>"));
    plDisableControls(false);
    plChangesOcurred(!succeeded);
    ui->statusBar->showMessage(succeeded ? tr("Write successful") : tr("Write failed. Please retry"));
}
