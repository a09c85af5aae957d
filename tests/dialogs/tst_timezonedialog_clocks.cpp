// The clocks of the Time Zone Editor as they run.

#include "support/environmentvariable.h"
#include "support/testclock.h"
#include "zonedesk.h"

#include <QTest>

namespace {

constexpr int patience = 10000; // milliseconds; the clocks tick once a second

} // namespace

class TestTimeZoneDialogClocks : public QObject
{
    Q_OBJECT

private slots:
    void newTimeFollowsTheChoiceAtOnce_data() { addZoneRows(); }
    void newTimeFollowsTheChoiceAtOnce();
    void allTick_data();
    void allTick();
    void tickWhileHidden();
    void followTheReferenceTime();
};

void TestTimeZoneDialogClocks::newTimeFollowsTheChoiceAtOnce()
{
    QFETCH(const int, offset);
    ZoneDesk desk;
    desk.setDevice(20 * 60); // still GMT
    desk.open();
    desk.combo()->setCurrentText(QTest::currentDataTag());
    QCOMPARE(desk.text("labelNewDeviceTime"), shown(deskTime().addSecs(offset)));
    QCOMPARE(desk.text("labelDeviceTime"), shown(deskTime().addSecs(20 * 60)) + QStringLiteral(" (GMT)"));
    QCOMPARE(desk.text("labelRefUTC"), shown(deskTime()));
}

void TestTimeZoneDialogClocks::allTick_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("labelRefUTC") << 0 << "";
    QTest::newRow("labelRefLocal") << 7200 << " (GMT+2:00)";
    QTest::newRow("labelDeviceTime") << 3600 << " (GMT+1:00)";
    QTest::newRow("labelNewDeviceTime") << -3600 << "";
}

void TestTimeZoneDialogClocks::allTick()
{
    QFETCH(const int, offset);
    QFETCH(const QString, suffix);
    const LocalZone computersZone("XXX-2");
    ZoneDesk desk;
    desk.setDevice(3600);
    desk.open();
    desk.combo()->setCurrentText(QStringLiteral("GMT-1:00"));
    QCOMPARE(desk.text(QTest::currentDataTag()), shown(deskTime().addSecs(offset)) + suffix);
    TestClock::shift(5000);
    const QString later = shown(deskTime().addSecs(offset + 5)) + suffix;
    QVERIFY2(QTest::qWaitFor([&] { return desk.text(QTest::currentDataTag()) == later; }, patience),
             qPrintable(desk.text(QTest::currentDataTag())));
    QCOMPARE(desk.dialog.chosenName(), QStringLiteral("GMT-1:00"));
}

void TestTimeZoneDialogClocks::tickWhileHidden()
{
    ZoneDesk desk;
    TestClock::shift(5000);
    const QString later = shown(deskTime().addSecs(5));
    QVERIFY(QTest::qWaitFor([&] { return desk.text("labelRefUTC") == later; }, patience));
    QVERIFY(!desk.dialog.isVisible());
}

void TestTimeZoneDialogClocks::followTheReferenceTime()
{
    ZoneDesk desk;
    desk.open();
    desk.combo()->setCurrentText(QStringLiteral("GMT+1:00"));
    desk.tellTime(deskTime().addSecs(86400));
    const QString later = shown(deskTime().addSecs(86400 + 3600));
    QVERIFY(QTest::qWaitFor([&] { return desk.text("labelNewDeviceTime") == later; }, patience));
    QCOMPARE(desk.text("labelRefUTC"), shown(deskTime().addSecs(86400)));
}

QTEST_MAIN(TestTimeZoneDialogClocks)
#include "tst_timezonedialog_clocks.moc"
