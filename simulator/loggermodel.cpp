// The logger as such: who may command it, how its clock and its lock work, and how it describes itself.

#include "simulator/loggermodel.h"

#include "simulator/loggercommands.h"
#include "simulator/wiretext.h"

#include <QDateTime>

namespace {

constexpr int firstExtendedFirmware = 1002000;

/// 1.2.0 as 1002000; 0 unless there are three parts.
qint64 firmwareCode(const QString& firmware)
{
    const QStringList parts = firmware.split(QLatin1Char('.'));
    if (parts.size() != 3)
        return 0;
    return parts[0].toInt() * Q_INT64_C(1000000) + parts[1].toInt() * Q_INT64_C(1000) + parts[2].toInt();
}

const char* stateName(LoggerModel::State state)
{
    switch (state) {
    case LoggerModel::State::Idle:
        return "idle";
    case LoggerModel::State::Recording:
        return "recording";
    case LoggerModel::State::Finished:
        return "finished";
    }
    return "unknown";
}

/// Why @p logger will not carry out @p command, or nothing if it will.
QByteArray refusal(const LoggerModel& logger, const LoggerCommand* command)
{
    if (command == nullptr || (command->extended && !logger.isExtended()))
        return "error: unknown command";
    if (logger.settings().locked && command->needs != LoggerCommand::Needs::Nothing)
        return "error: locked";
    if (logger.settings().state != LoggerModel::State::Idle && command->needs == LoggerCommand::Needs::Idle)
        return "error: not idle";
    return {};
}

class Description
{
public:
    void add(const char* key, const QString& value)
    {
        lines << QLatin1String(key) + QLatin1Char('=') + escapeWireText(value.toUtf8());
    }
    void add(const char* key, qint64 value) { add(key, QString::number(value)); }

    QStringList lines;
};

void describeIdentity(const LoggerModel::Settings& s, Description* description)
{
    description->add("name", s.name);
    description->add("firmware", s.firmware);
    description->add("hardware", s.hardware);
    description->add("serial", s.serial);
    description->add("multiuse", s.multiuse);
    description->add("state", QLatin1String(stateName(s.state)));
}

void describeSetup(const LoggerModel::Settings& s, Description* description)
{
    description->add("temp_min", s.tempMin);
    description->add("temp_max", s.tempMax);
    description->add("sampling", s.samplingTime);
    description->add("delay", s.startDelay);
    description->add("button_lock", s.buttonLock);
    for (int slot = 0; slot < LoggerModel::textSlots; ++slot)
        description->add(qPrintable(QStringLiteral("text%1").arg(slot)), s.texts[static_cast<size_t>(slot)]);
}

void describeSecurity(const LoggerModel::Settings& s, Description* description)
{
    description->add("policies", s.policies);
    description->add("password", s.password);
    description->add("locked", s.locked);
    description->add("reports_opened", s.reportsOpened);
}

void describeTime(const LoggerModel::Settings& s, Description* description)
{
    description->add("zone", s.timeZoneOffset);
    description->add("clock_offset", s.clockOffset);
    description->add("start_date", s.startDate);
    description->add("stop_date", s.stopDate);
    description->add("last_reset", s.lastReset);
    description->add("low_battery", s.lowBattery);
}

} // namespace

QByteArray LoggerModel::answer(const QByteArray& command)
{
    runAutomaticDates();
    const LoggerCommand* row = findLoggerCommand(command);
    QByteArray refused = refusal(*this, row);
    if (!refused.isEmpty())
        return refused;
    const QByteArray name(row->name);
    QByteArray reply = row->carryOut(*this, command.mid(name.size()));
    if (row->needs == LoggerCommand::Needs::Idle && reply == "ok")
        ++stored.counts[name];
    // A clock that is set has not passed the dates in between, nor has a date that is set in the past.
    watchedUntil = wallClock();
    return reply;
}

void LoggerModel::attach()
{
    runAutomaticDates();
    if (!isExtended())
        return;
    if (stored.state == State::Recording && (stored.policies & PolicyStopUSBAttach) != 0)
        stored.state = State::Finished;
    stored.locked = stored.locked || lockApplies();
}

void LoggerModel::runAutomaticDates()
{
    const qint64 now = wallClock();
    const qint64 before = watchedUntil.value_or(now);
    watchedUntil = now;
    const auto passed = [before, now](qint64 date) { return date != 0 && date > before && date <= now; };
    if (!isExtended())
        return;
    if (stored.state == State::Idle && passed(stored.startDate))
        stored.state = State::Recording;
    if (stored.state == State::Recording && passed(stored.stopDate))
        stored.state = State::Finished;
}

bool LoggerModel::isExtended() const
{
    return firmwareCode(stored.firmware) >= firstExtendedFirmware;
}

qint64 LoggerModel::clockUtc() const
{
    return QDateTime::currentSecsSinceEpoch() + stored.clockOffset;
}

qint64 LoggerModel::wallClock() const
{
    return clockUtc() + (isExtended() ? stored.timeZoneOffset : 0);
}

void LoggerModel::setClockUtc(qint64 seconds)
{
    stored.clockOffset = seconds - QDateTime::currentSecsSinceEpoch();
}

QStringList LoggerModel::describe() const
{
    Description description;
    describeIdentity(stored, &description);
    describeSetup(stored, &description);
    describeSecurity(stored, &description);
    describeTime(stored, &description);
    return description.lines;
}

// A lock without a password could not be opened with one.
bool LoggerModel::lockApplies() const
{
    if (stored.password.isEmpty())
        return false;
    const bool always = (stored.policies & PolicyPasswAlways) != 0;
    const bool once = (stored.policies & PolicyPasswOnce) != 0 && !stored.reportsOpened;
    const bool guardsReports = stored.state == State::Finished && (always || once);
    return guardsReports || (stored.policies & PolicyConfigPassw) != 0;
}
