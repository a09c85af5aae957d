// A window with a reference time, and a hand for the dialogs around the time zone.

#include "zonerig.h"

#include "dialogs/advancedoptionsdialog.h"
#include "dialogs/settingsdialog.h"
#include "support/nextchance.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTest>
#include <QToolButton>

namespace {

constexpr int hostsInPool = poolSize - 1; // the first of its rows is no host name

} // namespace

void ZoneWords::expectConfirmation(DialogRobot& robot, QMessageBox::StandardButton answer)
{
    robot.expectChoice(confirmation,
                       QStringLiteral("Are you sure you want to change the device's time setting?"), answer,
                       "TimeZoneDialog");
}

void ZoneWords::expectDatesWarning(DialogRobot& robot)
{
    robot.expectWarning(
        datesWarning,
        QStringLiteral("<p>There are automatic START/STOP dates that were configured using a different Time "
                       "Zone setting. Please review these settings in the <b>Advanced Options</b> "
                       "menu.</p>"));
}

LoggerModel olderLogger()
{
    LoggerModel model = basicLogger();
    model.settings().multiuse = true;
    return model;
}

LoggerModel newerLogger()
{
    LoggerModel model = secureLogger();
    model.settings().startDate = 0;
    model.settings().stopDate = 0;
    return model;
}

ZoneHand::ZoneHand()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool ZoneHand::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog && event->type() == QEvent::Show && !qobject_cast<QMessageBox*>(watched) &&
        !qobject_cast<QProgressDialog*>(watched)) {
        seen << dialog->windowTitle();
        atNextChance(dialog, [this, dialog] { use(dialog); });
    }
    return QObject::eventFilter(watched, event);
}

void ZoneHand::use(QDialog* dialog)
{
    const bool isDisclaimer = dialog->windowTitle() == ZoneWords::disclaimer;
    const Action& action = isDisclaimer ? disclaimerAction : editorAction;
    if (action && (isDisclaimer || qobject_cast<TimeZoneDialog*>(dialog)))
        action(dialog);
    if (dialog->isVisible())
        dialog->done(isDisclaimer ? QDialog::Accepted : QDialog::Rejected);
}

ZoneRig::ZoneRig(const LoggerModel& model, int secondsAhead)
    : servers(NtpAnswer::currentTime(Q_INT64_C(1000) * secondsAhead))
    , rig(timeSettings(true))
{
    if (!rig.comesTo(TimeWords::fetchedPool))
        qFatal("the answer never came");
    waitForRequests(hostsInPool);
    rig.plugAndConnect(model);
    rig.takeStatusLog();
}

void ZoneRig::waitForRequests(int count) const
{
    if (!QTest::qWaitFor([this, count] { return servers.requests() == count; }))
        qFatal("%d requests came instead of %d", servers.requests(), count);
}

void ZoneRig::press() const
{
    QTest::mouseClick(rig.find<QToolButton>("buttonToolTimeZone"), Qt::LeftButton);
}

void ZoneRig::change(const QString& zone, Warning warning)
{
    hand.atEditor([zone](QDialog* editor) {
        if (!zone.isEmpty())
            choose(editor, zone);
        editor->accept();
    });
    ZoneWords::expectConfirmation(rig.robot);
    if (warning == Warning::OfDates)
        ZoneWords::expectDatesWarning(rig.robot);
    press();
}

QString ZoneRig::zoneIn(const QDialog* editor)
{
    return editor->findChild<QComboBox*>()->currentText();
}

void ZoneRig::choose(const QDialog* editor, const QString& zone)
{
    editor->findChild<QComboBox*>()->setCurrentText(zone);
}

void ZoneRig::askAgain(int secondsAhead)
{
    servers.answer(NtpAnswer::currentTime(Q_INT64_C(1000) * secondsAhead).later());
    rig.dialog->accept(); // what asks the pool at every time
    waitForRequests(2 * hostsInPool);
    rig.logger->clearExchanges();
    rig.takeStatusLog();
}

void ZoneRig::releaseUntil(const QString& status)
{
    servers.release();
    if (!rig.comesTo(status))
        qFatal("the window never said \"%s\"", qPrintable(status));
}

void ZoneRig::fetchTime(int secondsAhead)
{
    askAgain(secondsAhead);
    releaseUntil(TimeWords::fetchedPool);
    rig.logger->clearExchanges();
    rig.takeStatusLog();
}

QStringList ZoneRig::choice() const
{
    return {QStringLiteral("zone = %1").arg(rig.zone()),
            QStringLiteral("clock = %1").arg(rig.find<QLabel>("labelDateTime")->styleSheet()),
            QStringLiteral("information = %1").arg(rig.text("lineInfo")),
            QStringLiteral("offset = %1").arg(options(rig)->lTimeZoneOffset()),
            QStringLiteral("modified = %1").arg(rig.isModified())};
}

QDateTime ZoneRig::shownTime() const
{
    QDateTime time =
        QLocale::system().toDateTime(rig.text("labelDateTime"), QStringLiteral("hh:mm:ss dd/MMM/yyyy"));
    time.setTimeSpec(Qt::UTC);
    return time;
}
