// The bytes of every command of the catalogue, what is refused without sending, and the answer "ok" to the
// rest.

#include "devicerig.h"

#include "support/testclock.h"

#include <QTest>

#include <limits>

using Link = BrumaloggerInterface;

namespace {

constexpr int usualWait = 75;
constexpr int startWait = 300;

QDateTime utc(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

struct Command
{
    const char* row;
    Operation run;
    QByteArray bytes;
};

/// Those that ask for something.
QVector<Command> questions()
{
    static int number = 0;
    static float degrees = 0;
    static bool flag = false;
    static QDateTime date;
    return {
        {"identification", [](Link& l) { return l.lGetIdentification(nullptr, nullptr, nullptr); }, "i"},
        {"identification check", [](Link& l) { return l.lCheckIdentification(); }, "i"},
        {"serial", [](Link& l) { return l.lGetSerial(nullptr); }, "e"},
        {"type", [](Link& l) { return l.lGetMultiuse(nullptr); }, "m"},
        {"validity", [](Link& l) { return l.lIsDeviceValid({}); }, "m"},
        {"date and time", [](Link& l) { return l.lGetDateTime(nullptr); }, "g"},
        {"temperatures", [](Link& l) { return l.lGetTempRange(&degrees, &degrees); }, "Gt"},
        {"sampling time", [](Link& l) { return l.lGetSamplingTime(nullptr); }, "Gs"},
        {"start delay", [](Link& l) { return l.lGetStartDelay(nullptr); }, "Gd"},
        {"button lock", [](Link& l) { return l.lGetButtonLock(nullptr); }, "Gl"},
        {"text 0", [](Link& l) { return l.lGetText(0, nullptr); }, "G0"},
        {"text 1", [](Link& l) { return l.lGetText(1, nullptr); }, "G1"},
        {"text 2", [](Link& l) { return l.lGetText(2, nullptr); }, "G2"},
        {"text 3", [](Link& l) { return l.lGetText(3, nullptr); }, "G3"},
        {"text 4", [](Link& l) { return l.lGetText(4, nullptr); }, "G4"},
        {"policies", [](Link& l) { return l.lGetPolicies(nullptr); }, "Go"},
        {"time zone", [](Link& l) { return l.lGetTimeZoneOffset(nullptr); }, "Gz"},
        {"start date", [](Link& l) { return l.lGetStartDate(&flag, &date); }, "Ga"},
        {"stop date", [](Link& l) { return l.lGetStopDate(&flag, &date); }, "Gp"},
        {"last reset", [](Link& l) { return l.lGetLastReset(&flag, &date); }, "z"},
        {"low battery", [](Link& l) { return l.lGetLowBattery(&flag); }, "l"},
        {"state", [](Link& l) { return l.lGetState(&number); }, "x"},
        {"password lock", [](Link& l) { return l.lGetLocked(&flag); }, "#"},
        {"password", [](Link& l) { return l.lTryPassword(QStringLiteral("Secret 1"), &flag); }, "?Secret 1"},
        {"values", [](Link& l) { return l.lGetValuesO(&number, &number, &number); }, "o"},
    };
}

/// Those that set the measurement up, and are done when the logger says "ok".
QVector<Command> settings()
{
    return {
        {"temperatures", [](Link& l) { return l.lSetTempRange(2, 8); }, "St0000200000008000"},
        {"temperatures a little apart", [](Link& l) { return l.lSetTempRange(5, 6.5F); },
         "St0000500000006500"},
        {"temperature below zero", [](Link& l) { return l.lSetTempRange(-20.5F, 6); }, "St-002050000006000"},
        {"temperatures below zero", [](Link& l) { return l.lSetTempRange(-20, -1.5F); },
         "St-0020000-0001500"},
        {"temperature cut down", [](Link& l) { return l.lSetTempRange(2.3F, 8); }, "St0000229900008000"},
        {"temperature cut up", [](Link& l) { return l.lSetTempRange(-2.3F, 8); }, "St-000229900008000"},
        {"shortest sampling time", [](Link& l) { return l.lSetSamplingTime(60); }, "Ss00000060"},
        {"longest sampling time", [](Link& l) { return l.lSetSamplingTime(57600); }, "Ss00057600"},
        {"shortest start delay", [](Link& l) { return l.lSetStartDelay(60); }, "Sd00000060"},
        {"longest start delay", [](Link& l) { return l.lSetStartDelay(57600); }, "Sd00057600"},
        {"button locked", [](Link& l) { return l.lSetButtonLock(true); }, "Sl1"},
        {"button free", [](Link& l) { return l.lSetButtonLock(false); }, "Sl0"},
        {"text", [](Link& l) { return l.lSetText(3, QStringLiteral("Air"), -1); }, "S3Air"},
        {"policies", [](Link& l) { return l.lSetPolicies(8195); }, "So008195"},
        {"zone east", [](Link& l) { return l.lSetTimeZoneOffset(3600); }, "Sz00003600"},
        {"zone west", [](Link& l) { return l.lSetTimeZoneOffset(-10800); }, "Sz-0010800"},
        {"zone of UTC", [](Link& l) { return l.lSetTimeZoneOffset(0); }, "Sz00000000"},
        {"start date", [](Link& l) { return l.lSetStartDate(true, utc(1900000000)); }, "Sa1900000000"},
        {"stop date", [](Link& l) { return l.lSetStopDate(true, utc(1900000000)); }, "Sp1900000000"},
        {"password", [](Link& l) { return l.lSetPassword(QStringLiteral("Secret 1")); }, "!Secret 1"},
    };
}

/// Those that set the clock or make the logger do something; likewise.
QVector<Command> actions()
{
    return {
        {"clock", [](Link& l) { return l.lSetDateTime(utc(1700000000)); }, "u1700000000"},
        {"clock early", [](Link& l) { return l.lSetDateTime(utc(12)); }, "u0000000012"},
        {"clock of 32 bits", [](Link& l) { return l.lSetDateTime(utc(2208988800)); }, "u-2085978496"},
        {"bare seconds", [](Link& l) { return l.lSetTimestamp(1700000000U); }, "u1700000000"},
        {"few bare seconds", [](Link& l) { return l.lSetTimestamp(0); }, "u0000000000"},
        {"bare seconds of 32 bits", [](Link& l) { return l.lSetTimestamp(4294967295U); }, "u-000000001"},
        {"start", [](Link& l) { return l.lStartLogger(); }, "a"},
        {"k", [](Link& l) { return l.lSendCommandK(); }, "k"},
        {"n", [](Link& l) { return l.lSendCommandN(); }, "n"},
        {"r", [](Link& l) { return l.lSendCommandR(5); }, "r0005"},
        {"r of zero", [](Link& l) { return l.lSendCommandR(0); }, "r0000"},
        {"r below zero", [](Link& l) { return l.lSendCommandR(-5); }, "r-005"},
        {"r at its largest", [](Link& l) { return l.lSendCommandR(127); }, "r0127"},
        {"r clamped from above", [](Link& l) { return l.lSendCommandR(128); }, "r0127"},
        {"r at its smallest", [](Link& l) { return l.lSendCommandR(-127); }, "r-127"},
        {"r clamped from below", [](Link& l) { return l.lSendCommandR(-300); }, "r-127"},
    };
}

void addRows(const QVector<Command>& commands)
{
    QTest::addColumn<Operation>("run");
    QTest::addColumn<QByteArray>("bytes");
    for (const Command& command : commands)
        QTest::newRow(command.row) << command.run << command.bytes;
}

} // namespace

class TestBrumaloggerInterfaceCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { rig = std::make_unique<DeviceRig>(); }
    void init() { rig->calm(); }
    void cleanupTestCase();

    void questionIsSent_data() { addRows(questions()); }
    void questionIsSent();
    void questionFailsWithoutReply_data() { addRows(questions()); }
    void questionFailsWithoutReply() { failsWithoutReply(); }
    void settingIsSentAndConfirmed_data() { addRows(settings() + actions()); }
    void settingIsSentAndConfirmed();
    void settingFailsWithoutOk_data() { addRows(settings() + actions()); }
    void settingFailsWithoutOk();
    void settingFailsWithoutReply_data() { addRows(settings() + actions()); }
    void settingFailsWithoutReply() { failsWithoutReply(); }
    void refusedWithoutSending_data();
    void refusedWithoutSending();

private:
    void failsWithoutReply();

    std::unique_ptr<DeviceRig> rig;
};

void TestBrumaloggerInterfaceCommands::cleanupTestCase()
{
    rig.reset();
    TestClock::reset();
}

// Whatever comes back: one exchange, with the usual wait.
void TestBrumaloggerInterfaceCommands::questionIsSent()
{
    QFETCH(Operation, run);
    QFETCH(QByteArray, bytes);
    rig->reply("0");
    const Stopwatch stopwatch;
    run(rig->link);
    QVERIFY(isWait(stopwatch.elapsed(), usualWait));
    QCOMPARE(rig->wire(), QList<QByteArray>({bytes}));
}

void TestBrumaloggerInterfaceCommands::settingIsSentAndConfirmed()
{
    QFETCH(Operation, run);
    QFETCH(QByteArray, bytes);
    rig->reply("ok\r\n");
    const Stopwatch stopwatch;
    QVERIFY(run(rig->link));
    QVERIFY(isWait(stopwatch.elapsed(), bytes == "a" ? startWait : usualWait));
    QCOMPARE(rig->wire(), QList<QByteArray>({bytes}));
}

void TestBrumaloggerInterfaceCommands::settingFailsWithoutOk()
{
    QFETCH(Operation, run);
    QFETCH(QByteArray, bytes);
    rig->reply("OK\r\n");
    QVERIFY(!run(rig->link));
    QCOMPARE(rig->wire(), QList<QByteArray>({bytes}));
}

// The link stays open.
void TestBrumaloggerInterfaceCommands::failsWithoutReply()
{
    QFETCH(Operation, run);
    QFETCH(QByteArray, bytes);
    rig->silence();
    QVERIFY(!run(rig->link));
    QCOMPARE(rig->wire(), QList<QByteArray>({bytes}));
    QVERIFY(rig->link.lIsConnected());
}

void TestBrumaloggerInterfaceCommands::refusedWithoutSending_data()
{
    constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
    QTest::addColumn<Operation>("run");
    const auto row = [](const char* name, const Operation& run) { QTest::newRow(name) << run; };
    row("temperatures one degree apart", [](Link& l) { return l.lSetTempRange(5, 6); });
    row("temperatures less apart", [](Link& l) { return l.lSetTempRange(-5, -4.5F); });
    row("temperatures the same", [](Link& l) { return l.lSetTempRange(5, 5); });
    row("temperatures in wrong order", [](Link& l) { return l.lSetTempRange(8, 2); });
    row("lower temperature is no number", [](Link& l) { return l.lSetTempRange(notANumber, 8); });
    row("upper temperature is no number", [](Link& l) { return l.lSetTempRange(2, notANumber); });
    row("sampling time too short", [](Link& l) { return l.lSetSamplingTime(59); });
    row("sampling time too long", [](Link& l) { return l.lSetSamplingTime(57601); });
    row("no sampling time", [](Link& l) { return l.lSetSamplingTime(0); });
    row("sampling time below zero", [](Link& l) { return l.lSetSamplingTime(-60); });
    row("start delay too short", [](Link& l) { return l.lSetStartDelay(59); });
    row("start delay too long", [](Link& l) { return l.lSetStartDelay(57601); });
    row("no start delay", [](Link& l) { return l.lSetStartDelay(0); });
    row("start delay below zero", [](Link& l) { return l.lSetStartDelay(-600); });
    row("text slot beyond the last", [](Link& l) { return l.lGetText(5, nullptr); });
    row("text slot far beyond", [](Link& l) { return l.lGetText(4294967295U, nullptr); });
}

void TestBrumaloggerInterfaceCommands::refusedWithoutSending()
{
    QFETCH(Operation, run);
    const Stopwatch stopwatch;
    QVERIFY(!run(rig->link));
    QVERIFY(isWait(stopwatch.elapsed(), 0));
    rig->link.lWait(usualWait);
    QCOMPARE(rig->wire(), QList<QByteArray>());
}

QTEST_MAIN(TestBrumaloggerInterfaceCommands)
#include "tst_brumaloggerinterface_commands.moc"
