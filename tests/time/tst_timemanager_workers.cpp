// What becomes of a pool's workers: when the next query drops them, in the middle of a report, at the
// manager's end.

#include "network/ntpresponder.h"
#include "timedesk.h"

#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <QUdpSocket>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

const QString serverName = QStringLiteral("time.nist.gov");

/// Whether somebody has @p port: here that is the worker that asked from it, as long as it lives.
bool isTaken(quint16 port)
{
    QUdpSocket socket;
    return !socket.bind(QHostAddress::Any, port, QAbstractSocket::DontShareAddress);
}

NtpAnswer answerAtSecond(int second)
{
    return NtpAnswer::packet(NtpPacket::at(atSecond(second)));
}

/// Queries, each of which is started from an event loop inside the report of the one before.
class Chain
{
public:
    Chain(TimeManager& manager, const NtpResponder& server, QStringList kinds)
        : manager(manager)
        , server(server)
        , kinds(std::move(kinds))
    {
        QObject::connect(&manager, &TimeManager::sQuerySuccesful, &manager, [this] { goOn(); });
    }
    void startNext()
    {
        started++;
        if (kinds.at(started - 1) == QLatin1String("pool"))
            manager.queryPool({serverName});
        else
            manager.queryServer(serverName);
    }
    /// The number of reports that have come to their end.
    int ended() const { return over; }
    /// Whether each worker was there as long as one of the reports was under way.
    bool workersStayed() const { return stayed; }

private:
    void goOn()
    {
        if (started < kinds.size())
            awaitNext();
        const auto lives = [](const NtpRequest& request) { return isTaken(request.senderPort); };
        stayed = stayed && std::all_of(server.requests().begin(), server.requests().end(), lives);
        over++;
    }
    void awaitNext()
    {
        QEventLoop loop;
        QObject::connect(&manager, &TimeManager::sQuerySuccesful, &loop, &QEventLoop::quit);
        QTimer next;
        next.setSingleShot(true);
        QObject::connect(&next, &QTimer::timeout, &loop, [this] { startNext(); });
        next.start(0);
        loop.exec();
        // Whatever was given up for deletion deeper inside goes now.
        QCoreApplication::processEvents();
    }

    TimeManager& manager;
    const NtpResponder& server;
    const QStringList kinds;
    int started = 0;
    int over = 0;
    bool stayed = true;
};

} // namespace

class TestTimeManagerWorkers : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void newPoolForgetsTheOldOne();
    void queryStartedInsideTheReport();
    void queriesFromLoopsInsideTheReports_data();
    void queriesFromLoopsInsideTheReports();
    void managerGoesDuringAQuery();

private:
    std::unique_ptr<NtpResponder> server;
};

void TestTimeManagerWorkers::init()
{
    server = std::make_unique<NtpResponder>();
    QVERIFY2(server->listen(QHostAddress(QStringLiteral("127.1.0.2"))), qPrintable(server->errorString()));
}

void TestTimeManagerWorkers::newPoolForgetsTheOldOne()
{
    server->setPlan({answerAtSecond(0).later(), answerAtSecond(0)});
    Desk desk;
    desk.manager.queryPool({serverName, QStringLiteral("nowhere.invalid")});
    QVERIFY(QTest::qWaitFor([&] { return !server->requests().isEmpty(); }));
    QVERIFY(isTaken(server->requests().constFirst().senderPort));
    desk.manager.queryPool(silentHosts(2));
    QVERIFY(!isTaken(server->requests().constFirst().senderPort));
    server->release();

    // A query of another server takes longer than the way of an answer that was sent before.
    TimePoolWorker other(nullptr);
    QSignalSpy otherDone(&other, &TimePoolWorker::sQuerySuccesful);
    other.query(serverName);
    QVERIFY(otherDone.wait());
    QCOMPARE(desk.outcome(), QStringLiteral("0 succesful, 0 timed out; querying, pool"));
}

void TestTimeManagerWorkers::queryStartedInsideTheReport()
{
    server->setPlan({answerAtSecond(1).times(3), answerAtSecond(5)});
    Desk desk;
    int reports = 0;
    connect(&desk.manager, &TimeManager::sQuerySuccesful, this, [&] {
        if (++reports == 1) {
            desk.manager.queryPool({serverName});
            QCoreApplication::processEvents();
        }
    });
    desk.manager.queryPool({serverName});
    QVERIFY(QTest::qWaitFor([&] { return reports == 2; }));
    QVERIFY(desk.now() >= atSecond(5));
}

void TestTimeManagerWorkers::queriesFromLoopsInsideTheReports_data()
{
    QTest::addColumn<QStringList>("kinds");
    QTest::addColumn<int>("dropped"); // the query whose worker the last one drops

    const QString pool = QStringLiteral("pool");
    const QString single = QStringLiteral("single");
    QTest::newRow("pool in pool") << QStringList{pool, pool} << 0;
    QTest::newRow("pool in pool in single") << QStringList{single, pool, pool} << 1;
    QTest::newRow("pool in single in pool") << QStringList{pool, single, pool} << 0;
}

void TestTimeManagerWorkers::queriesFromLoopsInsideTheReports()
{
    QFETCH(QStringList, kinds);
    QFETCH(int, dropped);
    server->setAnswer(answerAtSecond(0));
    TimeManager manager(nullptr);
    Chain chain(manager, *server, kinds);
    chain.startNext();
    QVERIFY(QTest::qWaitFor([&] { return chain.ended() == kinds.size(); }));
    QVERIFY(chain.workersStayed());
    QCOMPARE(server->requests().size(), kinds.size());
    QVERIFY(QTest::qWaitFor([&] { return !isTaken(server->requests().at(dropped).senderPort); }));
}

void TestTimeManagerWorkers::managerGoesDuringAQuery()
{
    auto desk = std::make_unique<Desk>();
    desk->manager.queryPool({serverName, QStringLiteral("nowhere.invalid")});
    QVERIFY(QTest::qWaitFor([&] { return !server->requests().isEmpty(); }));
    const NtpRequest request = server->requests().constFirst();
    QVERIFY(isTaken(request.senderPort));
    desk.reset();
    QVERIFY(!isTaken(request.senderPort));
}

QTEST_GUILESS_MAIN(TestTimeManagerWorkers)
#include "tst_timemanager_workers.moc"
