#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

/// What a logger knows and what it answers; no input or output.
///
/// It judges every command as the device does: by its firmware, its password lock and its state. What it
/// refuses is answered with a text beginning "error:" and changes nothing.
class LoggerModel
{
public:
    /// The life cycle; the values are those on the wire.
    enum class State { Idle = 2, Recording = 4, Finished = 16 };

    /// The flags of the policies word that the device itself obeys.
    enum Policy {
        PolicyStartSoftware = 0x0002, ///< "a" starts it
        PolicyConfigPassw = 0x0004,   ///< password-locked whenever it is plugged in
        PolicyStopUSBAttach = 0x0200, ///< plugging it in stops the recording
        PolicyPasswOnce = 0x0400,     ///< locked when finished, until the first right password
        PolicyPasswAlways = 0x0800,   ///< locked when finished, at every plugging in
    };

    static constexpr int textSlots = 5;      ///< sender, recipient, information, shipment type, barcode
    static constexpr int maxTextLength = 60; ///< characters that a text slot keeps
    static constexpr int maxPasswordLength = 30;

    /// Everything that the logger stores. Tests and options set it directly, past all refusals.
    struct Settings
    {
        QString name = QStringLiteral("Brumalogger USB");
        QString firmware = QStringLiteral("1.1.9");
        QString hardware = QStringLiteral("1.0");
        QString serial = QStringLiteral("SIM0000001");
        bool multiuse = false;
        int tempMin = 2000;      ///< thousandths of a degree Celsius
        int tempMax = 8000;      ///< thousandths of a degree Celsius
        int samplingTime = 300;  ///< seconds
        int startDelay = 1800;   ///< seconds
        bool buttonLock = false; ///< its button can't change the settings
        std::array<QString, textSlots> texts;
        int policies = 0x0103;  ///< start by button and software, stop by button
        int timeZoneOffset = 0; ///< seconds east of UTC; basic firmware has none
        qint64 startDate = 0;   ///< wall-clock seconds counted as if UTC; 0 is off
        qint64 stopDate = 0;    ///< likewise
        qint64 lastReset = 0;   ///< seconds since the epoch; 0 is never
        bool lowBattery = false;
        QString password;
        bool locked = false;        ///< until the right password comes
        bool reportsOpened = false; ///< PolicyPasswOnce is satisfied for good
        State state = State::Idle;
        qint64 clockOffset = 0;       ///< seconds by which its clock is ahead of the computer's
        std::array<int, 3> values{};  ///< the three numbers behind "o"
        QMap<QByteArray, int> counts; ///< settings and actions taken so far by command name, as "Ss" or "k"
    };

    /// A Single-use logger with basic firmware, idle, 2 to 8 degrees, its clock right.
    LoggerModel() = default;

    /// Takes one command and gives the reply, without line end: "ok", a value, a text or an error text.
    QByteArray answer(const QByteArray& command);
    /// What happens at each plugging in: an automatic stop by policy, and the password lock closes again.
    void attach();
    /// Starts or stops by the automatic dates that its clock has passed; answer() and attach() do so first.
    void runAutomaticDates();

    Settings& settings() { return stored; }
    const Settings& settings() const { return stored; }

    /// Firmware 1.2.0 or later: password lock, policies, time zone, automatic dates.
    bool isExtended() const;
    /// The device's own idea of UTC, in seconds since the epoch.
    qint64 clockUtc() const;
    /// The figures on its clock, counted as if UTC; on basic firmware the same as clockUtc().
    qint64 wallClock() const;
    void setClockUtc(qint64 seconds);

    /// Every value as a "key=value" line, in a fixed order; control characters in texts are escaped.
    QStringList describe() const;

private:
    bool lockApplies() const;

    Settings stored;
    /// The wall clock up to which the automatic dates were looked at; none before the first look.
    std::optional<qint64> watchedUntil;
};
