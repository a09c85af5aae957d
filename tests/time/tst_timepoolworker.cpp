// One query of one time server: what is asked, what counts as an answer, what is reported and logged.

#include "network/ntpresponder.h"
#include "time/timepoolworker.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const QHostAddress serverAddress(QStringLiteral("127.1.0.2"));
const QString serverName = QStringLiteral("time.nist.gov");
const QDateTime reference(QDate(2021, 5, 6), QTime(7, 8, 9, 250), Qt::UTC);
const QDateTime transmitted(QDate(2022, 5, 6), QTime(7, 8, 9), Qt::UTC);

/// An answer whose server's clock was set at @p reference, and shows another time now.
NtpAnswer answerOf(const QDateTime& reference)
{
    NtpPacket packet = NtpPacket::at(transmitted);
    packet.reference = ntpTimestamp(reference);
    return NtpAnswer::packet(packet);
}

} // namespace

class TestTimePoolWorker : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void answerIsReportedWithItsReferenceTime();
    void timeIsLocal();
    void firstRequestGoesOutAtOnce();
    void requestsAreRepeatedUntilTheAnswer();
    void secondAnswerIsIgnored();
    void answerToARequestBeforeCounts();
    void strangersAnswerCounts();
    void unusableAnswerCounts();
    void shortDatagramDoesNotEndTheQuery();
    void onlyTheFirstAddressIsAsked();
    void failedLookUpDoesNothing_data();
    void failedLookUpDoesNothing();
    void nextQueryOfTheSameWorker();
    void queryInsideTheReport();
    void answerAfterTheEndIsIgnored();
    void answerToTheQueryBeforeCountsWhileTheNextIsLookedUp();
    void queryIsLogged();

private:
    bool reported(int times = 1)
    {
        return QTest::qWaitFor([=] { return success->count() >= times; }, 15000);
    }
    QDateTime reportedTime(int index = 0) const { return success->at(index).at(0).toDateTime(); }
    bool requested(int times)
    {
        return QTest::qWaitFor([=] { return server->requests().size() >= times; }, 15000);
    }
    void announce(const QHostInfo& info)
    {
        QVERIFY(QMetaObject::invokeMethod(worker.get(), "plOnServerInfo", Q_ARG(QHostInfo, info)));
    }

    std::unique_ptr<NtpResponder> server;
    std::unique_ptr<TimePoolWorker> worker;
    std::unique_ptr<QSignalSpy> success;
    std::unique_ptr<QSignalSpy> timeout;
};

void TestTimePoolWorker::init()
{
    server = std::make_unique<NtpResponder>();
    QVERIFY2(server->listen(serverAddress), qPrintable(server->errorString()));
    worker = std::make_unique<TimePoolWorker>(nullptr);
    success = std::make_unique<QSignalSpy>(worker.get(), &TimePoolWorker::sQuerySuccesful);
    timeout = std::make_unique<QSignalSpy>(worker.get(), &TimePoolWorker::sQueryTimeout);
}

void TestTimePoolWorker::cleanup()
{
    success.reset();
    timeout.reset();
    worker.reset();
    server.reset();
}

void TestTimePoolWorker::answerIsReportedWithItsReferenceTime()
{
    server->setAnswer(answerOf(reference));
    worker->query(serverName);
    QVERIFY(reported());
    QCOMPARE(reportedTime().toUTC(), reference);
    QCOMPARE(timeout->count(), 0);
}

void TestTimePoolWorker::timeIsLocal()
{
    server->setAnswer(answerOf(reference));
    worker->query(serverName);
    QVERIFY(reported());
    QCOMPARE(reportedTime().timeSpec(), Qt::LocalTime);
}

void TestTimePoolWorker::firstRequestGoesOutAtOnce()
{
    QHostInfo info;
    info.setAddresses({serverAddress});
    QTest::ignoreMessage(QtDebugMsg, R"([PoolWorker] Emitting NTP request against "127.1.0.2")");
    announce(info);
    worker.reset(); // nothing can tick any more
    QVERIFY(requested(1));
}

void TestTimePoolWorker::requestsAreRepeatedUntilTheAnswer()
{
    server->setPlan({NtpAnswer::silence(), NtpAnswer::silence(), answerOf(reference)});
    worker->query(serverName);
    QVERIFY(reported());
    QCOMPARE(server->requests().size(), 3);
    for (const NtpRequest& request : server->requests()) {
        QCOMPARE(request.bytes.size(), 48);
        QCOMPARE(request.bytes.at(0), '\x23');
    }
    const qint64 between = server->requests().at(0).arrival.msecsTo(server->requests().at(2).arrival);
    QVERIFY2(between >= 1500, qPrintable(QString::number(between)));
}

void TestTimePoolWorker::secondAnswerIsIgnored()
{
    server->setAnswer(answerOf(reference).times(2));
    worker->query(serverName);
    QVERIFY(reported());
    // The next query's answers come behind the rest of this one's.
    worker->query(serverName);
    QVERIFY(reported(2));
    QCOMPARE(server->requests().size(), 2);
}

void TestTimePoolWorker::answerToARequestBeforeCounts()
{
    server->setPlan({answerOf(reference).later(), NtpAnswer::silence()});
    worker->query(serverName);
    QVERIFY(requested(2));
    server->release();
    QVERIFY(reported());
    QCOMPARE(reportedTime().toUTC(), reference);
}

void TestTimePoolWorker::strangersAnswerCounts()
{
    server->setAnswer(answerOf(reference).from(QHostAddress(QStringLiteral("127.1.0.5")), 4321));
    worker->query(serverName);
    QVERIFY(reported());
    QCOMPARE(reportedTime().toUTC(), reference);
}

void TestTimePoolWorker::unusableAnswerCounts()
{
    server->setAnswer(NtpAnswer::datagram(QByteArray(48, '\0')));
    worker->query(serverName);
    QVERIFY(reported());
    QCOMPARE(reportedTime().toUTC(), QDateTime(QDate(1900, 1, 1), QTime(0, 0), Qt::UTC));
}

void TestTimePoolWorker::shortDatagramDoesNotEndTheQuery()
{
    server->setPlan({NtpAnswer::datagram(QByteArray(47, 'x')), answerOf(reference)});
    worker->query(serverName);
    QVERIFY(reported());
    QCOMPARE(server->requests().size(), 2);
    QCOMPARE(reportedTime().toUTC(), reference);
}

void TestTimePoolWorker::onlyTheFirstAddressIsAsked()
{
    NtpResponder second;
    QVERIFY2(second.listen(QHostAddress(QStringLiteral("127.1.0.3"))), qPrintable(second.errorString()));
    second.setAnswer(answerOf(transmitted));
    server->setPlan({NtpAnswer::silence(), answerOf(reference)});

    QHostInfo info;
    info.setAddresses({serverAddress, QHostAddress(QStringLiteral("127.1.0.3"))});
    worker->query(QStringLiteral("nowhere.invalid"));
    announce(info);
    QVERIFY(reported());
    QCOMPARE(reportedTime().toUTC(), reference);
    QVERIFY(second.requests().isEmpty());
}

void TestTimePoolWorker::failedLookUpDoesNothing_data()
{
    QTest::addColumn<QHostInfo>("info");

    QHostInfo failed;
    failed.setError(QHostInfo::HostNotFound);
    failed.setAddresses({QHostAddress::LocalHost});
    QTest::newRow("not found") << failed;
    QTest::newRow("found to be nothing") << QHostInfo();
}

void TestTimePoolWorker::failedLookUpDoesNothing()
{
    QFETCH(QHostInfo, info);
    NtpResponder nobody;
    QVERIFY2(nobody.listen(QHostAddress(QHostAddress::LocalHost)), qPrintable(nobody.errorString()));
    server->setPlan({NtpAnswer::silence(), answerOf(reference)});
    worker->query(serverName);
    QVERIFY(requested(1));
    // Neither the address nor the timers of the query that runs are touched.
    announce(info);
    QVERIFY(reported());
    QCOMPARE(server->requests().size(), 2);
    QVERIFY(nobody.requests().isEmpty());
}

void TestTimePoolWorker::nextQueryOfTheSameWorker()
{
    server->setPlan({answerOf(reference), answerOf(reference.addDays(1))});
    worker->query(serverName);
    QVERIFY(reported());
    worker->query(serverName);
    QVERIFY(reported(2));
    QCOMPARE(reportedTime(1).toUTC(), reference.addDays(1));
}

void TestTimePoolWorker::queryInsideTheReport()
{
    server->setPlan({answerOf(reference), answerOf(reference.addDays(1))});
    auto again = std::make_unique<QObject>();
    connect(worker.get(), &TimePoolWorker::sQuerySuccesful, again.get(), [&] {
        again.reset();
        worker->query(serverName);
    });
    worker->query(serverName);
    QVERIFY(reported(2));
    QCOMPARE(reportedTime(1).toUTC(), reference.addDays(1));
}

void TestTimePoolWorker::answerAfterTheEndIsIgnored()
{
    server->setPlan({answerOf(reference.addDays(1)).later(), answerOf(reference)});
    worker->query(serverName);
    QVERIFY(reported());
    server->release();

    // Another worker's whole query takes longer than the way of an answer that was sent before.
    TimePoolWorker other(nullptr);
    QSignalSpy otherDone(&other, &TimePoolWorker::sQuerySuccesful);
    other.query(serverName);
    QVERIFY(otherDone.wait());
    QCOMPARE(success->count(), 1);
    QCOMPARE(reportedTime().toUTC(), reference);
}

void TestTimePoolWorker::answerToTheQueryBeforeCountsWhileTheNextIsLookedUp()
{
    server->setPlan({answerOf(reference.addDays(1)).later(), answerOf(reference)});
    worker->query(serverName);
    QVERIFY(reported());
    worker->query(QStringLiteral("nowhere.invalid"));
    server->release();
    QVERIFY(reported(2));
    QCOMPARE(reportedTime(1).toUTC(), reference.addDays(1));
}

void TestTimePoolWorker::queryIsLogged()
{
    server->setAnswer(answerOf(reference));
    QTest::ignoreMessage(QtDebugMsg, R"([PoolWorker] Querying: "time.nist.gov")");
    QTest::ignoreMessage(QtDebugMsg, R"([PoolWorker] Got HostInfo: "127.1.0.2")");
    QTest::ignoreMessage(QtDebugMsg, R"([PoolWorker] Emitting NTP request against "127.1.0.2")");
    QString reply;
    QDebug(&reply) << "[PoolWorker] Got NTP reply:" << reference.toLocalTime();
    QTest::ignoreMessage(QtDebugMsg, qPrintable(reply.trimmed()));
    worker->query(serverName);
    QVERIFY(reported());
}

QTEST_GUILESS_MAIN(TestTimePoolWorker)
#include "tst_timepoolworker.moc"
