#pragma once

#include "app/quickwire.h"
#include "device/brumaloggerinterface.h"
#include "dialogs/passworddialog.h"
#include "simulator/usbbench.h"
#include "support/child.h"
#include "support/dialogrobot.h"

#include <QList>
#include <QSharedPointer>
#include <QWidget>

#include <functional>

/// With extended firmware, the rightPassword() and a text of its own in every slot.
LoggerModel lockedLogger(LoggerModel::State state = LoggerModel::State::Idle);
QString rightPassword();

/// An unlock dialog over a window, a locked logger connected to it, and a robot for its boxes. Widgets go by
/// their object names.
class PasswordDesk
{
public:
    /// The record of the wire begins behind the connecting.
    explicit PasswordDesk(const LoggerModel& model = lockedLogger());

    template<typename Widget>
    Widget* find(const char* name) const
    {
        return child<Widget>(dialog, name);
    }
    QString text(const char* lineOrLabelOrButtonName) const;
    /// The three texts and the state, as the labels show them.
    QStringList labels() const;
    bool isShowingInfo() const;

    /// Shows the dialog without waiting for its end.
    void open();
    /// Runs the dialog's own event loop, does @p action when the dialog is on the screen, and gives the
    /// result.
    int run(const std::function<void()>& action);
    void pressOk() const;
    void pressCancel() const;
    void pressToggle() const;
    /// Types the password and presses OK.
    void tryPassword(const QString& text) const;
    /// The boxes that follow a wrong password, and those that follow no answer.
    void expectIncorrect();
    void expectNoAnswer();

    /// A fault for every command that begins so.
    void disturb(const QByteArray& command, Fault::Kind kind, const QByteArray& bytes = {}) const;
    /// Does @p action when the next such command has come to the logger, before it is answered.
    void atCommand(const QByteArray& command, const std::function<void()>& action) const;
    /// Unplugs the logger.
    void unplug() { bench.unplug(logger); }
    /// The commands on the wire since connecting or since the last call.
    QList<QByteArray> takeWire() const;

    UsbBench bench;
    SimulatedPort* logger;
    QSharedPointer<BrumaloggerInterface> link;
    DialogRobot robot{"PasswordDialog"};
    QWidget window;
    PasswordDialog dialog;
};

/// "x", "G0", "G1", "G2": what every showing sends.
QList<QByteArray> showingCommands();
/// What labels() is before anything was read.
QStringList untouchedLabels();
/// What labels() is for a lockedLogger() that is idle.
QStringList idleLabels();
