#pragma once

#include "procedurerig.h"

#include "network/httpresponder.h"
#include "support/browser.h"

class UpdateChecker;

/// The version files that lead to a prompt; both name "1.4.0" and the address below.
const QByteArray newerFile = "1.4.0 win32:http://get.example/1.4.0\n1.3.3\n";
const QByteArray mandatoryFile = "1.4.0 mandatory win32:http://get.example/1.4.0\n1.3.3\n";
const QString newestVersion = QStringLiteral("1.4.0");
const QList<QUrl> newerAddress{QUrl(QStringLiteral("http://get.example/1.4.0"))};

/// A window that waits for the version file, which comes when a test says so.
class UpdateRig
{
public:
    explicit UpdateRig(const QByteArray& file, const Settings& settings = quietSettings());

    /// Lets the file come, and returns once a box is open because of it, or answered already.
    bool prompt();
    /// The same in the middle of the n-th command from now; `prompted` tells whether it came.
    void promptAt(int command);
    /// The same once the n-th box from now is open that the window shows of its own accord.
    void promptOverBox(int box = 1);
    /// The same, and the box is left alone until the prompt has closed the window.
    void closeOverBox(int box = 1);
    /// Lets the file come where nothing is to be seen of it, and returns once it was read.
    bool release();

private:
    /// The server is there before the window asks.
    struct HeldServer : HttpResponder
    {
        explicit HeldServer(const QByteArray& file);
    };

    void overBox(int box, const std::function<bool()>& action);

public:
    HeldServer server;
    Browser browser;
    ProcedureRig rig;
    UpdateChecker* checker;
    bool prompted = false;
};

/// The same with a logger connected to the window.
struct ConnectedUpdateRig : UpdateRig
{
    ConnectedUpdateRig(const QByteArray& file, const LoggerModel& model,
                       const Settings& settings = quietSettings());
};
