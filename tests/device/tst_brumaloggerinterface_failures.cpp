// What goes wrong on the line: replies too late, a pulled plug, errors of the port.

#include "devicerig.h"
#include "exchangeaccess.h"

#include "support/loglines.h"
#include "support/testclock.h"

#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <algorithm>

namespace {

/// The fault of the next exchange and of no other.
Fault once(Fault::Kind kind)
{
    Fault fault;
    fault.kind = kind;
    fault.exchange = 1;
    return fault;
}

/// The lines that are no warnings of a failed reading; those may come when a plug was pulled.
QStringList otherThanReadErrors(const QStringList& lines)
{
    const QString readError = QStringLiteral("warning: \"I/O error when reading %1: ").arg(ownPortName());
    QStringList others = lines;
    others.erase(std::remove_if(others.begin(), others.end(),
                                [&readError](const QString& line) { return line.startsWith(readError); }),
                 others.end());
    return others;
}

/// Takes note of what is offered for translation.
class ListeningTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*comment*/,
                      int /*n*/) const override
    {
        heard << QLatin1String(context) + QLatin1Char('/') + QLatin1String(text);
        return {};
    }
    mutable QStringList heard;
};

} // namespace

class TestBrumaloggerInterfaceFailures : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TestClock::reset(); }

    void silenceLeavesNoMark();
    void lateReplySpoilsTheNext();
    void lateOkSpoilsTheNext();
    void lateReplyBetweenExchangesIsForgotten();
    void lateReplyWaitingInThePortIsNotFlushed();
    void slowModeHearsASlowDevice();
    void nothingIsRetried();
    void unplugDuringAnExchange();
    void unplugBehindAReply();
    void unpluggedLinkStaysConnected();
    void hungUpLineIsNotAskedAgainAndAgain();
    void readErrorIsLoggedOnly();
    void readErrorIsTranslated();
    void otherErrorsAreIgnored_data();
    void otherErrorsAreIgnored();
};

void TestBrumaloggerInterfaceFailures::silenceLeavesNoMark()
{
    DeviceRig rig(distinctLogger());
    QVERIFY(rig.link.lGetSamplingTime(nullptr));
    rig.silence();
    const LogLines log;
    int seconds = -1;
    QVERIFY(!rig.link.lGetSamplingTime(&seconds));
    QCOMPARE(seconds, -1);
    QCOMPARE(rig.link.lSamplingTime(), 660);
    QVERIFY(rig.link.lIsConnected());
    QVERIFY(rig.port()->isOpen());
    QCOMPARE(log.all(), QStringList());
}

void TestBrumaloggerInterfaceFailures::lateReplySpoilsTheNext()
{
    DeviceRig rig(distinctLogger());
    rig.disturb(once(Fault::Kind::LateUntilNext));
    QVERIFY(!rig.link.lGetSamplingTime(nullptr));
    int delay = 0;
    QVERIFY(rig.link.lGetStartDelay(&delay));
    QCOMPARE(delay, 6607200);
    QVERIFY(rig.link.lGetStartDelay(&delay));
    QCOMPARE(delay, 7200);
}

void TestBrumaloggerInterfaceFailures::lateOkSpoilsTheNext()
{
    DeviceRig rig;
    rig.disturb(once(Fault::Kind::LateUntilNext));
    QVERIFY(!rig.link.lSetSamplingTime(600));
    QVERIFY(!rig.link.lSetStartDelay(600));
    QVERIFY(rig.link.lSetStartDelay(600));
}

void TestBrumaloggerInterfaceFailures::lateReplyBetweenExchangesIsForgotten()
{
    DeviceRig rig(distinctLogger());
    QVERIFY(!exchange(rig.link, QStringLiteral("Gs"), 0));
    QSignalSpy arrived(rig.port(), &QIODevice::readyRead);
    rig.link.lWait(75);
    QVERIFY(arrived.count() > 0);
    int delay = 0;
    QVERIFY(rig.link.lGetStartDelay(&delay));
    QCOMPARE(delay, 7200);
}

// The reply has reached the port but not the link when the next exchange begins.
void TestBrumaloggerInterfaceFailures::lateReplyWaitingInThePortIsNotFlushed()
{
    DeviceRig rig(distinctLogger());
    QList<int> delays;
    connect(rig.logger, &SimulatedPort::sAnswered, this,
            [&rig, &delays](int /*exchange*/, const QByteArray& command) {
                int delay = -1;
                if (command == "Gs" && rig.link.lGetStartDelay(&delay))
                    delays << delay;
            });
    QVERIFY(!exchange(rig.link, QStringLiteral("Gs"), 0));
    QTRY_COMPARE(delays, QList<int>({6607200}));
}

void TestBrumaloggerInterfaceFailures::slowModeHearsASlowDevice()
{
    DeviceRig rig(distinctLogger());
    rig.link.lSetFastMode(false);
    Fault late;
    late.kind = Fault::Kind::Late;
    late.milliseconds = 90;
    rig.disturb(late);
    int seconds = 0;
    QVERIFY(rig.link.lGetSamplingTime(&seconds));
    QCOMPARE(seconds, 660);
}

void TestBrumaloggerInterfaceFailures::nothingIsRetried()
{
    DeviceRig rig;
    rig.silence();
    QVERIFY(!rig.link.lGetSerial(nullptr));
    QVERIFY(!rig.link.lSendCommandK());
    rig.link.lWait(300);
    QCOMPARE(rig.wire(), QList<QByteArray>({"e", "k"}));
}

void TestBrumaloggerInterfaceFailures::unplugDuringAnExchange()
{
    DeviceRig rig;
    rig.disturb(once(Fault::Kind::Unplug));
    const LogLines log;
    const Stopwatch stopwatch;
    QVERIFY(!rig.link.lSendCommandK());
    QVERIFY(isWait(stopwatch.elapsed(), 75));
    QVERIFY(!rig.link.lSendCommandK());
    QVERIFY(rig.link.lIsConnected());
    QCOMPARE(otherThanReadErrors(log.all()), QStringList());
}

void TestBrumaloggerInterfaceFailures::unplugBehindAReply()
{
    DeviceRig rig;
    rig.disturb(once(Fault::Kind::UnplugAfterReply));
    const LogLines log;
    QVERIFY(rig.link.lSendCommandK());
    QVERIFY(!rig.link.lSendCommandK());
    QVERIFY(rig.link.lIsConnected());
    QCOMPARE(otherThanReadErrors(log.all()), QStringList());
}

void TestBrumaloggerInterfaceFailures::unpluggedLinkStaysConnected()
{
    DeviceRig rig;
    const LogLines log;
    rig.bench.unplug(rig.logger);
    rig.link.lWait(75);
    QVERIFY(rig.link.lIsConnected());
    QVERIFY(!rig.link.lGetSerial(nullptr));
    QVERIFY(!rig.link.lStartLogger());
    QVERIFY(rig.link.lIsConnected());
    QCOMPARE(otherThanReadErrors(log.all()), QStringList());
}

// Such a line is ready at every turn of the event loop, many thousand times in a wait, and fails each time.
void TestBrumaloggerInterfaceFailures::hungUpLineIsNotAskedAgainAndAgain()
{
    DeviceRig rig;
    QSignalSpy errors(rig.port(), &QSerialPort::errorOccurred);
    const LogLines log;
    rig.bench.unplug(rig.logger);
    for (int round = 0; round < 3; ++round)
        QVERIFY(!rig.link.lSendCommandK());
    QVERIFY(errors.count() > 0);
    QVERIFY(errors.count() < 20);
    QVERIFY(log.all().size() <= 1);
    QCOMPARE(otherThanReadErrors(log.all()), QStringList());
}

void TestBrumaloggerInterfaceFailures::readErrorIsLoggedOnly()
{
    DeviceRig rig;
    QSerialPort* port = rig.port();
    const QString message =
        QStringLiteral("\"I/O error when reading %1: %2\"").arg(port->portName(), port->errorString());
    const LogLines log;
    emit port->error(QSerialPort::ReadError);
    QCOMPARE(log.all(), QStringList({QStringLiteral("warning: ") + message}));
    QVERIFY(port->isOpen());
    QVERIFY(rig.link.lIsConnected());
    QVERIFY(rig.link.lSendCommandK());
}

void TestBrumaloggerInterfaceFailures::readErrorIsTranslated()
{
    DeviceRig rig;
    ListeningTranslator translator;
    QCoreApplication::installTranslator(&translator);
    emit rig.port()->error(QSerialPort::ReadError);
    QCoreApplication::removeTranslator(&translator);
    QVERIFY(translator.heard.contains(QStringLiteral("QObject/I/O error when reading %1: %2")));
}

void TestBrumaloggerInterfaceFailures::otherErrorsAreIgnored_data()
{
    QTest::addColumn<QSerialPort::SerialPortError>("error");
    QTest::newRow("no error") << QSerialPort::NoError;
    QTest::newRow("device not found") << QSerialPort::DeviceNotFoundError;
    QTest::newRow("permission") << QSerialPort::PermissionError;
    QTest::newRow("open") << QSerialPort::OpenError;
    QTest::newRow("not open") << QSerialPort::NotOpenError;
    QTest::newRow("parity") << QSerialPort::ParityError;
    QTest::newRow("framing") << QSerialPort::FramingError;
    QTest::newRow("break") << QSerialPort::BreakConditionError;
    QTest::newRow("write") << QSerialPort::WriteError;
    QTest::newRow("resource") << QSerialPort::ResourceError;
    QTest::newRow("unsupported") << QSerialPort::UnsupportedOperationError;
    QTest::newRow("timeout") << QSerialPort::TimeoutError;
    QTest::newRow("unknown") << QSerialPort::UnknownError;
}

void TestBrumaloggerInterfaceFailures::otherErrorsAreIgnored()
{
    QFETCH(QSerialPort::SerialPortError, error);
    DeviceRig rig;
    QSerialPort* port = rig.port();
    QSignalSpy errors(port, QOverload<QSerialPort::SerialPortError>::of(&QSerialPort::error));
    const LogLines log;
    emit port->error(error);
    QCOMPARE(errors.count(), 1);
    QCOMPARE(log.all(), QStringList());
    QVERIFY(port->isOpen());
    QVERIFY(rig.link.lIsConnected());
    QVERIFY(rig.link.lSendCommandK());
}

QTEST_MAIN(TestBrumaloggerInterfaceFailures)
#include "tst_brumaloggerinterface_failures.moc"
