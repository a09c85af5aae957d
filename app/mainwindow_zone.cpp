// The Time Zone Editor: what older loggers' operators accept before it, and what becomes of the choice.

#include "app/mainwindow.h"

#include "device/brumaloggerinterface.h"
#include "dialogs/advancedoptionsdialog.h"
#include "dialogs/timezonedialog.h"
#include "ui_mainwindow.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {

constexpr QSize disclaimerSize(450, 450);

/// Enter accepts, wherever the focus is.
void preferOk(const QDialogButtonBox& buttons)
{
    QPushButton* ok = buttons.button(QDialogButtonBox::Ok);
    QPushButton* cancel = buttons.button(QDialogButtonBox::Cancel);
    ok->setAutoDefault(true);
    ok->setDefault(true);
    cancel->setAutoDefault(false);
    cancel->setDefault(false);
}

void fillDisclaimer(QDialog* dialog, const QString& html)
{
    auto* text = new QTextEdit(dialog);
    text->setReadOnly(true);
    text->setHtml(html);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    preferOk(*buttons);
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(text);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
}

} // namespace

// Nothing goes to the device before the next write.
void MainWindow::plProcessTimeZoneDialog()
{
    if (procedureRuns)
        return;
    const QScopedValueRollback<bool> guard(procedureRuns, true);
    if (!plChooseTimeZone())
        return;
    timeZoneFromDevice = false;
    plWarnOfDatesInOtherZone();
    if (!plDeviceStays())
        return;
    advancedOptionsDialog->lSetTimeZoneOffset(timeZoneDialog->chosenOffset());
    plSetTimeZone(timeZoneDialog->chosenName());
    plChangesOcurred(true);
    ui->statusBar->showMessage(tr("Updating time and date settings."));
}

bool MainWindow::plChooseTimeZone()
{
    timeZoneDialog->setDeviceTime(device->lDeviceDateTime());
    if (!device->lIsExtendedFirmware() && !plShowDisclaimer())
        return false;
    return plDeviceStays() && timeZoneDialog->exec() == QDialog::Accepted && plDeviceStays();
}

// Older loggers can't tell their zone, so the clock alone has to show it.
bool MainWindow::plShowDisclaimer()
{
    QFile page(QStringLiteral(":/docs/doc/tz_disclaimer_en.html"));
    if (!page.open(QIODevice::ReadOnly | QIODevice::Text))
        return true;
    QDialog dialog(this);
    fillDisclaimer(&dialog, QString::fromUtf8(page.readAll()));
    dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    dialog.setWindowTitle(QStringLiteral("Disclaimer"));
    dialog.resize(disclaimerSize);
    const QScopedValueRollback<QDialog*> shown(disclaimer, &dialog);
    return dialog.exec() == QDialog::Accepted;
}

// The dates are figures on the device's clock and stay as they are.
void MainWindow::plWarnOfDatesInOtherZone()
{
    if (timeZoneDialog->chosenName() == advancedOptionsDialog->lTimeZoneName() ||
        (!advancedOptionsDialog->lStartEnabled() && !advancedOptionsDialog->lStopEnabled()))
        return;
    plWarn(tr("Changing Time Zone setting"),
           tr("<p>There are automatic START/STOP dates that were configured using a different Time Zone "
              "setting. Please review these settings in the <b>Advanced Options</b> menu.</p>"));
}

bool MainWindow::plDeviceStays() const
{
    return !closed && !controlsDisabled;
}
