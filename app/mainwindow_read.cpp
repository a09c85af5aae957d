// The read procedure: everything on the logger comes into the window, in a fixed order.

#include "app/mainwindow.h"

#include "app/stepprogress.h"
#include "device/brumaloggerinterface.h"
#include "dialogs/advancedoptionsdialog.h"
#include "time/timemanager.h"
#include "ui_mainwindow.h"

#include <QScopedValueRollback>

namespace {

constexpr int clockValue = 3;
constexpr int firstSetupValue = 4;
constexpr int firstTextValue = 8;
/// The bar still passes through the values of what older firmware doesn't have.
constexpr int spareValues = 3;
constexpr int earliestTimestamp = 1483228800; // the first second of 2017; before it no logger was made

// "01.02.03" shows as "1.2.3".
QString normalisedVersion(const QString& version)
{
    QStringList parts = version.split(QLatin1Char('.'));
    for (QString& part : parts)
        part = QString::number(part.toInt());
    return parts.join(QLatin1Char('.'));
}

} // namespace

bool MainWindow::plReadFromDevice()
{
    if (procedureRuns)
        return true;
    const QScopedValueRollback<bool> guard(procedureRuns, true);
    return plRead();
}

bool MainWindow::plRead()
{
    deviceLocked = false;
    plDisableControls(true);
    if (closed) // at a notice about the range, which the focus has just left
        return false;
    if (modified && plAsk(tr("Read from device"), tr("Reading from the device now will erase your changes.\n"
                                                     "Do you wish to proceed?")) == QMessageBox::No) {
        plDisableControls(false);
        return true;
    }
    device->lWait(device->lWaitTime());
    const bool identified = device->lGetIdentification(nullptr, nullptr, nullptr);
    if (identified && device->lIsExtendedFirmware() && !plOpenLock())
        return false;
    if (deviceLocked)
        return true;
    if (closed)
        return false;
    ui->statusBar->showMessage(tr("Reading from device on %1").arg(device->lPortName()));
    ui->labelDateTime->setStyleSheet(QString());

    StepProgress progress(tr("Reading from device"), windowTitleBase, this);
    plClearBeforeRead();
    StepResult result = identified ? plReadSteps(progress) : StepResult::Failed;
    const bool stepsDone = result == StepResult::Done;
    if (stepsDone && device->lIsExtendedFirmware() && !plReadCondition())
        result = StepResult::Failed;
    return plFinishRead(progress, result, stepsDone);
}

void MainWindow::plClearBeforeRead()
{
    for (const TextSlot& slot : textSlots)
        (ui->*slot.edit)->clear();
    plShowLastReset(false);
}

StepResult MainWindow::plReadSteps(StepProgress& progress)
{
    for (const auto part :
         {&MainWindow::plReadIdentity, &MainWindow::plReadClock, &MainWindow::plReadSetup}) {
        const StepResult result = (this->*part)(progress);
        if (result != StepResult::Done)
            return result;
    }
    const int nextValue = firstTextValue + plReadTexts(progress);
    QString shipmentType;
    const StepResult result = progress.judge(device->lGetText(shipmentTypeSlot, &shipmentType));
    if (result != StepResult::Done)
        return result;
    plSetShipmentType(shipmentType);

    if (device->lIsExtendedFirmware())
        return plReadOptions(progress, nextValue);
    progress.passThrough(nextValue, spareValues);
    return StepResult::Done;
}

StepResult MainWindow::plReadIdentity(StepProgress& progress)
{
    QString serial;
    QString name;
    QString firmware;
    QString hardware;
    bool multiuse = false;

    const std::vector<Step> steps{
        {[&] { return device->lGetSerial(&serial); }, [&] { ui->labelSerial->setText(serial); }},
        {[&] { return device->lGetIdentification(&name, &firmware, &hardware); },
         [&] { plShowIdentification(name, firmware, hardware); }},
        {[&] { return device->lGetMultiuse(&multiuse); }, [&] { plShowType(multiuse); }},
    };
    return progress.walk(steps, 0);
}

StepResult MainWindow::plReadClock(StepProgress& progress)
{
    QDateTime now;
    const StepResult result = progress.judge(device->lGetDateTime(&now));
    if (result != StepResult::Done)
        return result;
    if (device->lIsExtendedFirmware() && device->lTimestamp() < earliestTimestamp)
        plRepairClock(&now);
    progress.setValue(clockValue);
    timeKeeper.setTime(now);
    timeKeeper.setRunning(true);
    plUpdateDateTime();
    return StepResult::Done;
}

StepResult MainWindow::plReadSetup(StepProgress& progress)
{
    float tempMin = 0;
    float tempMax = 0;
    int samplingTime = 0;
    int startDelay = 0;
    bool locked = false;

    const std::vector<Step> steps{
        {[&] { return device->lGetTempRange(&tempMin, &tempMax); },
         [&] { plSetTempRange(tempMin, tempMax); }},
        {[&] { return device->lGetSamplingTime(&samplingTime); }, [&] { plSetSamplingTime(samplingTime); }},
        {[&] { return device->lGetStartDelay(&startDelay); }, [&] { plSetStartDelay(startDelay); }},
        {[&] { return device->lGetButtonLock(&locked); },
         [&] {
             ui->checkLock->setChecked(locked);
             advancedOptionsDialog->lSetButtonLock(locked);
         }},
    };
    return progress.walk(steps, firstSetupValue);
}

void MainWindow::plShowIdentification(const QString& name, const QString& firmware, const QString& hardware)
{
    ui->labelDeviceName->setText(name);
    ui->labelHardwareRevision->setText(hardware);
    ui->labelFirmwareVersion->setText(normalisedVersion(firmware));
}

void MainWindow::plShowType(bool multiuse)
{
    ui->labelType->setText(multiuse ? QStringLiteral("Multiuse") : QStringLiteral("Single-use"));
    advancedOptionsDialog->lSetMultiuse(multiuse);
}

// A text that can't be read, or a cancel, ends the texts and fails nothing; the next step looks at the cancel
// again.
int MainWindow::plReadTexts(StepProgress& progress)
{
    int textsRead = 0;
    for (const TextSlot& slot : textSlots) {
        QLineEdit* edit = ui->*slot.edit;
        QString text;
        if (progress.judge(device->lGetText(slot.number, &text)) != StepResult::Done) {
            edit->clear();
            break;
        }
        progress.setValue(firstTextValue + textsRead++);
        edit->setText(text.trimmed());
    }
    return textsRead;
}

bool MainWindow::plFinishRead(StepProgress& progress, StepResult result, bool stepsDone)
{
    progress.finish();
    if (result == StepResult::Failed)
        plWarn(tr("Warning"),
               tr("<p>Read procedure failed.<br>Please retry the Read operation.<br>If the issue "
                  "persists, select <b>Disable fast Read/Write</b> under the <b>Settings</b> "
                  "menu.</p>"));
    plDisableControls(false);
    plChangesOcurred(false);
    ui->statusBar->showMessage(result == StepResult::Failed ? tr("Read failed. Please retry.")
                                                            : tr("Read successful"));
    const bool extended = device->lIsExtendedFirmware();
    ui->buttonAdvanced->setVisible(extended);
    ui->checkLock->setVisible(!extended);
    if (!device->lIsDeviceValid(timeManager->currentTimeUtc())) {
        plOnInvalidDevice();
        return false;
    }
    plUpdateTimeZoneLabel();
    if (!stepsDone)
        plLeaveDevice();
    return result != StepResult::Failed;
}
