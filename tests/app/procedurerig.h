#pragma once

#include "support/windowrig.h"

/// A WindowRig for the device procedures: its loggers answer without the rest of each reply wait (see
/// QuickWire).
class ProcedureRig : public WindowRig
{
public:
    explicit ProcedureRig(const Settings& settings = quietSettings(), const Preparation& prepare = {});

    /// As in WindowRig.
    SimulatedPort* plug(const LoggerModel& model = basicLogger(), const UsbIdentity& identity = {}) override;
    /// Pulls the plug of every logger; the next one to be plugged in is `logger`.
    void unplugAll();

    /// From now on the waits of a connect and a read that come before an exchange are over at once: nothing
    /// is on the wire in them. Not for tests that press these buttons while a procedure runs.
    void skipIdleWaits();

    /// A fault for the n-th command from the last clearing of the record on (1 is the next).
    void disturb(int command, Fault::Kind kind, const QByteArray& bytes = {});
    /// A fault for every command that begins so.
    void disturb(const QByteArray& command, Fault::Kind kind, const QByteArray& bytes = {});

    /// Replaces the text of a line in one go, as pasting over it does.
    void type(const char* lineName, const QString& text);
    /// Presses the Cancel button of the progress dialog.
    void pressCancel();
    /// Presses Ctrl and @p key over the window, which hears it as a shortcut only if it is the active one.
    void pressKeys(Qt::Key key);
    /// Every button on show and every shortcut of the procedures, at once.
    void pressEverything();
    /// The same at every command of the logger from now on, with @p also behind it; counts the times.
    void pressAtEveryCommand(int* times, const std::function<void()>& also = {});
    /// Makes the window the active one.
    void activate();

    /// What the status bar showed since the last call, in its order.
    QStringList takeStatusLog();

private:
    QStringList statusLog;
};

/// "i", "e", "i" and so on: what a read sends to basic firmware, in its order. The last one, the test of the
/// device's validity, comes with the controls enabled.
QList<QByteArray> readCommands();
constexpr int stepsOfRead = 14;
/// What a connect sends: the proof of identity and then a read.
QList<QByteArray> connectCommands();
/// What a write of the values of basicLogger() sends to basic firmware.
QList<QByteArray> writeCommandsOfBasicLogger();
/// The same with a "u" that stands for any time.
QList<QByteArray> withoutSeconds(QList<QByteArray> commands);
/// The first @p count of @p commands.
QList<QByteArray> firstOf(const QList<QByteArray>& commands, int count);

/// A test's data with the column "command": a row for each of @p commands, by its number from 1 on, or for
/// those with the given @p numbers.
void addCommandRows(const QList<QByteArray>& commands, const QList<int>& numbers = {});
