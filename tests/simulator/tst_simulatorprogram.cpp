// The simulator program from the outside: its options, what its child sees, its files and its exit code.

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

constexpr int patience = 30000; // ms for a whole run

struct Result
{
    int code = -1;
    QString out;
    QString err;
};

Result simulate(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(SIMULATOR_PROGRAM), arguments);
    if (!process.waitForFinished(patience))
        return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

/// Runs the wire client with @p commands in a world made by @p options.
Result simulateClient(const QStringList& options, const QStringList& commands)
{
    return simulate(options + QStringList{"--", WIRE_CLIENT_PROGRAM} + commands);
}

QStringList linesOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {"(no file)"};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
}

} // namespace

class TestSimulatorProgram : public QObject
{
    Q_OBJECT

private slots:
    void helpExplainsAll();
    void wrongOptions_data();
    void wrongOptions();
    void exitCodes_data();
    void exitCodes();
    void childSeesThePort_data();
    void childSeesThePort();
    void optionsReachTheLogger_data();
    void optionsReachTheLogger();
    void severalLoggers();
    void transcript();
    void transcriptOfSeveral();
    void finalState();
    void finalStateOfAnUnpluggedLogger();
    void filesThatCannotBeWritten_data();
    void filesThatCannotBeWritten();
    void signalsEndTheChild_data();
    void signalsEndTheChild();

private:
    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    QTemporaryDir folder;
};

void TestSimulatorProgram::helpExplainsAll()
{
    const Result result = simulate({"--help"});
    QCOMPARE(result.code, 0);
    QCOMPARE(result.err, QString());
    for (const char* word :
         {"--firmware",  "--multiuse", "--single-use", "--temp-range",   "--sampling",    "--delay",
          "--text",      "--password", "--policies",   "--zone",         "--clock",       "--low-battery",
          "--recording", "--finished", "--fault",      "--manufacturer", "--description", "--vendor",
          "--product",   "--port",     "--loggers",    "--transcript",   "--final-state", "late-until-next",
          "unplug",      "exit code"})
        QVERIFY2(result.out.contains(QLatin1String(word)), word);
}

void TestSimulatorProgram::wrongOptions_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("word");
    const auto row = [](const char* option, const char* value, const char* word) {
        QStringList options(option);
        if (*value != '\0')
            options << value;
        options << "--" << WIRE_CLIENT_PROGRAM << "Gs";
        QTest::newRow((QByteArray(option) + ' ' + value).constData()) << options << QString(word);
    };
    row("--colour", "", "colour");
    row("--sampling", "59", "--sampling");
    row("--delay", "soon", "--delay");
    row("--temp-range", "8", "--temp-range");
    row("--temp-range", "8,2", "--temp-range");
    row("--text", "Alice", "--text");
    row("--text", "5=Alice", "--text");
    row("--policies", "65536", "--policies");
    row("--zone", "50401", "--zone");
    row("--clock", "noon", "--clock");
    row("--fault", "quiet@5", "quiet");
    row("--vendor", "0x10000", "--vendor");
    row("--loggers", "many", "--loggers");
    row("--port", "../tty", "--port");
    row("--password", "1234567890123456789012345678901", "--password");
    QTest::newRow("no program") << QStringList("--multiuse") << "program";
}

void TestSimulatorProgram::wrongOptions()
{
    QFETCH(QStringList, options);
    QFETCH(QString, word);
    const Result result = simulate(options);
    QCOMPARE(result.code, 2);
    QCOMPARE(result.out, QString());
    QVERIFY2(result.err.startsWith("brumalogger-simulator: ") && result.err.contains(word),
             qPrintable(result.err));
}

void TestSimulatorProgram::exitCodes_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<int>("code");
    QTest::newRow("success") << QStringList({WIRE_CLIENT_PROGRAM, "Gs"}) << 0;
    QTest::newRow("the child's own") << QStringList({WIRE_CLIENT_PROGRAM, "--exit", "42"}) << 42;
    QTest::newRow("a signal") << QStringList({WIRE_CLIENT_PROGRAM, "--crash"}) << 128 + SIGKILL;
    QTest::newRow("no such program") << QStringList({"./no-such-program"}) << 127;
}

void TestSimulatorProgram::exitCodes()
{
    QFETCH(QStringList, command);
    QTEST(simulate(QStringList("--") + command).code, "code");
}

void TestSimulatorProgram::childSeesThePort_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("port");
    QTest::newRow("as it is") << QStringList() << "ttyACM0|Polar Ridge Works|Brumalogger USB|3eb|8015\n";
    QTest::newRow("another") << QStringList({"--port", "ttyACM7", "--manufacturer", "Some Maker",
                                             "--description", "Thing", "--vendor", "0x1234", "--product",
                                             "22136"})
                             << "ttyACM7|Some Maker|Thing|1234|5678\n";
    QTest::newRow("nameless") << QStringList({"--manufacturer", "", "--description", "", "--vendor", "none",
                                              "--product", "none"})
                              << "ttyACM0|||0|0\n";
    QTest::newRow("none") << QStringList({"--loggers", "0"}) << "";
}

void TestSimulatorProgram::childSeesThePort()
{
    QFETCH(QStringList, options);
    const Result result = simulateClient(options, {"--ports"});
    QCOMPARE(result.err, QString());
    QTEST(result.out, "port");
}

void TestSimulatorProgram::optionsReachTheLogger_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("commands");
    QTest::addColumn<QString>("out");
    const auto row = [](const char* name, const QStringList& options, const QStringList& commands,
                        const char* out) {
        QTest::newRow(name) << options << commands << QString::fromUtf8(out);
    };
    const QStringList extended = {"--firmware", "1.2.0"};
    row("defaults", {}, {"i", "m", "Gt", "Gs", "Gd", "Gl", "G0"},
        "Brumalogger USB,1.1.9,1.0\n0\n2000,8000\n300\n1800\n0\n\n");
    row("identity", {"--firmware", "1.2.3", "--hardware", "3.0", "--serial", "X1", "--multiuse"},
        {"i", "e", "m"}, "Brumalogger USB,1.2.3,3.0\nX1\n1\n");
    row("single-use", {"--single-use"}, {"m"}, "0\n");
    row("setup", {"--temp-range", "-20.5,60", "--sampling", "600", "--delay", "3600", "--button-lock"},
        {"Gt", "Gs", "Gd", "Gl"}, "-20500,60000\n600\n3600\n1\n");
    row("texts", {"--text", "0=Alice", "--text", "4=12=34"}, {"G0", "G1", "G4"}, "Alice\n\n12=34\n");
    row("security", extended + QStringList{"--policies", "0x2003", "--password", "secret"},
        {"Go", "#", "?secret"}, "8195\n0\nok\n");
    row("locked", extended + QStringList{"--policies", "4", "--password", "secret"}, {"Go", "#"},
        "error: locked\n1\n");
    row("dates",
        extended + QStringList{"--zone", "-3600", "--start-date", "1700000000", "--stop-date", "1700000600",
                               "--last-reset", "1600000000"},
        {"Gz", "Ga", "Gp", "z"}, "-0003600\n1700000000\n1700000600\n1600000000\n");
    row("battery", extended + QStringList{"--low-battery"}, {"l", "x"}, "1\n2\n");
    row("recording", extended + QStringList{"--recording"}, {"x", "a"}, "4\nerror: not idle\n");
    row("finished", extended + QStringList{"--finished"}, {"x"}, "16\n");
    row("fault", {"--fault", "reply=OK\\r\\n@Gs#2", "--fault", "pieces@Gd"}, {"Gs", "Gs", "Gs", "Gd"},
        "300\nOK\n300\n1800\n");
}

void TestSimulatorProgram::optionsReachTheLogger()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, commands);
    const Result result = simulateClient(options, commands);
    QCOMPARE(result.err, QString());
    QTEST(result.out, "out");
    QCOMPARE(result.code, 0);
}

void TestSimulatorProgram::severalLoggers()
{
    const Result result = simulateClient({"--loggers", "2"}, {"--ports"});
    QStringList lines = result.out.split(QLatin1Char('\n'));
    lines.sort();
    QCOMPARE(lines, QStringList({"", "ttyACM0|Polar Ridge Works|Brumalogger USB|3eb|8015",
                                 "ttyACM1|Polar Ridge Works|Brumalogger USB|3eb|8015"}));
}

void TestSimulatorProgram::transcript()
{
    const QString file = path("wire.txt");
    const Result result =
        simulateClient({"--transcript", file, "--fault", "unplug@3"}, {"Gs", "S0\xc3\xa4", "Gd"});
    QCOMPARE(result.code, 0);
    QCOMPARE(linesOf(file), QStringList({"> Gs", "< 300", QString::fromUtf8("> S0\xc3\xa4"), "< ok", "> Gd",
                                         "! unplugged", ""}));
}

void TestSimulatorProgram::transcriptOfSeveral()
{
    const QString file = path("wires.txt");
    const Result result = simulateClient({"--transcript", file, "--loggers", "2"}, {"Gs"});
    QCOMPARE(result.code, 0);
    const QStringList lines = linesOf(file);
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines[0].startsWith("ttyACM") && lines[0].endsWith(" > Gs"), qPrintable(lines[0]));
    QVERIFY2(lines[1].startsWith("ttyACM") && lines[1].endsWith(" < 300"), qPrintable(lines[1]));
}

void TestSimulatorProgram::finalState()
{
    const QString file = path("state.txt");
    const Result result = simulateClient({"--final-state", file}, {"Ss00000600", "S0Alice", "a"});
    QCOMPARE(result.out, QStringLiteral("ok\nok\nok\n"));
    const QStringList lines = linesOf(file);
    for (const char* line :
         {"firmware=1.1.9", "sampling=600", "text0=Alice", "state=recording", "clock_offset=0"})
        QVERIFY2(lines.contains(QLatin1String(line)), line);
    QCOMPARE(lines.first(), QStringLiteral("name=Brumalogger USB"));
    QCOMPARE(lines.last(), QString());
}

void TestSimulatorProgram::finalStateOfAnUnpluggedLogger()
{
    const QString file = path("states.txt");
    const Result result = simulateClient(
        {"--final-state", file, "--loggers", "2", "--fault", "unplug-after-reply@Ss"}, {"Ss00000600"});
    QCOMPARE(result.code, 0);
    const QStringList lines = linesOf(file);
    QCOMPARE(lines.filter("ttyACM0.name=").size(), 1);
    QCOMPARE(lines.filter("ttyACM1.name=").size(), 1);
    QCOMPARE(lines.filter(".sampling=600").size(), 1);
    QCOMPARE(lines.filter(".sampling=300").size(), 1);
}

void TestSimulatorProgram::filesThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("transcript") << "--transcript";
    QTest::newRow("final state") << "--final-state";
}

void TestSimulatorProgram::filesThatCannotBeWritten()
{
    QFETCH(QString, option);
    const Result result = simulateClient({option, path("no-such-folder/file")}, {"Gs"});
    QCOMPARE(result.code, 2);
    QVERIFY2(result.err.contains("no-such-folder/file"), qPrintable(result.err));
}

void TestSimulatorProgram::signalsEndTheChild_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void TestSimulatorProgram::signalsEndTheChild()
{
    QFETCH(int, signal);
    QProcess process;
    const QString file = path("ended.txt");
    process.start(QStringLiteral(SIMULATOR_PROGRAM),
                  {"--final-state", file, "--", WIRE_CLIENT_PROGRAM, "--wait"});
    QVERIFY(process.waitForReadyRead(patience));
    QCOMPARE(process.readAllStandardOutput(), QByteArray("waiting\n"));
    QCOMPARE(kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 128 + SIGTERM);
    QVERIFY(linesOf(file).contains("state=idle"));
}

QTEST_GUILESS_MAIN(TestSimulatorProgram)
#include "tst_simulatorprogram.moc"
