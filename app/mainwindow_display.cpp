// Settings applied, the reference time as it comes in, and what the device panel shows.

#include "app/mainwindow.h"

#include "device/brumaloggerinterface.h"
#include "dialogs/settingsdialog.h"
#include "time/timemanager.h"
#include "ui_mainwindow.h"

#include <QClipboard>
#include <QDebug>
#include <QGuiApplication>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScreen>

void MainWindow::plSettingsAccepted()
{
    setStyleSheet(QStringLiteral("font-size: %1pt").arg(settingsDialog->fontSize()));
    if (!controlsDisabled) {
        ui->buttonPreset->setEnabled(settingsDialog->presetEnabled());
        ui->buttonToolTimeZone->setEnabled(settingsDialog->timeEnabled());
    }
    device->lSetFastMode(settingsDialog->fastEnabled());
    if (settingsDialog->timeEnabled())
        plFetchTime();
    plUpdateTimeZoneLabel();
}

// The form's own smallest size is for small fonts and empty panels; larger fonts and a device's values would
// be cut. A size that the operator chose before stays as long as there is room in it.
void MainWindow::plMakeRoom()
{
    if (!isVisible() || isMaximized() || isFullScreen())
        return;
    // The panels' new sizes are known by them.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    resize(size().expandedTo(minimumSizeHint().boundedTo(screen()->availableSize())));
}

// The pool is asked at every opportunity, a single server only when it is another one than before.
void MainWindow::plFetchTime()
{
    if (settingsDialog->poolEnabled()) {
        ui->statusBar->showMessage(tr("Fetching time and date from server pool..."));
        timeManager->queryPool(settingsDialog->serverListForPool());
        return;
    }
    const QString server = settingsDialog->timeServer();
    if (server == timeManager->serverName())
        return;
    ui->statusBar->showMessage(tr("Fetching time and date from %1...").arg(server));
    timeManager->queryServer(server);
}

QString MainWindow::plTimeSource() const
{
    return settingsDialog->poolEnabled() ? tr("server pool") : settingsDialog->timeServer();
}

void MainWindow::plOnTimeManagerConnect()
{
    if (settingsDialog->timeEnabled())
        ui->statusBar->showMessage(tr("Successfully fetched time and date from %1.").arg(plTimeSource()));
    if (controlsDisabled)
        return;
    plUpdateTimeZoneLabel();
    // A start leaves the controls enabled, and nothing may come between its commands.
    if (device->lIsBusy())
        return;
    const QScopedValueRollback<bool> guard(procedureRuns, true);
    if (!device->lIsDeviceValid(timeManager->currentTimeUtc()))
        plOnInvalidDevice();
}

void MainWindow::plOnTimeManagerTimeout()
{
    if (settingsDialog->timeEnabled())
        ui->statusBar->showMessage(
            tr("Unable to fetch date and time from %1. Check your connections or try another server.")
                .arg(plTimeSource()));
}

// The zone on the device is the best source; else its clock tells, if there is a reference time.
void MainWindow::plUpdateTimeZoneLabel()
{
    TimeZoneMatch match;
    const bool zoneKnown = device->lIsExtendedFirmware() && timeZoneFromDevice;
    if (zoneKnown)
        match = timeManager->matchTimeZoneByOffset(device->lTimeZoneOffset());
    if (settingsDialog->timeEnabled() && timeManager->isQuerySuccesful()) {
        qDebug() << "Updating time zone on UI...";
        if (!zoneKnown) {
            const QDateTime shown = timeKeeper.timeUtc();
            match = timeManager->matchTimeZoneByDateTime(shown.date(), shown.time());
        }
        // It comes enabled, so not where a zone must not be chosen: during a procedure, or without a device.
        if (!controlsDisabled) {
            ui->buttonToolTimeZone->show();
            ui->buttonToolTimeZone->setEnabled(true);
        }
    }
    const bool found = match.id != -1;
    currentTimeZoneName = found ? match.name : defaultTimeZoneName;
    if (found)
        ui->labelTimeZone->setText(match.name);
    plShowTimeZone(found);
    plMakeRoom(); // what fills the panels comes here in the end, unless it fails
}

void MainWindow::plSetTimeZone(const QString& name)
{
    const TimeZoneMatch match = timeManager->timeZoneByName(name);
    if (match.id == -1) {
        currentTimeZoneName = defaultTimeZoneName;
        return;
    }
    currentTimeZoneName = name;
    timeKeeper.setTime(timeManager->currentTimeUtc().addSecs(match.offset));
    // Older loggers print every time as if it were GMT; the report has to say what it is.
    if (!device->lIsExtendedFirmware() && name != defaultTimeZoneName)
        ui->lineInfo->setText(QStringLiteral("ALL DATES/TIMES ARE %1. IGNORE GMT REMARK BELOW.").arg(name));
    ui->labelDateTime->setStyleSheet(QStringLiteral("font: bold"));
    plUpdateTimeZoneLabel();
    plUpdateDateTime();
}

void MainWindow::plUpdateDateTime()
{
    ui->labelDateTime->setText(timeKeeper.timeUtc().toString(dateTimeDisplayFormat));
}

// The spin boxes go to 0 before the lists: a list that stood elsewhere puts its first row into them. On the
// way one of them can lose the focus, which is no editing that the range's rule has to look at.
void MainWindow::plClearDeviceInfo()
{
    const QSignalBlocker minimum(ui->spindTempMin);
    const QSignalBlocker maximum(ui->spindTempMax);
    for (QLabel* label : {ui->labelDeviceName, ui->labelFirmwareVersion, ui->labelHardwareRevision,
                          ui->labelDateTime, ui->labelType, ui->labelSerial})
        label->setText(QStringLiteral(" - "));
    plShowTimeZone(false);
    ui->buttonToolTimeZone->hide();
    ui->labelDateTime->setStyleSheet(QString());
    ui->spinDelay->setValue(0);
    ui->spinSampling->setValue(0);
    ui->spindTempMax->setValue(0);
    ui->spindTempMin->setValue(0);
    for (QComboBox* combo : {ui->comboTemp, ui->comboDelay, ui->comboSampling, ui->comboType})
        combo->setCurrentIndex(0);
    for (QLineEdit* line : {ui->lineBarcode, ui->lineRecipient, ui->lineSender, ui->lineInfo})
        line->clear();
    ui->lineInfo->setEnabled(true);
    plShowLastReset(false);
    ui->labelLowBattery->clear();
}

void MainWindow::plShowTimeZone(bool shown)
{
    ui->labelTimeZone->setVisible(shown);
    ui->labelTimeZoneStatic->setVisible(shown);
}

void MainWindow::plShowLastReset(bool shown)
{
    ui->labelLastReset->setVisible(shown);
    ui->labelLastResetStatic->setVisible(shown);
}

void MainWindow::plProcessCustomLabelMenu(QLabel* label)
{
    QMenu menu(this);
    QAction copy(tr("Copy as text..."));
    connect(&copy, &QAction::triggered, this,
            [label] { QGuiApplication::clipboard()->setText(label->text()); });
    menu.addAction(&copy);
    menu.exec(QCursor::pos());
}
