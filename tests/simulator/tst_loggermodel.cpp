// How the simulated logger lives: firmware, lock, state and clock.

#include "simulator/loggermodel.h"

#include <QTest>

Q_DECLARE_METATYPE(LoggerModel::State)

namespace {

using State = LoggerModel::State;

LoggerModel extendedLogger()
{
    LoggerModel logger;
    logger.settings().firmware = QStringLiteral("1.2.0");
    return logger;
}

LoggerModel lockedLogger()
{
    LoggerModel logger = extendedLogger();
    logger.settings().password = QStringLiteral("secret");
    logger.settings().policies |= LoggerModel::PolicyConfigPassw;
    logger.attach();
    return logger;
}

} // namespace

class TestLoggerModel : public QObject
{
    Q_OBJECT

private slots:
    void firmwareLevel_data();
    void firmwareLevel();
    void lockedRefuses_data();
    void lockedRefuses();
    void passwordUnlocks();
    void emptyPasswordNeverLocks();
    void lockAtAttach_data();
    void lockAtAttach();
    void firstUnlockOpensReportsForGood();
    void attachLocksAgain();
    void startedTakesNoSettings_data();
    void startedTakesNoSettings();
    void startNeedsPolicy();
    void basicStartHasNoPolicy();
    void attachStopsByPolicy();
    void automaticDates();
    void automaticDatesGoByTheWallClock();
    void pastDatesDoNotFire();
    void settingTheClockPassesNoDate();
    void basicFirmwareHasNoDates();
    void countsWhatWasTaken();
    void describesEverything();
};

void TestLoggerModel::firmwareLevel_data()
{
    QTest::addColumn<QString>("firmware");
    QTest::addColumn<bool>("extended");
    QTest::newRow("1.1.9") << "1.1.9" << false;
    QTest::newRow("1.1.999") << "1.1.999" << false;
    QTest::newRow("1.2.0") << "1.2.0" << true;
    QTest::newRow("01.02.00") << "01.02.00" << true;
    QTest::newRow("2.0.0") << "2.0.0" << true;
    QTest::newRow("two parts") << "1.2" << false;
    QTest::newRow("four parts") << "1.2.0.0" << false;
}

void TestLoggerModel::firmwareLevel()
{
    QFETCH(QString, firmware);
    LoggerModel logger;
    logger.settings().firmware = firmware;
    QTEST(logger.isExtended(), "extended");
}

void TestLoggerModel::lockedRefuses_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<bool>("refused");
    for (const char* command : {"i", "#", "x", "G0", "G1", "G2", "?secret"})
        QTest::newRow(command) << QByteArray(command) << false;
    for (const char* command :
         {"G3",          "G4",       "e",    "m",  "g",  "Gt", "Gs",   "Gd",         "Gl",
          "o",           "Go",       "Gz",   "Ga", "Gp", "z",  "l",    "Ss00000060", "S0text",
          "u1700000000", "So000259", "!new", "a",  "k",  "n",  "r0001"})
        QTest::newRow(command) << QByteArray(command) << true;
}

void TestLoggerModel::lockedRefuses()
{
    QFETCH(QByteArray, command);
    LoggerModel logger = lockedLogger();
    QCOMPARE(logger.answer("#"), QByteArray("1"));
    QTEST(logger.answer(command) == "error: locked", "refused");
}

void TestLoggerModel::passwordUnlocks()
{
    LoggerModel logger = lockedLogger();
    QCOMPARE(logger.answer("?Secret"), QByteArray("no"));
    QCOMPARE(logger.answer("?"), QByteArray("no"));
    QCOMPARE(logger.answer("#"), QByteArray("1"));
    QCOMPARE(logger.answer("?secret"), QByteArray("ok"));
    QCOMPARE(logger.answer("#"), QByteArray("0"));
    QCOMPARE(logger.answer("Gs"), QByteArray("300"));
}

void TestLoggerModel::emptyPasswordNeverLocks()
{
    LoggerModel logger = extendedLogger();
    logger.settings().policies = LoggerModel::PolicyConfigPassw;
    logger.attach();
    QCOMPARE(logger.answer("#"), QByteArray("0"));
}

void TestLoggerModel::lockAtAttach_data()
{
    QTest::addColumn<int>("policies");
    QTest::addColumn<State>("state");
    QTest::addColumn<bool>("locked");
    QTest::newRow("no policy, idle") << 0 << State::Idle << false;
    QTest::newRow("no policy, finished") << 0 << State::Finished << false;
    QTest::newRow("configuration, idle") << 4 << State::Idle << true;
    QTest::newRow("configuration, recording") << 4 << State::Recording << true;
    QTest::newRow("once, idle") << 1024 << State::Idle << false;
    QTest::newRow("once, finished") << 1024 << State::Finished << true;
    QTest::newRow("always, recording") << 2048 << State::Recording << false;
    QTest::newRow("always, finished") << 2048 << State::Finished << true;
    QTest::newRow("stopped by attaching") << (2048 | 512) << State::Recording << true;
}

void TestLoggerModel::lockAtAttach()
{
    QFETCH(int, policies);
    QFETCH(State, state);
    LoggerModel logger = extendedLogger();
    logger.settings().password = QStringLiteral("secret");
    logger.settings().policies = policies;
    logger.settings().state = state;
    logger.attach();
    QTEST(logger.settings().locked, "locked");
}

void TestLoggerModel::firstUnlockOpensReportsForGood()
{
    LoggerModel logger = extendedLogger();
    logger.settings().password = QStringLiteral("secret");
    logger.settings().state = State::Finished;
    logger.settings().policies = LoggerModel::PolicyPasswOnce;
    logger.attach();
    QCOMPARE(logger.answer("?secret"), QByteArray("ok"));
    logger.attach();
    QCOMPARE(logger.answer("#"), QByteArray("0"));
}

void TestLoggerModel::attachLocksAgain()
{
    LoggerModel logger = lockedLogger();
    QCOMPARE(logger.answer("?secret"), QByteArray("ok"));
    logger.attach();
    QCOMPARE(logger.answer("#"), QByteArray("1"));
}

void TestLoggerModel::startedTakesNoSettings_data()
{
    QTest::addColumn<State>("state");
    QTest::newRow("recording") << State::Recording;
    QTest::newRow("finished") << State::Finished;
}

void TestLoggerModel::startedTakesNoSettings()
{
    QFETCH(State, state);
    LoggerModel logger = extendedLogger();
    logger.settings().state = state;
    const QStringList before = logger.describe();
    for (const char* command :
         {"St0000500000006500", "Ss00000060", "Sd00000060", "Sl1", "S0text", "So000259", "Sz00003600",
          "Sa1700000000", "Sp1700000000", "u1700000000", "!new", "a", "k"})
        QCOMPARE(logger.answer(command), QByteArray("error: not idle"));
    QCOMPARE(logger.describe(), before);
    QCOMPARE(logger.answer("Gs"), QByteArray("300"));
}

void TestLoggerModel::startNeedsPolicy()
{
    LoggerModel logger = extendedLogger();
    logger.settings().policies = 0xFFFF & ~LoggerModel::PolicyStartSoftware;
    QCOMPARE(logger.answer("a"), QByteArray("error: start not allowed"));
    QCOMPARE(logger.settings().state, State::Idle);
    logger.settings().policies = LoggerModel::PolicyStartSoftware;
    QCOMPARE(logger.answer("a"), QByteArray("ok"));
    QCOMPARE(logger.settings().state, State::Recording);
}

void TestLoggerModel::basicStartHasNoPolicy()
{
    LoggerModel logger;
    logger.settings().policies = 0;
    QCOMPARE(logger.answer("a"), QByteArray("ok"));
    QCOMPARE(logger.settings().state, State::Recording);
}

void TestLoggerModel::attachStopsByPolicy()
{
    LoggerModel logger = extendedLogger();
    logger.settings().state = State::Recording;
    logger.attach();
    QCOMPARE(logger.settings().state, State::Recording);
    logger.settings().policies |= LoggerModel::PolicyStopUSBAttach;
    logger.attach();
    QCOMPARE(logger.settings().state, State::Finished);
    logger.settings().state = State::Idle;
    logger.attach();
    QCOMPARE(logger.settings().state, State::Idle);
}

void TestLoggerModel::automaticDates()
{
    LoggerModel logger = extendedLogger();
    const qint64 now = logger.wallClock();
    logger.settings().startDate = now + 3600;
    logger.settings().stopDate = now + 7200;
    QCOMPARE(logger.answer("x"), QByteArray("2"));
    logger.settings().clockOffset += 3700;
    QCOMPARE(logger.answer("x"), QByteArray("4"));
    logger.settings().clockOffset += 3600;
    QCOMPARE(logger.answer("x"), QByteArray("16"));
}

void TestLoggerModel::automaticDatesGoByTheWallClock()
{
    LoggerModel logger = extendedLogger();
    logger.settings().timeZoneOffset = -3600;
    logger.settings().startDate = logger.clockUtc() + 600;
    QCOMPARE(logger.answer("x"), QByteArray("2"));
    logger.settings().clockOffset += 1800;
    QCOMPARE(logger.answer("x"), QByteArray("2"));
    logger.settings().clockOffset += 3600;
    QCOMPARE(logger.answer("x"), QByteArray("4"));
}

void TestLoggerModel::pastDatesDoNotFire()
{
    LoggerModel logger = extendedLogger();
    logger.settings().startDate = logger.wallClock() - 3600;
    logger.attach();
    QCOMPARE(logger.answer("x"), QByteArray("2"));
    QCOMPARE(logger.answer("Sa" + QByteArray::number(logger.wallClock() - 60)), QByteArray("ok"));
    QCOMPARE(logger.answer("x"), QByteArray("2"));
}

void TestLoggerModel::settingTheClockPassesNoDate()
{
    LoggerModel logger = extendedLogger();
    logger.settings().startDate = logger.wallClock() + 3600;
    QCOMPARE(logger.answer("u" + QByteArray::number(logger.clockUtc() + 7200)), QByteArray("ok"));
    QCOMPARE(logger.answer("x"), QByteArray("2"));
}

void TestLoggerModel::basicFirmwareHasNoDates()
{
    LoggerModel logger;
    logger.settings().startDate = logger.wallClock() + 60;
    logger.runAutomaticDates();
    logger.settings().clockOffset += 3600;
    logger.runAutomaticDates();
    QCOMPARE(logger.settings().state, State::Idle);
}

void TestLoggerModel::countsWhatWasTaken()
{
    LoggerModel logger = extendedLogger();
    for (const char* command : {"k", "Ss00000060", "k", "Ss00000120", "Ss1", "Gs", "So065536"})
        logger.answer(command);
    const QMap<QByteArray, int> expected = {{"Ss", 2}, {"k", 2}};
    QCOMPARE(logger.settings().counts, expected);
}

void TestLoggerModel::describesEverything()
{
    LoggerModel logger = extendedLogger();
    logger.settings().texts[2] = QStringLiteral("a\nb=\\");
    logger.settings().state = State::Finished;
    const QStringList expected = {
        "name=Brumalogger USB",
        "firmware=1.2.0",
        "hardware=1.0",
        "serial=SIM0000001",
        "multiuse=0",
        "state=finished",
        "temp_min=2000",
        "temp_max=8000",
        "sampling=300",
        "delay=1800",
        "button_lock=0",
        "text0=",
        "text1=",
        R"(text2=a\nb=\\)",
        "text3=",
        "text4=",
        "policies=259",
        "password=",
        "locked=0",
        "reports_opened=0",
        "zone=0",
        "clock_offset=0",
        "start_date=0",
        "stop_date=0",
        "last_reset=0",
        "low_battery=0",
    };
    QCOMPARE(logger.describe(), expected);
}

QTEST_GUILESS_MAIN(TestLoggerModel)
#include "tst_loggermodel.moc"
