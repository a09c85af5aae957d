// What the tests of the link share: a connected logger, a stopwatch.

#include "devicerig.h"

#include "support/testclock.h"

#include <QCoreApplication>
#include <QDateTime>

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
