// The logger's command set: one row per command, and what each of them does to the model.

#include "simulator/loggercommands.h"

#include "simulator/loggermodel.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace {

using Settings = LoggerModel::Settings;

const QByteArray okReply("ok");
const QByteArray badValue("error: bad value");

QByteArray flag(bool on)
{
    return on ? "1" : "0";
}

struct Range
{
    qint64 min;
    qint64 max;
};

constexpr Range anyInt32 = {std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()};
constexpr Range dates = {0, anyInt32.max};
constexpr Range intervals = {60, 57600};             // seconds: a minute to sixteen hours
constexpr Range temperatures = {-40000, 85000};      // what the sensor can measure
constexpr Range zones = {-14LL * 3600, 14LL * 3600}; // seconds east of UTC
constexpr Range words = {0, 0xFFFF};
constexpr Range adjustments = {-127, 127};

bool isDecimal(const QByteArray& field)
{
    const int digits = field.startsWith('-') ? 1 : 0;
    return field.size() > digits &&
           std::all_of(field.cbegin() + digits, field.cend(), [](char c) { return c >= '0' && c <= '9'; });
}

/// The number in a field that must be exactly @p width characters wide, its sign included.
std::optional<qint64> number(const QByteArray& field, int width, Range range)
{
    if (field.size() != width || !isDecimal(field))
        return std::nullopt;
    const qint64 value = field.toLongLong();
    if (value < range.min || value > range.max)
        return std::nullopt;
    return value;
}

template<typename Target>
QByteArray store(const QByteArray& field, int width, Range range, Target* target)
{
    const std::optional<qint64> value = number(field, width, range);
    if (!value)
        return badValue;
    *target = static_cast<Target>(*value);
    return okReply;
}

// Identity and state

QByteArray identification(LoggerModel& logger, const QByteArray&)
{
    const Settings& s = logger.settings();
    return QStringLiteral("%1,%2,%3").arg(s.name, s.firmware, s.hardware).toUtf8();
}

QByteArray stateOfLife(LoggerModel& logger, const QByteArray&)
{
    return QByteArray::number(static_cast<int>(logger.settings().state));
}

QByteArray threeValues(LoggerModel& logger, const QByteArray&)
{
    const auto& values = logger.settings().values;
    return QStringLiteral("%1,%2,%3").arg(values[0]).arg(values[1]).arg(values[2]).toUtf8();
}

// Measuring setup

QByteArray tempRange(LoggerModel& logger, const QByteArray&)
{
    const Settings& s = logger.settings();
    return QByteArray::number(s.tempMin) + ',' + QByteArray::number(s.tempMax);
}

QByteArray setTempRange(LoggerModel& logger, const QByteArray& value)
{
    constexpr int width = 8;
    const std::optional<qint64> min = number(value.left(width), width, temperatures);
    const std::optional<qint64> max = number(value.mid(width), width, temperatures);
    if (!min || !max || *min >= *max)
        return badValue;
    logger.settings().tempMin = static_cast<int>(*min);
    logger.settings().tempMax = static_cast<int>(*max);
    return okReply;
}

QByteArray setButtonLock(LoggerModel& logger, const QByteArray& value)
{
    if (value != "0" && value != "1")
        return badValue;
    logger.settings().buttonLock = value == "1";
    return okReply;
}

// Clock

// The sign takes one of the eight places.
QByteArray zone(LoggerModel& logger, const QByteArray&)
{
    return QString::asprintf("%08d", logger.settings().timeZoneOffset).toLatin1();
}

QByteArray setClock(LoggerModel& logger, const QByteArray& value)
{
    qint64 seconds = 0;
    QByteArray reply = store(value, 10, anyInt32, &seconds);
    if (reply == okReply)
        logger.setClockUtc(seconds);
    return reply;
}

// Texts and password

template<int slot>
QByteArray text(LoggerModel& logger, const QByteArray&)
{
    return logger.settings().texts[slot].toUtf8();
}

// Blanks at the end are the padding of the command and no part of the text.
template<int slot>
QByteArray setText(LoggerModel& logger, const QByteArray& value)
{
    QString text = QString::fromUtf8(value).left(LoggerModel::maxTextLength);
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    logger.settings().texts[slot] = text;
    return okReply;
}

QByteArray tryPassword(LoggerModel& logger, const QByteArray& value)
{
    Settings& s = logger.settings();
    if (QString::fromUtf8(value) != s.password)
        return "no";
    s.locked = false;
    s.reportsOpened = s.reportsOpened || s.state == LoggerModel::State::Finished;
    return okReply;
}

QByteArray setPassword(LoggerModel& logger, const QByteArray& value)
{
    const QString password = QString::fromUtf8(value);
    if (password.size() > LoggerModel::maxPasswordLength)
        return badValue;
    logger.settings().password = password;
    return okReply;
}

// Actions

QByteArray start(LoggerModel& logger, const QByteArray&)
{
    Settings& s = logger.settings();
    if (logger.isExtended() && (s.policies & LoggerModel::PolicyStartSoftware) == 0)
        return "error: start not allowed";
    s.state = LoggerModel::State::Recording;
    return okReply;
}

QByteArray adjust(LoggerModel&, const QByteArray& value)
{
    return number(value, 4, adjustments) ? okReply : badValue;
}

QByteArray justOk(LoggerModel&, const QByteArray&)
{
    return okReply;
}

using L = LoggerModel;
using B = const QByteArray;
using N = LoggerCommand::Needs;
constexpr auto bare = LoggerCommand::Form::Bare;
constexpr auto withValue = LoggerCommand::Form::WithValue;
constexpr bool basic = false;
constexpr bool extended = true;

// The order does not matter: no name with a value begins like another name.
constexpr LoggerCommand commands[] = {
    {"i", basic, N::Nothing, bare, identification},
    {"#", extended, N::Nothing, bare, [](L& l, B&) { return flag(l.settings().locked); }},
    {"x", extended, N::Nothing, bare, stateOfLife},
    {"?", extended, N::Nothing, withValue, tryPassword},
    {"G0", basic, N::Nothing, bare, text<0>},
    {"G1", basic, N::Nothing, bare, text<1>},
    {"G2", basic, N::Nothing, bare, text<2>},
    {"G3", basic, N::Unlocked, bare, text<3>},
    {"G4", basic, N::Unlocked, bare, text<4>},

    {"e", basic, N::Unlocked, bare, [](L& l, B&) { return l.settings().serial.toUtf8(); }},
    {"m", basic, N::Unlocked, bare, [](L& l, B&) { return flag(l.settings().multiuse); }},
    {"g", basic, N::Unlocked, bare, [](L& l, B&) { return QByteArray::number(l.wallClock()); }},
    {"Gt", basic, N::Unlocked, bare, tempRange},
    {"Gs", basic, N::Unlocked, bare, [](L& l, B&) { return QByteArray::number(l.settings().samplingTime); }},
    {"Gd", basic, N::Unlocked, bare, [](L& l, B&) { return QByteArray::number(l.settings().startDelay); }},
    {"Gl", basic, N::Unlocked, bare, [](L& l, B&) { return flag(l.settings().buttonLock); }},
    {"o", basic, N::Unlocked, bare, threeValues},
    {"Go", extended, N::Unlocked, bare, [](L& l, B&) { return QByteArray::number(l.settings().policies); }},
    {"Gz", extended, N::Unlocked, bare, zone},
    {"Ga", extended, N::Unlocked, bare, [](L& l, B&) { return QByteArray::number(l.settings().startDate); }},
    {"Gp", extended, N::Unlocked, bare, [](L& l, B&) { return QByteArray::number(l.settings().stopDate); }},
    {"z", extended, N::Unlocked, bare, [](L& l, B&) { return QByteArray::number(l.settings().lastReset); }},
    {"l", extended, N::Unlocked, bare, [](L& l, B&) { return flag(l.settings().lowBattery); }},

    {"St", basic, N::Idle, withValue, setTempRange},
    {"Ss", basic, N::Idle, withValue,
     [](L& l, B& v) { return store(v, 8, intervals, &l.settings().samplingTime); }},
    {"Sd", basic, N::Idle, withValue,
     [](L& l, B& v) { return store(v, 8, intervals, &l.settings().startDelay); }},
    {"Sl", basic, N::Idle, withValue, setButtonLock},
    {"S0", basic, N::Idle, withValue, setText<0>},
    {"S1", basic, N::Idle, withValue, setText<1>},
    {"S2", basic, N::Idle, withValue, setText<2>},
    {"S3", basic, N::Idle, withValue, setText<3>},
    {"S4", basic, N::Idle, withValue, setText<4>},
    {"u", basic, N::Idle, withValue, setClock},
    {"So", extended, N::Idle, withValue,
     [](L& l, B& v) { return store(v, 6, words, &l.settings().policies); }},
    {"Sz", extended, N::Idle, withValue,
     [](L& l, B& v) { return store(v, 8, zones, &l.settings().timeZoneOffset); }},
    {"Sa", extended, N::Idle, withValue,
     [](L& l, B& v) { return store(v, 10, dates, &l.settings().startDate); }},
    {"Sp", extended, N::Idle, withValue,
     [](L& l, B& v) { return store(v, 10, dates, &l.settings().stopDate); }},
    {"!", extended, N::Idle, withValue, setPassword},
    {"a", basic, N::Idle, bare, start},
    {"k", basic, N::Idle, bare, justOk},
    {"n", basic, N::Idle, bare, justOk},
    {"r", basic, N::Idle, withValue, adjust},
};

bool fits(const LoggerCommand& row, const QByteArray& command)
{
    return row.form == LoggerCommand::Form::Bare ? command == row.name : command.startsWith(row.name);
}

} // namespace

const LoggerCommand* findLoggerCommand(const QByteArray& command)
{
    const auto row = std::find_if(std::cbegin(commands), std::cend(commands),
                                  [&command](const LoggerCommand& each) { return fits(each, command); });
    return row == std::cend(commands) ? nullptr : row;
}
