// Connecting to the logger and disconnecting, both behind one button.

#include "app/mainwindow.h"

#include "app/buttonicon.h"
#include "device/brumaloggerinterface.h"
#include "ui_mainwindow.h"

#include <QScopedValueRollback>

void MainWindow::plConnect()
{
    if (procedureRuns)
        return;
    const QScopedValueRollback<bool> guard(procedureRuns, true);
    if (device->lIsConnected())
        plCloseConnection();
    else
        plOpenConnection();
}

void MainWindow::plOpenConnection()
{
    keepConnecting = true;
    if (!device->lConnectAuto()) {
        plWarn(tr("Notice"),
               tr("<p>No device found!<br>") + tr("Make sure the device is connected and try again.<br>") +
                   tr("If your Brumalogger USB is already connected as a USB Thumb Drive, this software "
                      "tool will be <b>unable</b> to connect to it.</p>"));
        return;
    }
    plChangesOcurred(false);
    ui->statusBar->showMessage(tr("Connecting to device... "));
    if (!plRead() && keepConnecting)
        plWarn(tr("Notice"),
               tr("<p>Connected to device, but failed to read it correctly.<br>Please retry the Read "
                  "operation.<br>If the issue persists, select <b>Disable fast Read/Write</b> under the "
                  "<b>Settings</b> menu.</p>"));
    if (!keepConnecting)
        return;
    if (deviceLocked) {
        device->lDisconnect();
        plDisableControls(true);
        return;
    }
    // Also after a failed or cancelled read, which has closed the link; the next click then connects anew.
    plShowDisconnectButton();
    ui->statusBar->showMessage(tr("Connected to device on %1").arg(device->lPortName()));
}

void MainWindow::plCloseConnection()
{
    if (modified &&
        plAsk(tr("Disconnecting"), tr("There are modifications that were not written to the device.\n"
                                      "Do you really wish to disconnect?")) == QMessageBox::No)
        return;
    if (!device->lIsConnected()) // found invalid, and left, while the question was open
        return;
    device->lDisconnect();
    plShowConnectButton();
    ui->statusBar->showMessage(tr("Disconnected from %1").arg(device->lPortName()));
    plClearDeviceInfo();
    plDisableControls(true);
    timeKeeper.setRunning(false);
    plChangesOcurred(false);
}

void MainWindow::plLeaveDevice()
{
    if (device->lIsConnected())
        plCloseConnection();
}

// A device that has gone silent comes here as well.
void MainWindow::plOnInvalidDevice()
{
    if (!device->lIsConnected())
        return;
    plDisableControls(true);
    keepConnecting = false;
    ui->statusBar->showMessage(tr("Invalid device detected."));
    plWarn(tr("Warning"),
           tr("This device is in an invalid state.\nNo connection can be established. Aborting."));
    // The reference time may have come while a dialog for this very device was open.
    plRejectDeviceDialogs();
    plLeaveDevice();
}

void MainWindow::plShowConnectButton()
{
    plSetConnectButton(tr("Connect"), QStringLiteral(":/icon_connect.png"), tr("Connect to device (%1)"));
}

void MainWindow::plShowDisconnectButton()
{
    plSetConnectButton(tr("Disconnect"), QStringLiteral(":/icon_disconnect.png"),
                       tr("Disconnect from device (%1)"));
}

void MainWindow::plSetConnectButton(const QString& text, const QString& icon, const QString& toolTip)
{
    ui->buttonConnect->setText(text);
    ui->buttonConnect->setIcon(buttonIcon(icon, ui->buttonConnect->iconSize()));
    ui->buttonConnect->setToolTip(toolTip.arg(connectKeyText));
}
