// What the tests of the link share: a connected logger, a stopwatch, the log.

#include "devicerig.h"

#include "support/testclock.h"

#include <QCoreApplication>
#include <QDateTime>

#include <ctime>

namespace {

struct Recording
{
    QtMessageHandler next = nullptr;
    QStringList lines;
};

Recording& recording()
{
    static Recording theRecording;
    return theRecording;
}

QString levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug: ");
    case QtInfoMsg:
        return QStringLiteral("info: ");
    case QtWarningMsg:
        return QStringLiteral("warning: ");
    default:
        return QStringLiteral("critical: ");
    }
}

// A fatal message must still end the test.
void record(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg)
        recording().next(type, context, text);
    recording().lines << levelName(type) + text;
}

} // namespace

DeviceRig::DeviceRig(const LoggerModel& model)
    : logger(bench.plug(model, {}, ownPortName()))
{
    TestClock::ignoreStalls();
    if (!link.lConnectAuto())
        qFatal("the link did not connect");
    calm();
}

void DeviceRig::reply(const QByteArray& bytes) const
{
    Fault fault;
    fault.kind = Fault::Kind::Reply;
    fault.bytes = bytes;
    disturb(fault);
}

void DeviceRig::silence() const
{
    disturb(Fault());
}

void DeviceRig::disturb(const Fault& fault) const
{
    logger->faults().clear();
    logger->faults().add(fault);
}

void DeviceRig::calm() const
{
    logger->faults().clear();
    logger->clearExchanges();
}

QString ownPortName(int number)
{
    return QStringLiteral("ttyACM%1.%2").arg(QCoreApplication::applicationPid()).arg(number);
}

Stopwatch::Stopwatch()
    : started(QDateTime::currentMSecsSinceEpoch())
{
}

qint64 Stopwatch::elapsed() const
{
    return QDateTime::currentMSecsSinceEpoch() - started;
}

bool isWait(qint64 elapsed, qint64 wait)
{
    return elapsed >= wait && elapsed <= wait + waitMargin;
}

LogRecorder::LogRecorder()
{
    recording().lines.clear();
    recording().next = qInstallMessageHandler(record);
}

LogRecorder::~LogRecorder()
{
    qInstallMessageHandler(recording().next);
}

QStringList LogRecorder::lines() const
{
    return recording().lines;
}

void LogRecorder::clear()
{
    recording().lines.clear();
}

LocalZone::LocalZone(const QByteArray& zone)
    : before(qgetenv("TZ"))
    , hadOne(qEnvironmentVariableIsSet("TZ"))
{
    qputenv("TZ", zone);
    tzset();
}

LocalZone::~LocalZone()
{
    if (hadOne)
        qputenv("TZ", before);
    else
        qunsetenv("TZ");
    tzset();
}

LoggerModel distinctLogger()
{
    LoggerModel model;
    LoggerModel::Settings& settings = model.settings();
    settings.firmware = QStringLiteral("1.2.0");
    settings.hardware = QStringLiteral("2.4");
    settings.serial = QStringLiteral("BL-0042");
    settings.multiuse = true;
    settings.tempMin = -20500;
    settings.tempMax = 6250;
    settings.samplingTime = 660;
    settings.startDelay = 7200;
    settings.buttonLock = true;
    settings.texts = {QStringLiteral("Northern Pharma"), QStringLiteral("Zürich"), QStringLiteral("Batch 7"),
                      QStringLiteral("Land"), QStringLiteral("B1234")};
    settings.policies = 8195;
    settings.timeZoneOffset = -10800;
    settings.startDate = 1900000000;
    settings.stopDate = 1900086400;
    settings.lastReset = 1700000000;
    settings.lowBattery = true;
    settings.values = {11, -22, 33};
    return model;
}
