#pragma once

#include "procedurerig.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

class AdvancedOptionsDialog;
class PasswordDialog;

/// Firmware 1.2.0 and a value of its own in every place that came with it, but no password.
LoggerModel secureLogger(bool multiuse = true);
/// The same with the password "Secret", and locked.
LoggerModel lockedLogger(LoggerModel::State state = LoggerModel::State::Idle, bool multiuse = true);
const QString rightPassword = QStringLiteral("Secret");

/// What a read sends to extended firmware that isn't locked, in its order. The last command comes with the
/// controls enabled.
QList<QByteArray> extendedReadCommands(bool multiuse = true);
/// The proof of identity and then a read.
QList<QByteArray> extendedConnectCommands(bool multiuse = true);
/// The same with a lockedLogger(), which takes the first password tried.
QList<QByteArray> lockedConnectCommands(bool multiuse = true);
/// @p commands, of a read or a connect, with the repair of an impossible clock, whose "u" stands without its
/// seconds.
QList<QByteArray> withRepair(QList<QByteArray> commands);
/// What a write of the values of secureLogger() sends without a reference time.
QList<QByteArray> extendedWriteCommands();

/// The window's dialog of the advanced options, which keeps what a read has brought.
AdvancedOptionsDialog* options(const WindowRig& rig);
PasswordDialog* unlockDialog(const WindowRig& rig);
/// What that dialog keeps, a text for each value.
QStringList storedOptions(const QWidget& window);

/// Tries one password after the other whenever the unlock dialog is there, and cancels when none is left.
class UnlockHand : public QObject
{
    Q_OBJECT

public:
    UnlockHand(const WindowRig& rig, const QStringList& passwords);

    /// How often the dialog came up so far.
    int showings() const { return count; }

signals:
    /// The dialog is on the screen, just before anything is done to it.
    void sShown();

private:
    void look();

    PasswordDialog* dialog;
    QStringList passwords;
    QTimer timer;
    int count = 0;
};
