// The read procedure: everything on the logger comes into the window, in a fixed order.

#include "app/mainwindow.h"

#include "app/stepprogress.h"
#include "device/brumaloggerinterface.h"
#include "ui_mainwindow.h"

#include <QScopedValueRollback>

namespace {

constexpr int firstTextValue = 8;
/// The bar still passes through the values of what older firmware doesn't have.
constexpr int spareValues = 3;

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
    plDisableControls(true);
    if (modified && plAsk(tr("Read from device"), tr("Reading from the device now will erase your changes.\n"
                                                     "Do you wish to proceed?")) == QMessageBox::No) {
        plDisableControls(false);
        return true;
    }
    device->lWait(device->lWaitTime());
    const bool identified = device->lGetIdentification(nullptr, nullptr, nullptr);
    if (closed)
        return false;
    ui->statusBar->showMessage(tr("Reading from device on %1").arg(device->lPortName()));
    ui->labelDateTime->setStyleSheet(QString());

    StepProgress progress(tr("Reading from device"), windowTitleBase, this);
    plClearBeforeRead();
    const StepResult result = identified ? plReadSteps(progress) : StepResult::Failed;
    plFinishRead(progress, result);
    return result != StepResult::Failed;
}

void MainWindow::plClearBeforeRead()
{
    for (const TextSlot& slot : textSlots)
        (ui->*slot.edit)->clear();
    plShowLastReset(false);
}

StepResult MainWindow::plReadSteps(StepProgress& progress)
{
    StepResult result = plReadParameters(progress);
    if (result != StepResult::Done)
        return result;

    const int textsRead = plReadTexts(progress);
    QString shipmentType;
    result = progress.judge(device->lGetText(shipmentTypeSlot, &shipmentType));
    if (result != StepResult::Done)
        return result;
    plSetShipmentType(shipmentType);

    if (!device->lIsExtendedFirmware())
        progress.passThrough(firstTextValue + textsRead, spareValues);
    return StepResult::Done;
}

StepResult MainWindow::plReadParameters(StepProgress& progress)
{
    QString serial;
    QString name;
    QString firmware;
    QString hardware;
    bool multiuse = false;
    QDateTime now;
    float tempMin = 0;
    float tempMax = 0;
    int samplingTime = 0;
    int startDelay = 0;
    bool locked = false;

    const std::vector<Step> steps{
        {[&] { return device->lGetSerial(&serial); }, [&] { ui->labelSerial->setText(serial); }},
        {[&] { return device->lGetIdentification(&name, &firmware, &hardware); },
         [&] { plShowIdentification(name, firmware, hardware); }},
        {[&] { return device->lGetMultiuse(&multiuse); }, [&] { plShowType(multiuse); }},
        {[&] { return device->lGetDateTime(&now); }, [&] { plShowClock(now); }},
        {[&] { return device->lGetTempRange(&tempMin, &tempMax); },
         [&] { plSetTempRange(tempMin, tempMax); }},
        {[&] { return device->lGetSamplingTime(&samplingTime); }, [&] { plSetSamplingTime(samplingTime); }},
        {[&] { return device->lGetStartDelay(&startDelay); }, [&] { plSetStartDelay(startDelay); }},
        {[&] { return device->lGetButtonLock(&locked); }, [&] { ui->checkLock->setChecked(locked); }},
    };
    return progress.walk(steps, 0);
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
}

void MainWindow::plShowClock(const QDateTime& now)
{
    timeKeeper.setTime(now);
    timeKeeper.setRunning(true);
    plUpdateDateTime();
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

void MainWindow::plFinishRead(StepProgress& progress, StepResult result)
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
    if (result != StepResult::Done)
        plLeaveDevice();
}
