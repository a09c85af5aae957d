// The window's start beside real time servers: what the status bar says of them.

#include "timerig.h"

#include <QTest>

#include <csignal>

using namespace TimeWords;

namespace {

Settings settingsWithPool(const char* pool)
{
    return quietSettingsWith({{QStringLiteral("disabletime"), QStringLiteral("0")},
                              {QStringLiteral("useserverpool"), QLatin1String(pool)},
                              {QStringLiteral("timeserver"), QStringLiteral("1.cn.pool.ntp.org")}});
}

/// Keeps the servers from answering, for its own life.
class Silence
{
public:
    Silence() { signalAll(SIGSTOP); }
    ~Silence() { signalAll(SIGCONT); }
    Q_DISABLE_COPY(Silence)

private:
    static void signalAll(int signal)
    {
        const QList<QByteArray> servers = qgetenv("TIME_SERVER_PIDS").split(' ');
        for (const QByteArray& server : servers) {
            const int process = server.toInt(); // 0 would be the test itself, and all around it
            if (process <= 0 || kill(process, signal) != 0)
                qFatal("there is no time server %s", server.constData());
        }
    }
};

} // namespace

class TestMainWindowServers : public QObject
{
    Q_OBJECT

private slots:
    void saysWhoToldTheTime_data();
    void saysWhoToldTheTime();
    void saysThatNobodyTellsTheTime_data();
    void saysThatNobodyTellsTheTime();
};

void TestMainWindowServers::saysWhoToldTheTime_data()
{
    QTest::addColumn<Settings>("settings");
    QTest::addColumn<QString>("source");
    QTest::newRow("first start") << Settings() << "time.google.com";
    QTest::newRow("chosen server") << settingsWithPool("0") << "1.cn.pool.ntp.org";
    QTest::newRow("pool") << settingsWithPool("1") << "server pool";
}

void TestMainWindowServers::saysWhoToldTheTime()
{
    QFETCH(Settings, settings);
    QFETCH(QString, source);
    QString atFirst;
    const ProcedureRig rig(settings, [&atFirst](WindowRig& starting) { atFirst = starting.status(); });
    QCOMPARE(atFirst, QStringLiteral("Fetching time and date from %1...").arg(source));
    const QString fetched = QStringLiteral("Successfully fetched time and date from %1.").arg(source);
    QVERIFY2(QTest::qWaitFor([&] { return rig.status() == fetched; }, queryPatience),
             qPrintable(rig.status()));
}

void TestMainWindowServers::saysThatNobodyTellsTheTime_data()
{
    QTest::addColumn<bool>("pool");
    QTest::addColumn<QString>("failed");
    QTest::newRow("server") << false << failedServer;
    QTest::newRow("pool") << true << failedPool;
}

void TestMainWindowServers::saysThatNobodyTellsTheTime()
{
    QFETCH(bool, pool);
    QFETCH(QString, failed);
    const Silence silence;
    TimeRig rig(timeSettings(pool));
    QCOMPARE(rig.status(), pool ? fetchingPool : fetchingServer);
    QVERIFY2(rig.comesTo(failed), qPrintable(rig.status()));
}

QTEST_MAIN(TestMainWindowServers)
#include "tst_mainwindow_servers.moc"
