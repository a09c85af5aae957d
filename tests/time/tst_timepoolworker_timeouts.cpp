// Queries that nobody answers, and look-ups that take their time. One wait of two time-outs serves all of
// them.

#include "network/ntpresponder.h"
#include "time/timepoolworker.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <memory>
#include <utility>
#include <vector>

namespace {

const QDateTime reference(QDate(2021, 5, 6), QTime(7, 8, 9), Qt::UTC);
constexpr int queryTimeout = 10000;
constexpr int wellBeforeTimeout = 7000;
constexpr int justBeforeTimeout = 9000;
constexpr int afterTimeout = 12000;
constexpr int margin = queryTimeout / 20; // of the toolkit's coarse timers
constexpr int twoMargins = 2 * margin;

/// A query of a host, and everything that its worker reported, with the moments since the query.
class Query
{
public:
    explicit Query(QString host)
        : host(std::move(host))
    {
        QObject::connect(&worker, &TimePoolWorker::sQuerySuccesful, &worker, [this](const QDateTime& time) {
            times.append(time);
            moments.append(clock.elapsed());
        });
        QObject::connect(&worker, &TimePoolWorker::sQueryTimeout, &worker, [this] {
            timeouts++;
            moments.append(clock.elapsed());
        });
    }
    void start()
    {
        clock.start();
        worker.query(host);
    }
    /// Lets the look-up come out after @p msecs, with @p address.
    void resolveLate(int msecs, const QHostAddress& address)
    {
        lookUp.setSingleShot(true);
        lookUp.setTimerType(Qt::PreciseTimer);
        QObject::connect(&lookUp, &QTimer::timeout, &worker, [this, address] {
            QHostInfo info;
            info.setAddresses({address});
            QMetaObject::invokeMethod(&worker, "plOnServerInfo", Q_ARG(QHostInfo, info));
        });
        lookUp.start(msecs);
    }
    bool isSilent() const { return moments.isEmpty(); }
    /// One time-out, @p msecs after the query.
    bool timedOutOnce(int msecs) const
    {
        return timeouts == 1 && times.isEmpty() && qAbs(moments.constFirst() - msecs) <= twoMargins;
    }

private:
    QString host;
    QElapsedTimer clock;
    QTimer lookUp;

public:
    TimePoolWorker worker;
    QList<QDateTime> times;
    QList<qint64> moments;
    int timeouts = 0;
};

/// A server on an address of its own.
class Server : public NtpResponder
{
public:
    Server(const QString& address, const NtpAnswer& answer)
        : address(address)
    {
        setAnswer(answer);
    }
    bool open() { return listen(address); }

    const QHostAddress address;
};

} // namespace

class TestTimePoolWorkerTimeouts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void unresolvedHostIsNeverReported();
    void oddNamesAreNeverReported();
    void silentHostTimesOutOnce();
    void blackHoleTimesOutOnce();
    void lateLookUpShortensTheWait();
    void lateLookUpStillGetsAnAnswer();
    void lookUpAfterTheTimeoutWaitsForTheNext();
    void lookUpAfterTheTimeoutStillGetsAnAnswer();
    void timeoutIsLogged();

private:
    /// Each was answered at its first request and sent no more.
    static constexpr int answeredQueries = 2;

    Server silent{QStringLiteral("127.1.0.1"), NtpAnswer::silence()};
    Server silentToo{QStringLiteral("127.1.0.2"), NtpAnswer::silence()};
    Server silentThree{QStringLiteral("127.1.0.3"), NtpAnswer::silence()};
    Server talkative{QStringLiteral("127.1.0.4"), NtpAnswer::packet(NtpPacket::at(reference))};

    Query unresolved{QStringLiteral("nowhere.invalid")};
    Query ofSilent{QStringLiteral("time.google.com")};
    Query blackHole{QStringLiteral("silent.test")};
    Query slow{QStringLiteral("slow.invalid")};
    Query slowAnswered{QStringLiteral("slow-answered.invalid")};
    Query stuck{QStringLiteral("stuck.invalid")};
    Query stuckAnswered{QStringLiteral("stuck-answered.invalid")};
    std::vector<std::unique_ptr<Query>> oddNames;
};

void TestTimePoolWorkerTimeouts::initTestCase()
{
    for (Server* server : {&silent, &silentToo, &silentThree, &talkative})
        QVERIFY2(server->open(), qPrintable(server->errorString()));
    for (const QString& name :
         {QString(), QStringLiteral(" "), QStringLiteral("time google com"),
          QStringLiteral("time.google.com (Recommended)"), QString(300, QLatin1Char('a')),
          QStringLiteral("zeit-fühler.invalid"), QStringLiteral("..")})
        oddNames.push_back(std::make_unique<Query>(name));

    slow.resolveLate(justBeforeTimeout, silentToo.address);
    slowAnswered.resolveLate(wellBeforeTimeout, talkative.address);
    stuck.resolveLate(afterTimeout, silentThree.address);
    stuckAnswered.resolveLate(afterTimeout, talkative.address);
    for (Query* query : {&unresolved, &ofSilent, &blackHole, &slow, &slowAnswered, &stuck, &stuckAnswered})
        query->start();
    for (const auto& query : oddNames)
        query->start();

    // The last of the told reports comes with the second tick of a query's time-out.
    QVERIFY(QTest::qWaitFor([this] { return stuck.timeouts > 0; }, 3 * queryTimeout));
    QTest::qWait(twoMargins);
}

void TestTimePoolWorkerTimeouts::unresolvedHostIsNeverReported()
{
    QVERIFY(unresolved.isSilent());
}

void TestTimePoolWorkerTimeouts::oddNamesAreNeverReported()
{
    for (const auto& query : oddNames)
        QVERIFY(query->isSilent());
}

void TestTimePoolWorkerTimeouts::silentHostTimesOutOnce()
{
    QVERIFY(ofSilent.timedOutOnce(queryTimeout));
    QVERIFY2(qAbs(silent.requests().size() - 10) <= 1, qPrintable(QString::number(silent.requests().size())));
}

void TestTimePoolWorkerTimeouts::blackHoleTimesOutOnce()
{
    QVERIFY(blackHole.timedOutOnce(queryTimeout));
}

void TestTimePoolWorkerTimeouts::lateLookUpShortensTheWait()
{
    QVERIFY(slow.timedOutOnce(queryTimeout));
    QVERIFY(silentToo.requests().size() <= 2);
    QVERIFY(!silentToo.requests().isEmpty());
}

void TestTimePoolWorkerTimeouts::lateLookUpStillGetsAnAnswer()
{
    QCOMPARE(slowAnswered.timeouts, 0);
    QCOMPARE(slowAnswered.times, QList<QDateTime>({reference}));
    QVERIFY(slowAnswered.moments.constFirst() >= wellBeforeTimeout);
    QCOMPARE(talkative.requests().size(), answeredQueries);
}

void TestTimePoolWorkerTimeouts::lookUpAfterTheTimeoutWaitsForTheNext()
{
    QVERIFY(stuck.timedOutOnce(2 * queryTimeout));
    const auto expected = (2 * queryTimeout - afterTimeout) / 1000;
    QVERIFY2(qAbs(silentThree.requests().size() - expected) <= 1,
             qPrintable(QString::number(silentThree.requests().size())));
}

void TestTimePoolWorkerTimeouts::lookUpAfterTheTimeoutStillGetsAnAnswer()
{
    QCOMPARE(stuckAnswered.timeouts, 0);
    QCOMPARE(stuckAnswered.times, QList<QDateTime>({reference}));
    QCOMPARE(talkative.requests().size(), answeredQueries);
}

void TestTimePoolWorkerTimeouts::timeoutIsLogged()
{
    TimePoolWorker worker(nullptr);
    worker.query(QStringLiteral("time.google.com"));
    QVERIFY(QTest::qWaitFor(
        [this, before = silent.requests().size()] { return silent.requests().size() > before; }));
    QTest::ignoreMessage(QtDebugMsg, R"([PoolWorker] Timeout for "time.google.com")");
    QVERIFY(QMetaObject::invokeMethod(&worker, "plTimeout"));
}

QTEST_GUILESS_MAIN(TestTimePoolWorkerTimeouts)
#include "tst_timepoolworker_timeouts.moc"
