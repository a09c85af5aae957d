#pragma once

#include "app/mainwindow.h"
#include "simulator/usbbench.h"
#include "support/child.h"
#include "support/dialogrobot.h"
#include "support/workfolder.h"

#include <QList>
#include <QString>

#include <functional>

class QProgressDialog;

/// The logger of most tests: basic firmware 1.1.9, with a value of its own in every place.
LoggerModel basicLogger();
/// Firmware 1.2.0, otherwise the same.
LoggerModel extendedLogger();
/// Basic firmware, and the sampling time, the start delay and the range are on no list of the setup panel.
LoggerModel customLogger();

/// For a test whose first windows have no bench: the mock hardware names its folder in the environment, which
/// the threads of those windows may be reading later.
void makeMockHardware();

/// A main window, a bench with simulated loggers, and a robot that answers the window's boxes. Widgets go by
/// their object names, as an operator would find them by their place.
class WindowRig
{
public:
    using Preparation = std::function<void(WindowRig& rig)>;

    /// Shows the window, started with @p settings; nothing is plugged in yet. Servers may answer as soon as
    /// it is shown, so what counts on their answer is done by @p prepare, right before.
    explicit WindowRig(const Settings& settings = quietSettings(), const Preparation& prepare = {});
    virtual ~WindowRig() = default;

    /// Plugs in a logger; the first one is also `logger`.
    virtual SimulatedPort* plug(const LoggerModel& model = basicLogger(), const UsbIdentity& identity = {});
    /// Plugs in a logger, connects to it and empties the record of the wire.
    void plugAndConnect(const LoggerModel& model = basicLogger());

    template<typename Widget>
    Widget* find(const char* name) const
    {
        return child<Widget>(window, name);
    }

    /// Presses a button of the window and returns when all that it set off is over.
    void press(const char* buttonName) const;
    /// What the status bar says, and if so, that it will not say it for long.
    QString status() const;
    QString title() const { return window.windowTitle(); }
    bool isModified() const { return title().endsWith(QLatin1Char('*')); }
    QString text(const char* lineOrLabelOrButtonName) const;
    double value(const char* spinBoxName) const;
    bool isEnabled(const char* widgetName) const;
    /// True when every control of "connected and idle" is enabled, and false when every one is disabled; a
    /// mixture is told in words by controlsMixture().
    bool controlsEnabled() const;
    QString controlsMixture() const;
    /// The progress dialog now on show, or null.
    QProgressDialog* progressDialog() const;
    /// Does @p action when the logger has received its n-th command from now (1 is the next), before it is
    /// answered.
    void atCommand(int number, const std::function<void()>& action) const;

    /// The commands on the first logger's wire since plugging or clearExchanges().
    QList<QByteArray> wire() const { return logger->commands(); }

    /// Noon of a day, far from the midnight that cuts a reply wait short; before any clock of the window
    /// runs.
    struct Noon
    {
        Noon();
    };

    Noon noon;
    UsbBench bench;
    WorkFolder folder;
    MainWindow window;
    DialogRobot robot;
    SimulatedPort* logger = nullptr;
};
