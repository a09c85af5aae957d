// The catalogue of commands, first half: identity, clock and the parameters of the measurement.

#include "device/brumaloggerinterface.h"

#include <QDebug>
#include <QtGlobal>

#include <climits>

namespace {

constexpr int shortestTime = 60;
constexpr int longestTime = 57600;
constexpr int thousandths = 1000;
constexpr qint64 majorFactor = 1000000;
constexpr qint64 minorFactor = 1000;
constexpr int extendedFirmware = 1002000;
constexpr qint64 clockTolerance = 172800;
constexpr int startWaits = 4;
constexpr int largestR = 127;

const auto flagSet = QLatin1String("1");

template<typename Value>
void hand(Value* destination, const Value& value)
{
    if (destination)
        *destination = value;
}

// A minus sign counts wherever it stands in the field.
float degreesFromField(QString field)
{
    const float sign = field.contains(QLatin1Char('-')) ? -1.0F : 1.0F;
    field.remove(QLatin1Char('-'));
    bool converted = false;
    const float number = field.toFloat(&converted); // infinite where it is too large
    return converted ? sign * number / thousandths : 0.0F;
}

// Cut, not rounded: 2.3 as a 32-bit float lies just below and goes out as 2299.
int thousandthsFromDegrees(float degrees)
{
    return static_cast<int>(static_cast<double>(degrees) * thousandths);
}

} // namespace

bool BrumaloggerInterface::lGetIdentification(QString* name, QString* firmware, QString* hardware)
{
    if (!plExchange(QStringLiteral("i")))
        return false;
    const QStringList fields = reply.split(QLatin1Char(','));
    if (fields.size() == 3) {
        deviceName = fields[0];
        firmwareVersion = fields[1];
        hardwareRevision = fields[2];
        hand(name, deviceName);
        hand(firmware, firmwareVersion);
        hand(hardware, hardwareRevision);
    }
    return true;
}

bool BrumaloggerInterface::lGetSerial(QString* serial)
{
    if (!plExchange(QStringLiteral("e")))
        return false;
    serialNumber = reply;
    hand(serial, serialNumber);
    return true;
}

bool BrumaloggerInterface::lGetMultiuse(bool* multiuse)
{
    if (!plExchange(QStringLiteral("m")))
        return false;
    this->multiuse = reply == flagSet;
    hand(multiuse, this->multiuse);
    return true;
}

// The device has put its zone into the figure: it is a wall clock, kept as a UTC date-time.
bool BrumaloggerInterface::lGetDateTime(QDateTime* now)
{
    if (!plExchangeForReply(QStringLiteral("g")))
        return false;
    timestamp = reply.toInt();
    qDebug() << "TIMESTAMP = " << timestamp;
    const QDateTime wallClock = QDateTime::fromSecsSinceEpoch(timestamp, Qt::UTC);
    deviceClock.setTime(wallClock);
    hand(now, wallClock);
    return true;
}

bool BrumaloggerInterface::lGetTempRange(float* min, float* max)
{
    if (!plExchange(QStringLiteral("Gt")))
        return false;
    const QStringList fields = reply.split(QLatin1Char(','));
    if (fields.size() != 2)
        return false;
    tempMin = degreesFromField(fields[0]);
    tempMax = degreesFromField(fields[1]);
    *min = tempMin;
    *max = tempMax;
    return true;
}

bool BrumaloggerInterface::lGetSamplingTime(int* seconds)
{
    return plGetSeconds(QStringLiteral("Gs"), &samplingTime, seconds);
}

bool BrumaloggerInterface::lGetStartDelay(int* seconds)
{
    return plGetSeconds(QStringLiteral("Gd"), &startDelay, seconds);
}

bool BrumaloggerInterface::plGetSeconds(const QString& command, int* field, int* seconds)
{
    if (!plExchangeForReply(command))
        return false;
    *field = reply.toInt();
    hand(seconds, *field);
    return true;
}

bool BrumaloggerInterface::lGetButtonLock(bool* locked)
{
    if (!plExchange(QStringLiteral("Gl")))
        return false;
    buttonLock = reply == flagSet;
    hand(locked, buttonLock);
    return true;
}

// A reply that is no number leaves an offset of 0 behind, not the old one.
bool BrumaloggerInterface::lGetTimeZoneOffset(int* seconds)
{
    if (!plExchangeForReply(QStringLiteral("Gz")))
        return false;
    qDebug() << "Got timezone offset:" << reply;
    const int sign = reply.contains(QLatin1Char('-')) ? -1 : 1;
    reply.remove(QLatin1Char('-'));
    bool converted = false;
    timeZoneOffset = sign * reply.toInt(&converted);
    if (!converted)
        return false;
    hand(seconds, timeZoneOffset);
    qDebug() << "Understood timezone offset:" << timeZoneOffset;
    return true;
}

bool BrumaloggerInterface::lGetLastReset(bool* known, QDateTime* date)
{
    int seconds = 0;
    if (!plExchangeForNumber(QStringLiteral("z"), &seconds))
        return false;
    *known = seconds > 0;
    if (*known) {
        date->setOffsetFromUtc(0);
        *date = QDateTime::fromSecsSinceEpoch(seconds, Qt::LocalTime, 0);
    }
    return true;
}

bool BrumaloggerInterface::lGetLowBattery(bool* low)
{
    if (!plExchangeForReply(QStringLiteral("l")))
        return false;
    *low = reply == flagSet;
    return true;
}

bool BrumaloggerInterface::lGetState(int* state)
{
    return plExchangeForNumber(QStringLiteral("x"), state);
}

bool BrumaloggerInterface::lGetValuesO(int* first, int* second, int* third)
{
    if (!plExchange(QStringLiteral("o")))
        return false;
    const QStringList fields = reply.split(QLatin1Char(','));
    if (fields.size() != 3)
        return false;
    *first = fields[0].toInt();
    *second = fields[1].toInt();
    *third = fields[2].toInt();
    return true;
}

bool BrumaloggerInterface::lSetTempRange(float min, float max)
{
    if (!(min + 1.0 < max))
        return false;
    return plExchangeForOk(
        QString::asprintf("St%08d%08d", thousandthsFromDegrees(min), thousandthsFromDegrees(max)));
}

bool BrumaloggerInterface::lSetSamplingTime(int seconds)
{
    return plSetSeconds("Ss", seconds);
}

bool BrumaloggerInterface::lSetStartDelay(int seconds)
{
    return plSetSeconds("Sd", seconds);
}

bool BrumaloggerInterface::plSetSeconds(const char* command, int seconds)
{
    if (seconds < shortestTime || seconds > longestTime)
        return false;
    return plExchangeForOk(QString::asprintf("%s%08d", command, seconds));
}

bool BrumaloggerInterface::lSetButtonLock(bool locked)
{
    return plExchangeForOk(locked ? QStringLiteral("Sl1") : QStringLiteral("Sl0"));
}

bool BrumaloggerInterface::lSetTimeZoneOffset(int seconds)
{
    const QString command = QString::asprintf("Sz%08d", seconds);
    qDebug() << "Writing timezone offset:" << command;
    return plExchangeForOk(command);
}

bool BrumaloggerInterface::lSetDateTime(const QDateTime& now)
{
    const qint64 seconds = now.toSecsSinceEpoch();
    qDebug() << "Setting time to" << seconds;
    return plSendTimestamp(static_cast<qint32>(seconds));
}

bool BrumaloggerInterface::lSetDateTime(const QString& date, const QString& time)
{
    QDateTime now;
    now.setDate(QDate::fromString(date, QStringLiteral("d/M/yyyy")));
    now.setTime(QTime::fromString(time, QStringLiteral("H:m:s")));
    return lSetDateTime(now);
}

bool BrumaloggerInterface::lSetTimestamp(unsigned int seconds)
{
    return plSendTimestamp(static_cast<qint32>(seconds));
}

bool BrumaloggerInterface::plSendTimestamp(qint32 seconds)
{
    return plExchangeForOk(QString::asprintf("u%010d", seconds));
}

bool BrumaloggerInterface::lStartLogger()
{
    return plExchangeForOk(QStringLiteral("a"), startWaits * waitTime);
}

bool BrumaloggerInterface::lSendCommandK()
{
    return plExchangeForOk(QStringLiteral("k"));
}

bool BrumaloggerInterface::lSendCommandN()
{
    return plExchangeForOk(QStringLiteral("n"));
}

bool BrumaloggerInterface::lSendCommandR(int value)
{
    return plExchangeForOk(QString::asprintf("r%04d", qBound(-largestR, value, largestR)));
}

int BrumaloggerInterface::lFirmwareCode() const
{
    const QStringList parts = firmwareVersion.split(QLatin1Char('.'));
    if (parts.size() != 3)
        return 0;
    const qint64 code = parts[0].toInt() * majorFactor + parts[1].toInt() * minorFactor + parts[2].toInt();
    return static_cast<int>(qBound<qint64>(INT_MIN, code, INT_MAX)); // the parts are the device's word only
}

bool BrumaloggerInterface::lIsExtendedFirmware() const
{
    return lFirmwareCode() >= extendedFirmware;
}

bool BrumaloggerInterface::lIsDeviceValid(const QDateTime& reference)
{
    bool isMultiuse = false;
    if (!lGetMultiuse(&isMultiuse))
        return false;
    return isMultiuse || qAbs(reference.secsTo(deviceClock.time())) <= clockTolerance;
}
