// The window's start beside real time servers: what the status bar says of them.

#include "procedurerig.h"

#include <QTest>

namespace {

constexpr int patience = 30000;

Settings settingsWithPool(const char* pool)
{
    return quietSettingsWith({{QStringLiteral("disabletime"), QStringLiteral("0")},
                              {QStringLiteral("useserverpool"), QLatin1String(pool)},
                              {QStringLiteral("timeserver"), QStringLiteral("1.cn.pool.ntp.org")}});
}

} // namespace

class TestMainWindowServers : public QObject
{
    Q_OBJECT

private slots:
    void saysWhoToldTheTime_data();
    void saysWhoToldTheTime();
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
    const ProcedureRig rig(settings);
    QCOMPARE(rig.status(), source == QLatin1String("server pool")
                               ? QStringLiteral("Fetching time and date from server pool...")
                               : QStringLiteral("Fetching time and date from %1...").arg(source));
    const QString fetched = QStringLiteral("Successfully fetched time and date from %1.").arg(source);
    QVERIFY2(QTest::qWaitFor([&] { return rig.status() == fetched; }, patience), qPrintable(rig.status()));
}

QTEST_MAIN(TestMainWindowServers)
#include "tst_mainwindow_servers.moc"
