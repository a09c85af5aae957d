#pragma once

#include "procedurerig.h"

#include "network/ntpresponder.h"

#include <memory>
#include <vector>

class SettingsDialog;

namespace TimeWords {

const QString fetchingServer = QStringLiteral("Fetching time and date from time.google.com...");
const QString fetchingPool = QStringLiteral("Fetching time and date from server pool...");
const QString fetchedServer = QStringLiteral("Successfully fetched time and date from time.google.com.");
const QString fetchedPool = QStringLiteral("Successfully fetched time and date from server pool.");
const QString failedServer = QStringLiteral("Unable to fetch date and time from time.google.com. "
                                            "Check your connections or try another server.");
const QString failedPool = QStringLiteral("Unable to fetch date and time from server pool. "
                                          "Check your connections or try another server.");
const QString foundInvalid = QStringLiteral("Invalid device detected.");
const QString leftPort = QStringLiteral("Disconnected from ttyACM0");

} // namespace TimeWords

constexpr int queryPatience = 30000; // milliseconds
constexpr int poolSize = 7;

/// Time configuration on.
Settings timeSettings(bool pool = false);

/// The seven servers; silent until they are told otherwise. What they are to answer a window's first request
/// is told before the window is made.
class Servers
{
public:
    explicit Servers(const NtpAnswer& answer = NtpAnswer::silence());
    void answer(const NtpAnswer& answer);
    /// The same for one of them, from 1 on.
    void answer(int number, const NtpAnswer& answer);
    void release();
    int requests() const;
    /// Returns once somebody has asked; the test program ends if nobody does.
    void awaitRequest() const;

private:
    std::vector<std::unique_ptr<NtpResponder>> all;
};

/// A window that asks for the time.
class TimeRig : public ProcedureRig
{
public:
    explicit TimeRig(const Settings& settings);

    void check(const char* settingsBox, bool checked);
    bool comesTo(const QString& message);
    /// The zone label, the one beside it and the button behind it, as far as they are there.
    QString zone() const;

    SettingsDialog* dialog;
};

/// A window, on a rig of its kind, whose query is under way. The answer, of a clock @p ahead milliseconds
/// ahead, comes when it is told.
template<typename Rig>
struct Waiting
{
    Waiting(const Settings& settings, qint64 ahead)
        : servers(NtpAnswer::currentTime(ahead).later())
        , rig(settings)
    {
        servers.awaitRequest();
    }

    /// Sends the answer, and waits for the status bar to say @p status; `told` is whether it did.
    void tellTimeUntil(const QString& status)
    {
        servers.release();
        told = rig.comesTo(status);
    }

    Servers servers;
    Rig rig;
    bool told = false;
};

struct WaitingRig : Waiting<TimeRig>
{
    explicit WaitingRig(qint64 ahead = 0)
        : Waiting(timeSettings(), ahead)
    {
    }
};

/// A logger is connected, and the answer of the time server is still to come: it will tell a time three days
/// ahead, which no Single-use logger's clock shows.
struct DoubtfulRig : WaitingRig
{
    explicit DoubtfulRig(const LoggerModel& model);
};

/// A window with a reference time, @p ahead milliseconds ahead, and a connected logger.
struct SynchronisedRig
{
    explicit SynchronisedRig(const LoggerModel& model, qint64 ahead = 0);

    Servers servers;
    TimeRig rig;
};

/// A whole query of another server: what was sent and answered before it has come by then.
bool otherQueryPasses();
