// What firmware 1.2.0 and later adds to the procedures: the password lock, the zone, policies and automatic
// dates.

#include "app/mainwindow.h"

#include "app/stepprogress.h"
#include "device/brumaloggerinterface.h"
#include "dialogs/advancedoptionsdialog.h"
#include "dialogs/passworddialog.h"
#include "dialogs/settingsdialog.h"
#include "time/timemanager.h"
#include "ui_mainwindow.h"

#include <QDebug>
#include <QScopedValueRollback>

namespace {

constexpr int stateFinished = 16;

} // namespace

// The dialog comes before the progress dialog, which therefore can't cancel it.
bool MainWindow::plOpenLock()
{
    if (!device->lGetLocked(&deviceLocked))
        return false;
    if (!deviceLocked || closed)
        return true;
    passwordDialog->exec();
    // A finished device now offers its reports, and there is nothing to configure.
    deviceLocked = !passwordDialog->lUnlocked() || passwordDialog->lState() == stateFinished;
    return true;
}

// The reference time is not asked: it may not be there yet, and anything is better than what the device has.
void MainWindow::plRepairClock(QDateTime* now)
{
    qDebug() << "Detected inconsistent time/date. Fixing.";
    const QDateTime computerTime = QDateTime::currentDateTimeUtc();
    *now = QDateTime(computerTime.date(), computerTime.time(), Qt::UTC);
    device->lSetDateTime(*now);
    device->lSetTimeZoneOffset(0);
}

StepResult MainWindow::plReadOptions(StepProgress& progress, int firstValue)
{
    int policies = 0;
    bool startEnabled = false;
    QDateTime startDate;
    bool stopEnabled = false;
    QDateTime stopDate;

    const std::vector<Step> steps{
        {[&] { return device->lGetPolicies(&policies); },
         [&] { advancedOptionsDialog->lSetPolicies(policies); }},
        {[&] { return device->lGetTimeZoneOffset(nullptr); },
         [&] {
             advancedOptionsDialog->lSetTimeZoneOffset(device->lTimeZoneOffset());
             timeZoneFromDevice = true;
         }},
        {[&] { return device->lGetStartDate(&startEnabled, &startDate); },
         [&] { advancedOptionsDialog->lSetStartDate(startEnabled, startDate); }},
        {[&] { return device->lGetStopDate(&stopEnabled, &stopDate); },
         [&] { advancedOptionsDialog->lSetStopDate(stopEnabled, stopDate); }},
    };
    return progress.walk(steps, firstValue);
}

bool MainWindow::plReadCondition()
{
    bool known = false;
    QDateTime lastReset;
    if (device->lMultiuse() && device->lGetLastReset(&known, &lastReset) && known) {
        plShowLastReset(true);
        ui->labelLastReset->setText(lastReset.toString(dateTimeDisplayFormat) + QStringLiteral(" (GMT)"));
    }

    bool low = false;
    if (!device->lGetLowBattery(&low))
        return false;
    if (low)
        ui->labelLowBattery->setText(
            tr("<p><span style=\" font-weight:600; color:#ff0000;\">The device's battery is "
               "LOW.</span></p>") +
            (device->lMultiuse()
                 ? tr("<p><span style=\"font-weight:600; color:#ff0000;\">Please replace the "
                      "battery immediately.</span></p>")
                 : tr("<p><span style=\"font-weight:600; color:#ff0000;\">Please refrain from "
                      "using this device.</span></p>")));
    return true;
}

StepResult MainWindow::plSynchroniseTime(StepProgress& progress)
{
    if (!timeManager->isQuerySuccesful() || !settingsDialog->timeEnabled())
        return StepResult::Done;
    if (!device->lIsExtendedFirmware())
        return progress.judge(device->lSetDateTime(timeKeeper.timeUtc()));

    // The window shows the figures on the device's clock; the device takes true time and its zone apart. Cut
    // off between the two it would show a wrong time, so a cancel here is a failure.
    const int offset = advancedOptionsDialog->lTimeZoneOffset();
    const bool taken =
        device->lSetTimeZoneOffset(offset) && device->lSetDateTime(timeKeeper.timeUtc().addSecs(-offset));
    return progress.judge(taken) == StepResult::Done ? StepResult::Done : StepResult::Failed;
}

StepResult MainWindow::plWriteOptions(StepProgress& progress, int firstValue)
{
    bool startEnabled = false;
    QDateTime startDate;
    advancedOptionsDialog->lStartDate(&startEnabled, &startDate);
    bool stopEnabled = false;
    QDateTime stopDate;
    advancedOptionsDialog->lStopDate(&stopEnabled, &stopDate);

    const std::vector<Step> steps{
        {[&] { return device->lSetPolicies(static_cast<quint16>(advancedOptionsDialog->lPolicies())); }},
        {[&] { return device->lSetStartDate(startEnabled, startDate); }},
        {[&] { return device->lSetStopDate(stopEnabled, stopDate); }},
        {[&] { return device->lSetPassword(advancedOptionsDialog->lPassword()); }},
    };
    return progress.walk(steps, firstValue);
}

void MainWindow::plProcessAdvancedOptionsDialog()
{
    if (procedureRuns)
        return;
    const QScopedValueRollback<bool> guard(procedureRuns, true);
    const QDateTime shown = timeKeeper.timeUtc();
    TimeZoneMatch zone = timeZoneFromDevice
                             ? timeManager->matchTimeZoneByOffset(device->lTimeZoneOffset())
                             : timeManager->matchTimeZoneByDateTime(shown.date(), shown.time());
    if (zone.id == -1)
        zone = timeManager->timeZoneByName(QStringLiteral("GMT"));
    advancedOptionsDialog->lSetTimeZoneName(zone.name);
    advancedOptionsDialog->lSetTimeZoneOffset(zone.offset);
    advancedOptionsDialog->lSetButtonLock(ui->checkLock->isChecked());
    advancedOptionsDialog->lSetFirmwareCode(device->lFirmwareCode());
    // The device may have been found invalid meanwhile.
    if (advancedOptionsDialog->exec() != QDialog::Accepted || !device->lIsConnected())
        return;
    plChangesOcurred(true);
    ui->checkLock->setChecked(advancedOptionsDialog->lButtonLock());
}
