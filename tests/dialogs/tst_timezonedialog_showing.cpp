// The Time Zone Editor at its showing: the source of the time, and whose clock shows which zone.

#include "support/environmentvariable.h"
#include "support/minimised.h"
#include "zonedesk.h"

#include <QTest>

namespace {

const QString unknown = QStringLiteral(" (Time Zone Unknown)");
constexpr int threeDays = 3 * 86400;

} // namespace

class TestTimeZoneDialogShowing : public QObject
{
    Q_OBJECT

private slots:
    void namesTheSource();
    void computersZone_data();
    void computersZone();
    void computersZoneByTheReferenceTime();
    void referenceTimeCanBeSet();
    void devicesZone_data() { addZoneRows(); }
    void devicesZone();
    void devicesZoneIsUnknown_data();
    void devicesZoneIsUnknown();
    void choiceIsForgotten();
    void choiceOutlivesMinimising();
};

// Asked or answered, at once or never: whoever is asked last is the source.
void TestTimeZoneDialogShowing::namesTheSource()
{
    ZoneDesk desk;
    const auto source = [&desk] {
        desk.open();
        desk.dialog.reject();
        return desk.text("labelSource");
    };
    QCOMPARE(source(), QString());
    desk.manager->queryServer(QStringLiteral("clock.invalid"));
    QCOMPARE(source(), QStringLiteral("clock.invalid"));
    desk.manager->queryPool({QStringLiteral("clock.invalid")});
    QCOMPARE(source(), QStringLiteral("Server pool"));
    desk.manager->queryServer(QStringLiteral("other.invalid"));
    if (!QMetaObject::invokeMethod(desk.manager.data(), "plOnSingleWorkerTimeout"))
        qFatal("the manager doesn't listen");
    QVERIFY(desk.manager->isQueryTimedOut());
    QCOMPARE(source(), QStringLiteral("other.invalid"));
}

void TestTimeZoneDialogShowing::computersZone_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("offset");
    QTest::newRow("GMT") << QByteArray("UTC0") << 0;
    QTest::newRow("GMT+2:00") << QByteArray("XXX-2") << 7200;
    QTest::newRow("GMT-8:00") << QByteArray("XXX8") << -28800;
    QTest::newRow("GMT+5:30") << QByteArray("XXX-5:30") << 19800;
}

void TestTimeZoneDialogShowing::computersZone()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const int, offset);
    const LocalZone computersZone(zone);
    ZoneDesk desk;
    desk.open();
    QCOMPARE(desk.text("labelRefLocal"),
             shown(deskTime().addSecs(offset)) + QStringLiteral(" (%1)").arg(QTest::currentDataTag()));
    QCOMPARE(desk.text("labelRefUTC"), shown(deskTime()));
}

// A computer's clock that is wrong by three hours looks like one in another zone.
void TestTimeZoneDialogShowing::computersZoneByTheReferenceTime()
{
    const LocalZone computersZone("UTC0");
    ZoneDesk desk;
    desk.tellTime(deskTime().addSecs(-3 * 3600));
    desk.open();
    QCOMPARE(desk.text("labelRefLocal"), QStringLiteral("09:00:00 25/") + QLocale::system().monthName(9) +
                                             QStringLiteral("/2024 (GMT+3:00)"));
    desk.dialog.reject();
    desk.tellTime(deskTime().addSecs(threeDays));
    desk.open();
    QCOMPARE(desk.text("labelRefLocal"), shown(deskTime().addSecs(threeDays)) + unknown);
}

void TestTimeZoneDialogShowing::referenceTimeCanBeSet()
{
    const LocalZone computersZone("UTC0");
    ZoneDesk desk;
    desk.dialog.setReferenceTime(deskTime().addSecs(3600));
    desk.open();
    QCOMPARE(desk.text("labelRefLocal"), shown(deskTime()) + QStringLiteral(" (GMT+1:00)"));
}

void TestTimeZoneDialogShowing::devicesZone()
{
    QFETCH(const int, offset);
    ZoneDesk desk;
    desk.setDevice(offset);
    desk.open();
    QCOMPARE(desk.text("labelDeviceTime"),
             shown(deskTime().addSecs(offset)) + QStringLiteral(" (%1)").arg(QTest::currentDataTag()));
    QCOMPARE(desk.dialog.chosenName(), QString(QTest::currentDataTag()));
    QCOMPARE(desk.dialog.chosenOffset(), offset);
    QCOMPARE(desk.text("labelNewDeviceTime"), shown(deskTime().addSecs(offset)));
}

void TestTimeZoneDialogShowing::devicesZoneIsUnknown_data()
{
    QTest::addColumn<int>("offset");
    QTest::newRow("ahead") << threeDays;
    QTest::newRow("behind") << -threeDays;
}

void TestTimeZoneDialogShowing::devicesZoneIsUnknown()
{
    QFETCH(const int, offset);
    ZoneDesk desk;
    desk.combo()->setCurrentIndex(9);
    desk.setDevice(offset);
    desk.open();
    QCOMPARE(desk.text("labelDeviceTime"), shown(deskTime().addSecs(offset)) + unknown);
    QCOMPARE(desk.combo()->currentIndex(), 0);
    QCOMPARE(desk.text("labelNewDeviceTime"), shown(deskTime()));
}

void TestTimeZoneDialogShowing::choiceIsForgotten()
{
    ZoneDesk desk;
    desk.setDevice(3600);
    desk.open();
    desk.combo()->setCurrentText(QStringLiteral("GMT+9:00"));
    desk.dialog.reject();
    QCOMPARE(desk.dialog.chosenName(), QStringLiteral("GMT+9:00"));
    desk.open();
    QCOMPARE(desk.dialog.chosenName(), QStringLiteral("GMT+1:00"));
    QCOMPARE(desk.text("labelNewDeviceTime"), shown(deskTime().addSecs(3600)));
}

void TestTimeZoneDialogShowing::choiceOutlivesMinimising()
{
    ZoneDesk desk;
    desk.open();
    desk.combo()->setCurrentText(QStringLiteral("GMT+9:00"));
    bringBack(desk.dialog);
    QCOMPARE(desk.dialog.chosenName(), QStringLiteral("GMT+9:00"));
}

QTEST_MAIN(TestTimeZoneDialogShowing)
#include "tst_timezonedialog_showing.moc"
