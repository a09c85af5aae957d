// Advanced options: the rules that values have to keep, and what the user is told when they don't.

#include "dialogs/advancedoptionsdialog.h"

#include "ui_advancedoptionsdialog.h"

#include <QDebug>
#include <QMessageBox>

#include <algorithm>

namespace {

constexpr int startNotice = 10; // minutes from now to a start
constexpr int stopNotice = 20;  // minutes from now to a stop
constexpr int shortestRun = 10; // minutes from a start to a stop
constexpr int secondsPerMinute = 60;

bool anyChecked(std::initializer_list<const QAbstractButton*> options)
{
    return std::any_of(options.begin(), options.end(),
                       [](const QAbstractButton* option) { return option->isChecked(); });
}

} // namespace

void AdvancedOptionsDialog::done(int result)
{
    // Hidden before it is on the screen, the dialog would never end.
    if (filling) {
        closingPutOff = true;
        return;
    }
    if (result == Accepted) {
        const bool open = isVisible();
        if (!plCheckPassword() || !lValidateDates() || !plCheckPolicies())
            return;
        if (isVisible() != open) // rejected under the caution
            return;
        plTakeControls();
    }
    qDebug() << "Current policies:" << policies;
    QDialog::done(result);
}

bool AdvancedOptionsDialog::plCheckPassword()
{
    if (!ui->linePassw->isEnabled() || !ui->linePassw->text().isEmpty())
        return true;
    return plRefuse(tr("Empty password field"),
                    tr("<p>Please specify a password or disable any options requering it.</p>"));
}

// With both dates on, neither is compared with the current time: a start in the past passes on purpose.
bool AdvancedOptionsDialog::lValidateDates()
{
    if (startEnabled && stopEnabled)
        return plCheckDistance(startDate.secsTo(stopDate), shortestRun, tr("Invalid START and STOP date"),
                               tr("<p>The STOP date/time must be at least %1 minutes after the START "
                                  "date/time. Please check your settings.</p>"));
    if (startEnabled)
        return plCheckDistance(plSecondsUntil(startDate), startNotice, tr("Invalid START date"),
                               tr("<p>The START date/time must be at least %1 minutes after the current "
                                  "date/time. Please check your settings.</p>"));
    if (stopEnabled)
        return plCheckDistance(plSecondsUntil(stopDate), stopNotice, tr("Invalid STOP date"),
                               tr("<p>The STOP date/time must be at least %1 minutes after the current "
                                  "date/time. Please check your settings.</p>"));
    return true;
}

qint64 AdvancedOptionsDialog::plSecondsUntil(const QDateTime& date) const
{
    return QDateTime::currentDateTime().secsTo(date.addSecs(-static_cast<qint64>(timeZoneOffset)));
}

// The write procedure asks as well, while the dialog is hidden, and tells the user in its own way.
bool AdvancedOptionsDialog::plCheckDistance(qint64 seconds, int minutes, const QString& title,
                                            const QString& text)
{
    if (seconds >= static_cast<qint64>(minutes) * secondsPerMinute)
        return true;
    if (isVisible())
        QMessageBox::warning(this, title, text.arg(minutes));
    return false;
}

// An automatic stop is no STOP option, unlike its START counterpart, on purpose.
bool AdvancedOptionsDialog::plCheckPolicies()
{
    if (!anyChecked({ui->checkStartDate, ui->checkStartButton, ui->checkStartSoftware}))
        return plRefuse(tr("No START enabled"),
                        tr("<p>No valid START configuration enabled.<br>Please enable "
                           "at least <b>one</b> START option.</p>"));
    if (!anyChecked({ui->checkStopButton, ui->checkStopUSBAttach}))
        return plRefuse(tr("No STOP enabled"),
                        tr("<p>No valid STOP configuration enabled.<br>Please enable at "
                           "least <b>one</b> STOP option.</p>"));
    if (ui->radioResetDone->isChecked() && anyChecked({ui->radioPasswAlways, ui->radioPasswOnce}))
        QMessageBox::warning(
            this, tr("Attention"),
            tr("<p>Your current security configuration is <b>valid</b>.<br> However, it only allows a RESET "
               "after the reports are generated, and <em>report generation</em> is password "
               "protected.<br>Please note that, in such configuration, forgetting the device's password will "
               "render it inoperative and non-resettable.<br>Please store its password properly.</p>"));
    return true;
}

bool AdvancedOptionsDialog::plRefuse(const QString& title, const QString& text)
{
    QMessageBox::warning(this, title, text);
    return false;
}
