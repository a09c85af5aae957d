// What each command answers and changes, and what is no command or no value.

#include "simulator/loggermodel.h"

#include <QTest>

namespace {

LoggerModel extendedLogger()
{
    LoggerModel logger;
    logger.settings().firmware = QStringLiteral("1.2.0");
    return logger;
}

} // namespace

class TestLoggerCommands : public QObject
{
    Q_OBJECT

private slots:
    void readsAnswer_data();
    void readsAnswer();
    void writesAreKept_data();
    void writesAreKept();
    void badValuesChangeNothing_data();
    void badValuesChangeNothing();
    void unknownCommands_data();
    void unknownCommands();
    void extendedCommandsNeedTheFirmware_data();
    void extendedCommandsNeedTheFirmware();
    void textsLoseTheirPadding();
    void textsKeepSixtyCharacters();
    void passwordLimit();
    void clockIsUtcPlusZone();
    void basicClockHasNoZone();
};

void TestLoggerCommands::readsAnswer_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("reply");
    const QList<QPair<QByteArray, QByteArray>> rows = {
        {"i", "Brumalogger USB,1.2.3,2.1"},
        {"e", "A1B2C3"},
        {"m", "1"},
        {"Gt", "-20500,60000"},
        {"Gs", "600"},
        {"Gd", "3600"},
        {"Gl", "1"},
        {"G0", "Sender"},
        {"G1", "Empf\xc3\xa4nger"},
        {"G2", ""},
        {"G3", "Air"},
        {"G4", "12345678"},
        {"Go", "8195"},
        {"Gz", "-0010800"},
        {"Ga", "1700000000"},
        {"Gp", "0"},
        {"z", "1600000000"},
        {"l", "1"},
        {"x", "2"},
        {"#", "0"},
        {"o", "1,-2,3"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.first.constData()) << row.first << row.second;
}

void TestLoggerCommands::readsAnswer()
{
    QFETCH(QByteArray, command);
    LoggerModel logger;
    LoggerModel::Settings& s = logger.settings();
    s.firmware = QStringLiteral("1.2.3");
    s.hardware = QStringLiteral("2.1");
    s.serial = QStringLiteral("A1B2C3");
    s.multiuse = s.buttonLock = s.lowBattery = true;
    s.tempMin = -20500;
    s.tempMax = 60000;
    s.samplingTime = 600;
    s.startDelay = 3600;
    s.texts = {QStringLiteral("Sender"),
               QString::fromUtf8("Empf\xc3\xa4nger"),
               {},
               QStringLiteral("Air"),
               QStringLiteral("12345678")};
    s.policies = 8195;
    s.timeZoneOffset = -10800;
    s.startDate = 1700000000;
    s.lastReset = 1600000000;
    s.values = {1, -2, 3};
    QTEST(logger.answer(command), "reply");
}

void TestLoggerCommands::writesAreKept_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("question");
    QTest::addColumn<QByteArray>("reply");
    const auto row = [](const char* command, const char* question, const char* reply) {
        QTest::newRow(command) << QByteArray(command) << QByteArray(question) << QByteArray(reply);
    };
    row("St-002050000006000", "Gt", "-20500,6000");
    row("St0000500000006500", "Gt", "5000,6500");
    row("Ss00000060", "Gs", "60");
    row("Ss00057600", "Gs", "57600");
    row("Sd00000060", "Gd", "60");
    row("Sd00057600", "Gd", "57600");
    row("Sl1", "Gl", "1");
    row("Sl0", "Gl", "0");
    row("S0Alice", "G0", "Alice");
    row("S1Bob", "G1", "Bob");
    row("S2 two  words ", "G2", " two  words");
    row("S3Sea", "G3", "Sea");
    row("S412345678", "G4", "12345678");
    row("So008195", "Go", "8195");
    row("So065535", "Go", "65535");
    row("Sz-0010800", "Gz", "-0010800");
    row("Sz00003600", "Gz", "00003600");
    row("Sa1700000000", "Ga", "1700000000");
    row("Sa0000000000", "Ga", "0");
    row("Sp2147483647", "Gp", "2147483647");
    row("r-127", "o", "0,0,0");
    row("r0127", "o", "0,0,0");
    row("k", "o", "0,0,0");
    row("n", "o", "0,0,0");
    row("a", "x", "4");
}

void TestLoggerCommands::writesAreKept()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, question);
    LoggerModel logger = extendedLogger();
    QCOMPARE(logger.answer(command), QByteArray("ok"));
    QTEST(logger.answer(question), "reply");
}

void TestLoggerCommands::badValuesChangeNothing_data()
{
    QTest::addColumn<QByteArray>("command");
    for (const char* command : {"St",
                                "St0000500000005000",
                                "St0000600000005000",
                                "St000050000000600",
                                "St00005000000065000",
                                "St-004100000006000",
                                "St0000500000090000",
                                "St0000x00000006500",
                                "Ss",
                                "Ss60",
                                "Ss00000059",
                                "Ss00057601",
                                "Ss000000060",
                                "Ss+0000060",
                                "Ss 0000060",
                                "Ss0000006x",
                                "Ss-0000060",
                                "Sd00000000",
                                "Sd00057601",
                                "Sl",
                                "Sl2",
                                "Sl11",
                                "So65536",
                                "So065536",
                                "So-00001",
                                "So00000x",
                                "Sz3600",
                                "Sz00050401",
                                "Sz-0050401",
                                "Sa170000000",
                                "Sa2147483648",
                                "Sa-000000001",
                                "Sp",
                                "Sp00000000000",
                                "u",
                                "u123",
                                "u2147483648",
                                "u--00000001",
                                "r128",
                                "r0128",
                                "r-128",
                                "r12"})
        QTest::newRow(command) << QByteArray(command);
}

void TestLoggerCommands::badValuesChangeNothing()
{
    QFETCH(QByteArray, command);
    LoggerModel logger = extendedLogger();
    const QStringList before = logger.describe();
    QCOMPARE(logger.answer(command), QByteArray("error: bad value"));
    QCOMPARE(logger.describe(), before);
    QVERIFY(logger.settings().counts.isEmpty());
}

void TestLoggerCommands::unknownCommands_data()
{
    QTest::addColumn<QByteArray>("command");
    for (const char* command : {"", "G", "S", "G5", "S5text", "Gs ", "GsGd", "Gx", "I", "ok", "aa", "k1"})
        QTest::newRow(command) << QByteArray(command);
}

void TestLoggerCommands::unknownCommands()
{
    QFETCH(QByteArray, command);
    QCOMPARE(extendedLogger().answer(command), QByteArray("error: unknown command"));
}

void TestLoggerCommands::extendedCommandsNeedTheFirmware_data()
{
    QTest::addColumn<QByteArray>("command");
    for (const char* command : {"#", "x", "?", "!pass", "Go", "So000259", "Gz", "Sz00003600", "Ga", "Gp",
                                "Sa1700000000", "Sp1700000000", "z", "l"})
        QTest::newRow(command) << QByteArray(command);
}

void TestLoggerCommands::extendedCommandsNeedTheFirmware()
{
    QFETCH(QByteArray, command);
    LoggerModel basic;
    QCOMPARE(basic.answer(command), QByteArray("error: unknown command"));
    QVERIFY(!extendedLogger().answer(command).startsWith("error:"));
}

void TestLoggerCommands::textsLoseTheirPadding()
{
    LoggerModel logger;
    QCOMPARE(logger.answer("S4ABC     "), QByteArray("ok"));
    QCOMPARE(logger.settings().texts[4], QStringLiteral("ABC"));
    QCOMPARE(logger.answer("S3 "), QByteArray("ok"));
    QCOMPARE(logger.settings().texts[3], QString());
    QCOMPARE(logger.answer("S0" + QByteArray(58, ' ')), QByteArray("ok"));
    QCOMPARE(logger.answer("G0"), QByteArray());
}

void TestLoggerCommands::textsKeepSixtyCharacters()
{
    LoggerModel logger;
    const QString umlauts(60, QChar(0xE4));
    QCOMPARE(logger.answer("S0" + umlauts.toUtf8()), QByteArray("ok"));
    QCOMPARE(logger.settings().texts[0], umlauts);
    QCOMPARE(logger.answer("S1" + QByteArray(61, 'x')), QByteArray("ok"));
    QCOMPARE(logger.settings().texts[1], QString(60, QLatin1Char('x')));
}

void TestLoggerCommands::passwordLimit()
{
    LoggerModel logger = extendedLogger();
    QCOMPARE(logger.answer("!" + QByteArray(30, 'p')), QByteArray("ok"));
    QCOMPARE(logger.settings().password, QString(30, QLatin1Char('p')));
    QCOMPARE(logger.answer("!" + QByteArray(31, 'p')), QByteArray("error: bad value"));
    QCOMPARE(logger.answer("!"), QByteArray("ok"));
    QCOMPARE(logger.settings().password, QString());
}

void TestLoggerCommands::clockIsUtcPlusZone()
{
    LoggerModel logger = extendedLogger();
    QCOMPARE(logger.answer("Sz00003600"), QByteArray("ok"));
    QCOMPARE(logger.answer("u1700000000"), QByteArray("ok"));
    const qint64 wallClock = logger.answer("g").toLongLong();
    QVERIFY2(wallClock >= 1700003600 && wallClock < 1700003630, QByteArray::number(wallClock));
    QVERIFY(logger.clockUtc() >= 1700000000 && logger.clockUtc() < 1700000030);
    QCOMPARE(logger.answer("u-000000001"), QByteArray("ok"));
    QVERIFY(logger.clockUtc() >= -1 && logger.clockUtc() < 30);
}

void TestLoggerCommands::basicClockHasNoZone()
{
    LoggerModel logger;
    logger.settings().timeZoneOffset = 3600;
    QCOMPARE(logger.answer("u1700000000"), QByteArray("ok"));
    const qint64 clock = logger.answer("g").toLongLong();
    QVERIFY2(clock >= 1700000000 && clock < 1700000030, QByteArray::number(clock));
}

QTEST_GUILESS_MAIN(TestLoggerCommands)
#include "tst_loggercommands.moc"
