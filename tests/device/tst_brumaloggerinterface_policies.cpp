// The policies word and the automatic dates, as read and as written.

#include "devicerig.h"
#include "storedfields.h"

#include "support/loglines.h"
#include "support/testclock.h"

#include <QTest>

namespace {

/// Asks for an automatic date, and sets one.
using Question = bool (BrumaloggerInterface::*)(bool* enabled, QDateTime* date);
using Setting = bool (BrumaloggerInterface::*)(bool enabled, const QDateTime& date);

QDateTime utc(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

} // namespace

Q_DECLARE_METATYPE(Question)
Q_DECLARE_METATYPE(Setting)

class TestBrumaloggerInterfacePolicies : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { rig = std::make_unique<DeviceRig>(); }
    void init() { rig->calm(); }
    void cleanupTestCase();

    void flagsOfTheWord();
    void readWord_data();
    void readWord();
    void readWordWithoutPointer();
    void readWordFails_data();
    void readWordFails();
    void writtenWord_data();
    void writtenWord();
    void readDate_data();
    void readDate();
    void disabledDateStays_data();
    void disabledDateStays();
    void readDateFails_data();
    void readDateFails();
    void writtenDate_data();
    void writtenDate();

private:
    std::unique_ptr<DeviceRig> rig;
};

void TestBrumaloggerInterfacePolicies::cleanupTestCase()
{
    rig.reset();
    TestClock::reset();
}

void TestBrumaloggerInterfacePolicies::flagsOfTheWord()
{
    QCOMPARE(static_cast<int>(PolicyStartButton), 1);
    QCOMPARE(static_cast<int>(PolicyStartSoftware), 2);
    QCOMPARE(static_cast<int>(PolicyConfigPassw), 4);
    QCOMPARE(static_cast<int>(PolicyStopButton), 256);
    QCOMPARE(static_cast<int>(PolicyStopUSBAttach), 512);
    QCOMPARE(static_cast<int>(PolicyPasswOnce), 1024);
    QCOMPARE(static_cast<int>(PolicyPasswAlways), 2048);
    QCOMPARE(static_cast<int>(PolicyResetDone), 8192);
}

void TestBrumaloggerInterfacePolicies::readWord_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("word");
    QTest::newRow("some flags") << QByteArray("8195\r\n") << 8195;
    QTest::newRow("six digits") << QByteArray("000259") << 259;
    QTest::newRow("none") << QByteArray("0") << 0;
    QTest::newRow("all") << QByteArray("65535") << 65535;
    QTest::newRow("a flag without a name") << QByteArray("275") << 275;
    QTest::newRow("more than 16 bits") << QByteArray("65537") << 65537;
    QTest::newRow("below zero") << QByteArray("-1") << -1;
}

void TestBrumaloggerInterfacePolicies::readWord()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, word);
    rig->reply(reply);
    const LogLines log;
    int read = 1234;
    QVERIFY(rig->link.lGetPolicies(&read));
    QCOMPARE(read, word);
    QCOMPARE(log.all(), QStringList({QStringLiteral("debug: Brumalogger current policies: %1").arg(word)}));
}

void TestBrumaloggerInterfacePolicies::readWordWithoutPointer()
{
    rig->reply("8195");
    const LogLines log;
    QVERIFY(rig->link.lGetPolicies(nullptr));
    QCOMPARE(log.all(), QStringList({QStringLiteral("debug: Brumalogger current policies: 8195")}));
}

void TestBrumaloggerInterfacePolicies::readWordFails_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("a text") << QByteArray("error: locked");
    QTest::newRow("not decimal") << QByteArray("0x2003");
    QTest::newRow("too large") << QByteArray("2147483648");
    QTest::newRow("a line end only") << QByteArray("\r\n");
    QTest::newRow("nothing") << QByteArray();
}

void TestBrumaloggerInterfacePolicies::readWordFails()
{
    QFETCH(QByteArray, reply);
    rig->reply("8195");
    QVERIFY(rig->link.lGetPolicies(nullptr));
    QCOMPARE(rig->link.*memberOf(Policies()), 8195);
    rig->reply(reply);
    const LogLines log;
    int read = 1234;
    QVERIFY(!rig->link.lGetPolicies(&read));
    QCOMPARE(read, 1234);
    QCOMPARE(rig->link.*memberOf(Policies()), reply.trimmed().isEmpty() ? 8195 : 0);
    QCOMPARE(log.all(), QStringList());
}

void TestBrumaloggerInterfacePolicies::writtenWord_data()
{
    QTest::addColumn<int>("word");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("logged");
    QTest::newRow("some flags") << 8195 << QByteArray("So008195") << 8195;
    QTest::newRow("none") << 0 << QByteArray("So000000") << 0;
    QTest::newRow("all") << 65535 << QByteArray("So065535") << 65535;
    QTest::newRow("just more than 16 bits") << 65536 << QByteArray("So000000") << 0;
    QTest::newRow("more than 16 bits") << 65536 + 259 << QByteArray("So000259") << 259;
}

void TestBrumaloggerInterfacePolicies::writtenWord()
{
    QFETCH(int, word);
    QFETCH(QByteArray, bytes);
    QFETCH(int, logged);
    rig->reply("ok");
    const LogLines log;
    QVERIFY(rig->link.lSetPolicies(word));
    QCOMPARE(rig->wire(), QList<QByteArray>({bytes}));
    QCOMPARE(log.all(), QStringList({QStringLiteral("debug: Writing policies: %1").arg(logged)}));
}

void TestBrumaloggerInterfacePolicies::readDate_data()
{
    QTest::addColumn<Question>("ask");
    QTest::addColumn<QDateTime>("before");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("logged");
    const auto rows = [](const char* name, const QDateTime& before, const QByteArray& reply,
                         const char* logged) {
        QTest::addRow("start: %s", name)
            << Question(&BrumaloggerInterface::lGetStartDate) << before << reply << logged;
        QTest::addRow("stop: %s", name)
            << Question(&BrumaloggerInterface::lGetStopDate) << before << reply << logged;
    };
    const char* const inUtc = "QDateTime(2030-03-17 17:46:40.000 UTC Qt::UTC)";
    rows("over a null one", {}, "1900000000\r\n", inUtc);
    rows("over one in UTC", utc(1), "1900000000", inUtc);
    rows("over one in local time", utc(1).toLocalTime(), "1900000000", inUtc);
    rows("over one east of UTC", utc(1).toOffsetFromUtc(7200), "1900000000", inUtc);
    rows("before the epoch", utc(1), "-1", "QDateTime(1969-12-31 23:59:59.000 UTC Qt::UTC)");
}

void TestBrumaloggerInterfacePolicies::readDate()
{
    QFETCH(Question, ask);
    QFETCH(QDateTime, before);
    QFETCH(QByteArray, reply);
    QFETCH(QString, logged);
    const int seconds = reply.trimmed().toInt();
    rig->reply(reply);
    const LogLines log;
    bool enabled = false;
    QDateTime date = before;
    QVERIFY((rig->link.*ask)(&enabled, &date));
    QVERIFY(enabled);
    QCOMPARE(date, utc(seconds));
    QCOMPARE(date.offsetFromUtc(), 0);
    QCOMPARE(date.time(), utc(seconds).time());
    QCOMPARE(log.all(),
             QStringList({QStringLiteral("debug: Got STA/STO timestamp: %1").arg(seconds),
                          QStringLiteral("debug: Setting QDateTime: %1  ( %2 )").arg(logged).arg(seconds)}));
}

void TestBrumaloggerInterfacePolicies::disabledDateStays_data()
{
    QTest::addColumn<Question>("ask");
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("start") << Question(&BrumaloggerInterface::lGetStartDate) << QByteArray("0\r\n");
    QTest::newRow("start, ten digits")
        << Question(&BrumaloggerInterface::lGetStartDate) << QByteArray("0000000000");
    QTest::newRow("stop") << Question(&BrumaloggerInterface::lGetStopDate) << QByteArray("0\r\n");
}

void TestBrumaloggerInterfacePolicies::disabledDateStays()
{
    QFETCH(Question, ask);
    QFETCH(QByteArray, reply);
    rig->reply(reply);
    const LogLines log;
    const QDateTime before = utc(1600000000).toOffsetFromUtc(7200);
    bool enabled = true;
    QDateTime date = before;
    QVERIFY((rig->link.*ask)(&enabled, &date));
    QVERIFY(!enabled);
    QCOMPARE(date, before);
    QCOMPARE(date.offsetFromUtc(), 7200);
    QCOMPARE(log.all(), QStringList());
}

void TestBrumaloggerInterfacePolicies::readDateFails_data()
{
    QTest::addColumn<Question>("ask");
    QTest::addColumn<QByteArray>("reply");
    const auto rows = [](const char* name, const QByteArray& reply) {
        QTest::addRow("start: %s", name) << Question(&BrumaloggerInterface::lGetStartDate) << reply;
        QTest::addRow("stop: %s", name) << Question(&BrumaloggerInterface::lGetStopDate) << reply;
    };
    rows("a text", "never");
    rows("too large", "2147483648");
    rows("a line end only", "\r\n");
    rows("nothing", {});
}

void TestBrumaloggerInterfacePolicies::readDateFails()
{
    QFETCH(Question, ask);
    QFETCH(QByteArray, reply);
    rig->reply(reply);
    bool enabled = false;
    QDateTime date = utc(1);
    QVERIFY(!(rig->link.*ask)(&enabled, &date));
    QCOMPARE(date, utc(1));
}

void TestBrumaloggerInterfacePolicies::writtenDate_data()
{
    QTest::addColumn<Setting>("set");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QDateTime>("date");
    QTest::addColumn<QByteArray>("bytes");
    const auto rows = [](const char* name, bool enabled, const QDateTime& date, const QByteArray& number) {
        QTest::addRow("start: %s", name)
            << Setting(&BrumaloggerInterface::lSetStartDate) << enabled << date << "Sa" + number;
        QTest::addRow("stop: %s", name)
            << Setting(&BrumaloggerInterface::lSetStopDate) << enabled << date << "Sp" + number;
    };
    rows("enabled", true, utc(1900000000), "1900000000");
    rows("enabled, ten digits", true, utc(86400), "0000086400");
    rows("enabled, in another zone", true, utc(1900000000).toOffsetFromUtc(7200), "1900000000");
    rows("enabled, cut to 32 bits", true, utc(4000000000), "-294967296");
    rows("disabled", false, utc(1900000000), "0000000000");
    rows("disabled without a date", false, {}, "0000000000");
}

void TestBrumaloggerInterfacePolicies::writtenDate()
{
    QFETCH(Setting, set);
    QFETCH(bool, enabled);
    QFETCH(QDateTime, date);
    QFETCH(QByteArray, bytes);
    rig->reply("ok");
    const LogLines log;
    QVERIFY((rig->link.*set)(enabled, date));
    QCOMPARE(rig->wire(), QList<QByteArray>({bytes}));
    const qint64 seconds = enabled ? date.toSecsSinceEpoch() : 0;
    QCOMPARE(log.all(), QStringList({QStringLiteral("debug: Setting STA/STO timestamp: %1").arg(seconds)}));
}

QTEST_MAIN(TestBrumaloggerInterfacePolicies)
#include "tst_brumaloggerinterface_policies.moc"
