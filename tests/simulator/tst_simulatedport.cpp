// A plugged logger seen from both sides: what the host reads, what the record says, and the faults in
// between.

#include "simulatedhost.h"

#include "simulator/usbbench.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

namespace {

using Kind = Fault::Kind;

Fault at(const QByteArray& command, Kind kind)
{
    Fault fault;
    fault.kind = kind;
    fault.command = command;
    return fault;
}

} // namespace

class TestSimulatedPort : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void recordsExchanges();
    void emptyTextIsAReply();
    void attachesItsModel();
    void silence();
    void late();
    void lateUntilNext();
    void piecesAreChunks();
    void piecesOfTheReply();
    void garbage();
    void overLong();
    void fixedReply();
    void emptyReplySendsNothing();
    void commandTakesEffectInSpiteOfFault();
    void unplug();
    void unplugAfterReply();
    void clearingCountsAnew();
    void clearingForgetsLateReplies();
    void announcesBeforeAndAfter();

private:
    void plan(const Fault& fault) { port->faults().add(fault); }

    std::unique_ptr<UsbBench> bench;
    SimulatedPort* port = nullptr;
    std::unique_ptr<SimulatedHost> host;
};

void TestSimulatedPort::initTestCase()
{
    QVERIFY2(UsbBench::isUsable(), "start this test under umockdev-wrapper");
}

void TestSimulatedPort::init()
{
    bench = std::make_unique<UsbBench>();
    port = bench->plug();
    QVERIFY(port != nullptr);
    host = std::make_unique<SimulatedHost>(port->portName());
    QVERIFY2(host->open(), qPrintable(host->serial.errorString()));
}

void TestSimulatedPort::cleanup()
{
    host.reset();
    bench.reset();
}

void TestSimulatedPort::recordsExchanges()
{
    QCOMPARE(host->ask("Gs"), QByteArray("300"));
    QCOMPARE(host->ask("Ss00000600"), QByteArray("ok"));
    QCOMPARE(port->commands(), QList<QByteArray>({"Gs", "Ss00000600"}));
    QCOMPARE(port->exchanges().size(), 2);
    QCOMPARE(port->exchanges()[0].reply, QByteArray("300"));
    QVERIFY(port->exchanges()[0].answered);
    QCOMPARE(port->model().settings().samplingTime, 600);
}

void TestSimulatedPort::emptyTextIsAReply()
{
    QCOMPARE(host->ask("G0"), QByteArray());
    QVERIFY(port->exchanges()[0].answered);
    QCOMPARE(host->received(), QByteArray("\r\n"));
}

void TestSimulatedPort::attachesItsModel()
{
    LoggerModel logger;
    logger.settings().firmware = QStringLiteral("1.2.0");
    logger.settings().password = QStringLiteral("secret");
    logger.settings().policies = LoggerModel::PolicyConfigPassw;
    SimulatedPort* const locked = bench->plug(logger);
    QVERIFY(locked->model().settings().locked);
}

void TestSimulatedPort::silence()
{
    plan(at("Gs", Kind::Silence));
    host->send("Gs");
    QTRY_COMPARE(port->commands().size(), 1);
    QCOMPARE(host->ask("Gd"), QByteArray("1800"));
    QVERIFY(!port->exchanges()[0].answered);
    QVERIFY(port->exchanges()[1].answered);
}

void TestSimulatedPort::late()
{
    Fault fault = at("Gs", Kind::Late);
    fault.milliseconds = 100;
    plan(fault);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(host->ask("Gs"), QByteArray("300"));
    QVERIFY2(timer.elapsed() >= 99, QByteArray::number(timer.elapsed()));
    QVERIFY(port->exchanges()[0].answered);
}

void TestSimulatedPort::lateUntilNext()
{
    plan(at("Gs", Kind::LateUntilNext));
    host->send("Gs");
    QTRY_COMPARE(port->commands().size(), 1);
    QVERIFY(!port->exchanges()[0].answered);
    host->send("Gd");
    QTRY_COMPARE(host->received(), QByteArray("300\r\n1800\r\n"));
    QCOMPARE(port->exchanges()[0].reply, QByteArray("300"));
    QCOMPARE(port->exchanges()[1].reply, QByteArray("1800"));
}

void TestSimulatedPort::piecesAreChunks()
{
    Fault fault = at("Ss", Kind::Pieces);
    fault.pieces = {"o", " ", "k", "\r\n"};
    plan(fault);
    QCOMPARE(host->ask("Ss00000600"), QByteArray("o k"));
    QCOMPARE(host->chunks, fault.pieces);
    QCOMPARE(port->exchanges()[0].reply, QByteArray("o k\r\n"));
}

void TestSimulatedPort::piecesOfTheReply()
{
    plan(at("i", Kind::Pieces));
    QCOMPARE(host->ask("i"), QByteArray("Brumalogger USB,1.1.9,1.0"));
    QCOMPARE(host->chunks, QList<QByteArray>({"B", "rumalogger USB,1.1.9,1.0\r\n"}));
}

void TestSimulatedPort::garbage()
{
    plan(at("Gs", Kind::Garbage));
    host->send("Gs");
    QTRY_VERIFY(!host->received().isEmpty());
    QVERIFY(!host->received().contains("300"));
    QCOMPARE(port->exchanges()[0].reply, host->received());
}

void TestSimulatedPort::overLong()
{
    plan(at("Gs", Kind::OverLong));
    const QByteArray reply = host->ask("Gs");
    QVERIFY(reply.startsWith("300x"));
    QVERIFY(reply.size() > 3000);
}

void TestSimulatedPort::fixedReply()
{
    Fault fault = at("Gs", Kind::Reply);
    fault.bytes = QByteArray("1\0002\r\n", 5);
    plan(fault);
    QCOMPARE(host->ask("Gs"), QByteArray("1\0002", 3));
}

void TestSimulatedPort::emptyReplySendsNothing()
{
    plan(at("Gs", Kind::Reply));
    host->send("Gs");
    QTRY_COMPARE(port->commands().size(), 1);
    QCOMPARE(host->ask("Gd"), QByteArray("1800"));
    QVERIFY(!port->exchanges()[0].answered);
}

void TestSimulatedPort::commandTakesEffectInSpiteOfFault()
{
    plan(at("Ss", Kind::Silence));
    host->send("Ss00000600");
    QTRY_COMPARE(port->model().settings().samplingTime, 600);
}

void TestSimulatedPort::unplug()
{
    plan(at("Ss", Kind::Unplug));
    QSignalSpy unplugged(port, &SimulatedPort::sUnplugged);
    QSignalSpy answered(port, &SimulatedPort::sAnswered);
    host->send("Ss00000600");
    QVERIFY(unplugged.wait());
    QCOMPARE(answered.count(), 0);
    QVERIFY(bench->ports().isEmpty());
    QTRY_VERIFY(host->isCutOff());
    QVERIFY(host->chunks.isEmpty());
}

void TestSimulatedPort::unplugAfterReply()
{
    plan(at("Gs", Kind::UnplugAfterReply));
    QSignalSpy unplugged(port, &SimulatedPort::sUnplugged);
    QCOMPARE(host->ask("Gs"), QByteArray("300"));
    QTRY_COMPARE(unplugged.count(), 1);
}

void TestSimulatedPort::clearingCountsAnew()
{
    Fault fault = at("Gs", Kind::Garbage);
    fault.occurrence = 2;
    plan(fault);
    QCOMPARE(host->ask("Gs"), QByteArray("300"));
    port->clearExchanges();
    QVERIFY(port->exchanges().isEmpty());
    QCOMPARE(host->ask("Gs"), QByteArray("300"));
    host->chunks.clear();
    host->send("Gs");
    QTRY_VERIFY(!host->received().isEmpty());
    QVERIFY(!host->received().startsWith("300"));
    QCOMPARE(port->exchanges().size(), 2);
}

void TestSimulatedPort::clearingForgetsLateReplies()
{
    plan(at("Gs", Kind::LateUntilNext));
    host->send("Gs");
    QTRY_COMPARE(port->commands().size(), 1);
    port->clearExchanges();
    host->send("Gd");
    QTRY_COMPARE(host->received(), QByteArray("300\r\n1800\r\n"));
    QCOMPARE(port->exchanges().size(), 1);
    QCOMPARE(port->exchanges()[0].reply, QByteArray("1800"));
}

void TestSimulatedPort::announcesBeforeAndAfter()
{
    QStringList events;
    connect(port, &SimulatedPort::sCommandReceived, this, [&](int exchange, const QByteArray& command) {
        events << QStringLiteral("%1 %2 %3")
                      .arg(exchange)
                      .arg(QLatin1String(command))
                      .arg(port->exchanges().last().answered);
    });
    connect(
        port, &SimulatedPort::sAnswered, this,
        [&](int exchange, const QByteArray& command, const QByteArray& reply) {
            events
                << QStringLiteral("%1 %2=%3").arg(exchange).arg(QLatin1String(command), QLatin1String(reply));
        });
    QCOMPARE(host->ask("Gs"), QByteArray("300"));
    QCOMPARE(host->ask("Gd"), QByteArray("1800"));
    QCOMPARE(events, QStringList({"1 Gs 0", "1 Gs=300", "2 Gd 0", "2 Gd=1800"}));
}

QTEST_GUILESS_MAIN(TestSimulatedPort)
#include "tst_simulatedport.moc"
