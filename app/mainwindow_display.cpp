// What the device panel shows: the clock, the empty panel, copying from it.

#include "app/mainwindow.h"

#include "ui_mainwindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

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
    for (QLineEdit* edit : {ui->lineBarcode, ui->lineRecipient, ui->lineSender, ui->lineInfo})
        edit->clear();
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
