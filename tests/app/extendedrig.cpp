// Loggers with extended firmware, what goes to them on the wire, and a hand for the unlock dialog.

#include "extendedrig.h"

#include "dialogs/advancedoptionsdialog.h"
#include "dialogs/passworddialog.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWindow>

namespace {

qint64 onDeviceClock(int day, int hour)
{
    return QDateTime(QDate(2024, 5, day), QTime(hour, 0), Qt::UTC).toSecsSinceEpoch();
}

QString dateText(bool enabled, const QDateTime& date)
{
    return enabled ? date.toUTC().toString(Qt::ISODate) : QStringLiteral("off");
}

} // namespace

LoggerModel secureLogger(bool multiuse)
{
    LoggerModel model = extendedLogger();
    LoggerModel::Settings& settings = model.settings();
    settings.multiuse = multiuse;
    settings.policies = 0x1103; // of which the highest bit has no meaning for the program
    settings.timeZoneOffset = 7200;
    settings.startDate = onDeviceClock(16, 8);
    settings.stopDate = onDeviceClock(20, 9);
    settings.lastReset = 1714557600;
    return model;
}

LoggerModel lockedLogger(LoggerModel::State state, bool multiuse)
{
    LoggerModel model = secureLogger(multiuse);
    model.settings().password = rightPassword;
    model.settings().locked = true;
    model.settings().state = state;
    return model;
}

QList<QByteArray> extendedReadCommands(bool multiuse)
{
    QList<QByteArray> commands{"i",  "#",  "e",  "i",  "m",  "g",  "Gt", "Gs", "Gd", "Gl",
                               "G0", "G1", "G2", "G4", "G3", "Go", "Gz", "Ga", "Gp"};
    if (multiuse)
        commands << "z";
    return commands << "l"
                    << "m";
}

QList<QByteArray> extendedConnectCommands(bool multiuse)
{
    return QList<QByteArray>{"i"} + extendedReadCommands(multiuse);
}

QList<QByteArray> lockedConnectCommands(bool multiuse)
{
    return QList<QByteArray>{"i", "i", "#", "x", "G0", "G1", "G2", "?Secret"} +
           extendedReadCommands(multiuse).mid(2);
}

QList<QByteArray> withRepair(QList<QByteArray> commands)
{
    const int clock = commands.indexOf("g");
    commands.insert(clock + 1, "u");
    commands.insert(clock + 2, "Sz00000000");
    return commands;
}

QList<QByteArray> extendedWriteCommands()
{
    return writeCommandsOfBasicLogger() + QList<QByteArray>{"So004355", "Sa1715846400", "Sp1716195600", "!"};
}

AdvancedOptionsDialog* options(const WindowRig& rig)
{
    return rig.window.findChild<AdvancedOptionsDialog*>();
}

PasswordDialog* unlockDialog(const WindowRig& rig)
{
    return rig.window.findChild<PasswordDialog*>();
}

QStringList storedOptions(const QWidget& window)
{
    const auto* store = window.findChild<AdvancedOptionsDialog*>();
    bool startEnabled = false;
    bool stopEnabled = false;
    QDateTime startDate;
    QDateTime stopDate;
    store->lStartDate(&startEnabled, &startDate);
    store->lStopDate(&stopEnabled, &stopDate);
    return {QStringLiteral("policies %1").arg(store->lPolicies()),
            QStringLiteral("password \"%1\"").arg(store->lPassword()),
            QStringLiteral("lock %1").arg(store->lButtonLock()),
            QStringLiteral("zone %1").arg(store->lTimeZoneOffset()),
            QStringLiteral("start %1").arg(dateText(startEnabled, startDate)),
            QStringLiteral("stop %1").arg(dateText(stopEnabled, stopDate))};
}

UnlockHand::UnlockHand(const WindowRig& rig, const QStringList& passwords)
    : dialog(unlockDialog(rig))
    , passwords(passwords)
{
    connect(&timer, &QTimer::timeout, this, &UnlockHand::look);
    timer.start(1);
}

// Its showing takes some exchanges, so the dialog is there only when it is exposed. A right or a wrong
// password takes another, and then its box; the click returns when all that is over.
void UnlockHand::look()
{
    const QWindow* shown = dialog->windowHandle();
    if (!shown || !shown->isVisible() || !shown->isExposed())
        return;
    timer.stop();
    ++count;
    emit sShown();
    const auto* buttons = dialog->findChild<QDialogButtonBox*>();
    while (dialog->isVisible()) {
        const bool trying = !passwords.isEmpty();
        if (trying)
            dialog->findChild<QLineEdit*>()->setText(passwords.takeFirst());
        QTest::mouseClick(buttons->button(trying ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel),
                          Qt::LeftButton);
    }
    timer.start();
}
