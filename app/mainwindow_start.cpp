// The start procedure: the logger begins to record, which can't be undone from here.

#include "app/mainwindow.h"

#include "device/brumaloggerinterface.h"

#include <QScopedValueRollback>

void MainWindow::plStartLogger()
{
    if (procedureRuns)
        return;
    const QScopedValueRollback<bool> guard(procedureRuns, true);
    if (modified &&
        plAsk(tr("Starting logger"), tr("There are modifications that were not written to the device.\n"
                                        "Do you really wish to start the device?")) == QMessageBox::No)
        return;
    if (plAsk(tr("Confirm"), tr("Do you wish to start the device?\nThis operation cannot be undone.")) !=
        QMessageBox::Yes)
        return;
    if (controlsDisabled) // the device was found invalid while the questions were open
        return;
    if (!plMayStart()) {
        plWarn(tr("Software START is disabled"), tr("Software START is disabled on this logger."));
        return;
    }
    if (device->lStartLogger())
        plLeaveDevice();
    else
        plInform(tr("Error"), tr("Failed to start the device"));
}

// Older firmware has no policies. A word that can't be read is taken as a refusal.
bool MainWindow::plMayStart()
{
    if (!device->lIsExtendedFirmware())
        return true;
    int policies = 0;
    return device->lGetPolicies(&policies) && (policies & PolicyStartSoftware) != 0;
}
