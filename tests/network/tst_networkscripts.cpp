// The scripts that give tests a network: what they leave alone, what they say, and that nothing of them stays
// behind.

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

namespace {

const QString privateNetwork = QStringLiteral(NETWORK_SCRIPTS "/in-private-network");
const QString timeServers = QStringLiteral(NETWORK_SCRIPTS "/with-time-servers");
const QString webServer = QStringLiteral(NETWORK_SCRIPTS "/with-web-server");

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// True for a process that still runs; one that has ended but was not yet asked for its end does not.
bool isRunning(qint64 process)
{
    const auto stat = contents(QStringLiteral("/proc/%1/stat").arg(process));
    return !stat.isEmpty() && stat.mid(stat.lastIndexOf(')') + 2, 1) != "Z";
}

} // namespace

class TestNetworkScripts : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void passesOnTheCommandAndItsResult();
    void leavesTheComputerAlone();
    void canBeNested();
    void saysThatThereAreNoNamespaces();
    void saysThatTheNetworkIsMissing();
    void saysThatAServerCannotStart();
    void choosesServers_data();
    void choosesServers();
    void webServerServesAFolder();
    void saysThatAWebServerIsThere();
    void webServerNeedsTheNetwork();
    void serversEndWithTheCommand_data();
    void serversEndWithTheCommand();

private:
    void run(const QStringList& command);

    QProcess process;
};

void TestNetworkScripts::cleanup()
{
    process.kill();
    process.waitForFinished();
    process.setProcessEnvironment({});
}

void TestNetworkScripts::run(const QStringList& command)
{
    process.start(command.first(), command.mid(1));
    QVERIFY2(process.waitForFinished(), qPrintable(process.errorString()));
}

void TestNetworkScripts::passesOnTheCommandAndItsResult()
{
    run({privateNetwork, timeServers, "sh", "-c", "printf '%s.' \"$@\"; exit 42", "sh", "--only", "two words",
         ""});
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.readAllStandardOutput(), QByteArray("--only.two words.."));
    QCOMPARE(process.exitCode(), 42);
}

void TestNetworkScripts::leavesTheComputerAlone()
{
    const QStringList paths{QStringLiteral("/proc/self/mountinfo"), QStringLiteral("/etc/hosts"),
                            QStringLiteral("/etc/nsswitch.conf")};
    QVector<QByteArray> before;
    for (const auto& path : paths)
        before += contents(path);
    process.start(privateNetwork, {timeServers, "sh", "-c", "echo && read line"});
    QVERIFY(process.waitForReadyRead());
    for (int i = 0; i < paths.size(); ++i)
        QCOMPARE(contents(paths.at(i)), before.at(i));
    process.write("\n");
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
}

void TestNetworkScripts::canBeNested()
{
    run({privateNetwork, timeServers, privateNetwork, timeServers, "true"});
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitCode(), 0);
}

void TestNetworkScripts::saysThatThereAreNoNamespaces()
{
    QTemporaryDir folder;
    QVERIFY(QFile::link(QStringLiteral("/bin/false"), folder.filePath("unshare")));
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", folder.path() + ':' + environment.value("PATH"));
    process.setProcessEnvironment(environment);
    run({privateNetwork, "true"});
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(
        process.readAllStandardError(),
        QByteArray(
            "in-private-network: this computer allows neither network namespaces nor user namespaces\n"));
}

void TestNetworkScripts::saysThatTheNetworkIsMissing()
{
    run({timeServers, "true"});
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(
        process.readAllStandardError(),
        QByteArray("with-time-servers: this is not the private network; run it by in-private-network\n"));
}

void TestNetworkScripts::saysThatAServerCannotStart()
{
    run({privateNetwork, timeServers, "--only", "nowhere", "true"});
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().endsWith("with-time-servers: chronyd ended at nowhere\n"));
}

void TestNetworkScripts::choosesServers_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QList<int>>("servers");
    QTest::newRow("all") << QStringList() << QList<int>{1, 2, 3, 4, 5, 6, 7};
    QTest::newRow("first three") << QStringList{"--servers", "3"} << QList<int>{1, 2, 3};
    QTest::newRow("none") << QStringList{"--servers", "0"} << QList<int>{};
    QTest::newRow("one") << QStringList{"--only", "127.1.0.2"} << QList<int>{2};
    QTest::newRow("two") << QStringList{"--only", "127.1.0.7", "--only", "127.1.0.3"} << QList<int>{3, 7};
}

void TestNetworkScripts::choosesServers()
{
    QFETCH(QStringList, options);
    QFETCH(QList<int>, servers);
    run(QStringList{privateNetwork, timeServers} + options + QStringList{"cat", "/proc/net/udp"});
    QCOMPARE(process.exitCode(), 0);
    const auto sockets = process.readAllStandardOutput();
    QCOMPARE(sockets.count(":007B "), servers.size());
    for (const int server : servers)
        QVERIFY(sockets.contains("0" + QByteArray::number(server) + "00017F:007B"));
}

void TestNetworkScripts::webServerServesAFolder()
{
    const QTemporaryDir folder;
    const QString get = QStringLiteral("printf hello >\"$WEB_FOLDER/file\"; exec 3<>/dev/tcp/127.2.0.1/80; "
                                       "printf 'GET /file HTTP/1.0\\r\\n\\r\\n' >&3; cat <&3; exit 42");
    run({privateNetwork, webServer, folder.filePath("new/served"), "bash", "-c", get});
    QCOMPARE(process.readAllStandardError(), QByteArray());
    const QByteArray answer = process.readAllStandardOutput();
    QVERIFY2(answer.startsWith("HTTP/1.0 200 OK\r\n"), answer);
    QVERIFY2(answer.endsWith("\r\n\r\nhello"), answer);
    QCOMPARE(process.exitCode(), 42);
}

void TestNetworkScripts::saysThatAWebServerIsThere()
{
    const QTemporaryDir folder;
    run({privateNetwork, webServer, folder.path(), webServer, folder.path(), "true"});
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardError(),
             QByteArray("with-web-server: somebody else serves at 127.2.0.1\n"));
}

void TestNetworkScripts::webServerNeedsTheNetwork()
{
    run({webServer, "nowhere", "true"});
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardError(),
             QByteArray("with-web-server: this is not the private network; run it by in-private-network\n"));
}

void TestNetworkScripts::serversEndWithTheCommand_data()
{
    QTest::addColumn<QStringList>("servers");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("signal");
    const QStringList web{webServer, "web"};
    QTest::newRow("killed") << QStringList(timeServers) << 7 << SIGKILL;
    QTest::newRow("terminated") << QStringList(timeServers) << 7 << SIGTERM;
    QTest::newRow("of itself") << QStringList(timeServers) << 7 << 0;
    QTest::newRow("killed, web") << web << 1 << SIGKILL;
    QTest::newRow("of itself, web") << web << 1 << 0;
}

void TestNetworkScripts::serversEndWithTheCommand()
{
    QFETCH(QStringList, servers);
    QFETCH(int, signal);
    process.start(privateNetwork,
                  servers + QStringList{"sh", "-c",
                                        "read servers </proc/$$/task/$$/children; echo $servers; read line"});
    QVERIFY(process.waitForReadyRead());
    const auto processes = process.readAll().simplified().split(' ');
    QTEST(processes.size(), "number");
    for (const auto& server : processes)
        QVERIFY(isRunning(server.toLongLong()));

    if (signal != 0)
        QCOMPARE(kill(static_cast<pid_t>(process.processId()), signal), 0);
    else
        process.write("\n");
    QVERIFY(process.waitForFinished());
    for (const auto& server : processes)
        QTRY_VERIFY(!isRunning(server.toLongLong()));
}

QTEST_GUILESS_MAIN(TestNetworkScripts)
#include "tst_networkscripts.moc"
