// The temperature range of the setup panel: list choices, numbers from the logger, what the operator types.

#include "procedurerig.h"
#include "setuppanel.h"
#include "windowwords.h"

#include <QDoubleSpinBox>
#include <QTest>

using namespace WindowWords;

namespace {

struct Range
{
    const char* label;
    double min;
    double max;
};

constexpr Range tempRanges[] = {
    {"2°C to 8°C", 2, 8},         {"-10°C to -1°C", -10, -1}, {"-8°C to -2°C", -8, -2},
    {"2°C to 25°C", 2, 25},       {"15°C to 25°C", 15, 25},   {"15°C to 30°C", 15, 30},
    {"-30°C to -15°C", -30, -15},
};

/// Thousandths of a degree.
LoggerModel loggerWithRange(int min, int max)
{
    LoggerModel model = basicLogger();
    model.settings().tempMin = min;
    model.settings().tempMax = max;
    return model;
}

} // namespace

class TestMainWindowRange : public QObject
{
    Q_OBJECT

private slots:
    void choosesRange_data();
    void choosesRange();
    void zerosUntilFirstUsed();
    void readsRange_data();
    void readsRange();
    void readsRangeWithoutValidation();
    void validatesTypedRange_data();
    void validatesTypedRange();
    void validatesWhenTheBoxIsLeft();
    void noticeIsNotDoubled_data();
    void noticeIsNotDoubled();
    void validRangeThatTheLoggerCannotTake();
    void disconnectingWithTheFocusInTheRange();
    void closingWithAHalfTypedRange();
    void hiddenWindowStillSpeaks();
};

void TestMainWindowRange::choosesRange_data()
{
    QTest::addColumn<QString>("expected");
    for (const Range& row : tempRanges)
        QTest::newRow(row.label) << QStringLiteral("%1 to %2").arg(row.min).arg(row.max);
}

void TestMainWindowRange::choosesRange()
{
    ProcedureRig rig;
    const Panel panel(rig);
    panel.choose("comboTemp", QStringLiteral("Custom"));
    QCOMPARE(panel.range(), QStringLiteral("0* to 0*"));
    panel.choose("comboTemp", QString::fromUtf8(QTest::currentDataTag()));
    QTEST(panel.range(), "expected");
}

void TestMainWindowRange::zerosUntilFirstUsed()
{
    ProcedureRig rig;
    const Panel panel(rig);
    QCOMPARE(panel.choice("comboTemp"), QStringLiteral("2°C to 8°C"));
    QCOMPARE(panel.range(), QStringLiteral("0 to 0"));
    QCOMPARE(panel.minutes("spinSampling"), 1);
    QCOMPARE(panel.minutes("spinDelay"), 1);
    rig.plugAndConnect(loggerWithRange(2000, 8000));
    QCOMPARE(panel.choice("comboTemp"), QStringLiteral("2°C to 8°C"));
    QCOMPARE(panel.range(), QStringLiteral("2 to 8"));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowRange::readsRange_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("range");
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("2 and 8") << 2000 << 8000 << "2°C to 8°C"
                             << "2 to 8" << QByteArray("St0000200000008000");
    QTest::newRow("-10 and -1") << -10000 << -1000 << "-10°C to -1°C"
                                << "-10 to -1" << QByteArray("St-0010000-0001000");
    QTest::newRow("-8 and -2") << -8000 << -2000 << "-8°C to -2°C"
                               << "-8 to -2" << QByteArray("St-0008000-0002000");
    QTest::newRow("2 and 25") << 2000 << 25000 << "2°C to 25°C"
                              << "2 to 25" << QByteArray("St0000200000025000");
    QTest::newRow("15 and 25") << 15000 << 25000 << "15°C to 25°C"
                               << "15 to 25" << QByteArray("St0001500000025000");
    QTest::newRow("15 and 30") << 15000 << 30000 << "15°C to 30°C"
                               << "15 to 30" << QByteArray("St0001500000030000");
    QTest::newRow("-30 and -15") << -30000 << -15000 << "-30°C to -15°C"
                                 << "-30 to -15" << QByteArray("St-0030000-0015000");
    QTest::newRow("2.5 and 8") << 2500 << 8000 << "Custom"
                               << "2.5* to 8*" << QByteArray("St0000250000008000");
    QTest::newRow("2 and 8.25") << 2000 << 8250 << "Custom"
                                << "2* to 8.25*" << QByteArray("St0000200000008250");
    QTest::newRow("minimum of one row, maximum of another")
        << -8000 << 8000 << "Custom"
        << "-8* to 8*" << QByteArray("St-000800000008000");
    QTest::newRow("more decimals than the boxes have") << 2000 << 8001 << "Custom"
                                                       << "2* to 8*" << QByteArray("St0000200000008000");
    QTest::newRow("beyond the boxes") << -40000 << 85000 << "Custom"
                                      << "-30* to 80*" << QByteArray("St-003000000080000");
}

void TestMainWindowRange::readsRange()
{
    QFETCH(const int, min);
    QFETCH(const int, max);
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithRange(min, max));
    const Panel panel(rig);
    QTEST(panel.choice("comboTemp"), "choice");
    QTEST(panel.range(), "range");
    QTEST(panel.written("St"), "command");
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowRange::readsRangeWithoutValidation()
{
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithRange(8000, 2000));
    QCOMPARE(Panel(rig).range(), QStringLiteral("8* to 2*"));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowRange::validatesTypedRange_data()
{
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("maxAfterwards");
    QTest::newRow("equal") << 10.0 << 10.0 << 11.0;
    QTest::newRow("one degree apart") << 11.0 << 10.0 << 11.0;
    QTest::newRow("hardly less than a degree apart") << 10.99 << 10.0 << 11.0;
    QTest::newRow("maximum far below") << -20.0 << 10.25 << 11.25;
    QTest::newRow("largest minimum") << 8.0 << 79.0 << 80.0;
    QTest::newRow("largest range") << 80.0 << -30.0 << 80.0;
}

// The maximum is typed first, over a minimum that takes any.
void TestMainWindowRange::validatesTypedRange()
{
    QFETCH(const double, max);
    QFETCH(const double, min);
    QFETCH(const double, maxAfterwards);
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithRange(-30000, 20000));
    const Panel panel(rig);
    panel.type("spindTempMax", max);
    QCOMPARE(panel.range(), QStringLiteral("-30* to %1*").arg(max));
    if (max != maxAfterwards)
        expectRangeNotice(rig.robot);
    panel.type("spindTempMin", min);
    QCOMPARE(panel.range(), QStringLiteral("%1* to %2*").arg(min).arg(maxAfterwards));
    QCOMPARE(rig.robot.problems(), QString());
}

// It's the maximum that moves, also when it was the maximum that was edited.
void TestMainWindowRange::validatesWhenTheBoxIsLeft()
{
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithRange(2500, 8000));
    rig.activate();
    const Panel panel(rig);
    auto* spin = rig.find<QDoubleSpinBox>("spindTempMax");
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, QStringLiteral("1"));
    expectRangeNotice(rig.robot);
    rig.find<QWidget>("lineInfo")->setFocus();
    QCOMPARE(panel.range(), QStringLiteral("2.5* to 3.5*"));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowRange::noticeIsNotDoubled_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<QByteArray>("edited");
    QTest::addColumn<double>("number");
    QTest::newRow("minimum") << -30000 << QByteArray("spindTempMin") << -16.97;
    QTest::newRow("maximum") << -16970 << QByteArray("spindTempMax") << -20.0;
}

// As 32-bit numbers these are a little less than a degree apart, and the notice takes the focus.
void TestMainWindowRange::noticeIsNotDoubled()
{
    QFETCH(const int, min);
    QFETCH(const QByteArray, edited);
    QFETCH(const double, number);
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithRange(min, -17000));
    rig.activate();
    rig.find<QDoubleSpinBox>(edited)->setFocus();
    const Panel panel(rig);
    expectRangeNotice(rig.robot);
    panel.type(edited, number);
    QCOMPARE(panel.range(), QStringLiteral("-16.97* to -15.97*"));
    QCOMPARE(rig.robot.problems(), QString());
}

// Exactly one degree is enough for the panel and not for the logger.
void TestMainWindowRange::validRangeThatTheLoggerCannotTake()
{
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithRange(2500, 8000));
    const Panel panel(rig);
    panel.type("spindTempMax", 11);
    panel.type("spindTempMin", 10);
    QCOMPARE(panel.range(), QStringLiteral("10* to 11*"));
    WindowWords::expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowRange::disconnectingWithTheFocusInTheRange()
{
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithRange(2500, 8000));
    rig.activate();
    rig.find<QDoubleSpinBox>("spindTempMax")->setFocus();
    QVERIFY(rig.find<QDoubleSpinBox>("spindTempMax")->hasFocus());
    rig.pressKeys(Qt::Key_K);
    QCOMPARE(rig.status(), QStringLiteral("Disconnected from %1").arg(rig.logger->portName()));
    QCOMPARE(Panel(rig).range(), QStringLiteral("2 to 8"));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowRange::closingWithAHalfTypedRange()
{
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithRange(2500, 8000));
    rig.activate();
    auto* maximum = rig.find<QDoubleSpinBox>("spindTempMax");
    maximum->setFocus();
    maximum->selectAll();
    QTest::keyClicks(maximum, QStringLiteral("1"));
    QVERIFY(rig.window.close());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowRange::hiddenWindowStillSpeaks()
{
    ProcedureRig rig;
    rig.window.hide();
    WindowWords::expectNoDevice(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowRange)
#include "tst_mainwindow_range.moc"
