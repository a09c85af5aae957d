// The setup panel: its lists, and list choices to numbers and back.

#include "procedurerig.h"
#include "setuppanel.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QTest>

namespace {

struct Minutes
{
    const char* label;
    int minutes;
};

constexpr Minutes sampleTimes[] = {
    {"1 minute", 1}, {"5 minutes", 5}, {"10 minutes", 10}, {"15 minutes", 15}, {"30 minutes", 30},
    {"1 hour", 60},  {"2 hours", 120}, {"3 hours", 180},   {"4 hours", 240},
};

/// The two places for a time in minutes.
struct TimePlace
{
    const char* combo;
    const char* spin;
};

constexpr TimePlace timePlaces[] = {{"comboSampling", "spinSampling"}, {"comboDelay", "spinDelay"}};

QStringList sampleTimeLabels()
{
    QStringList labels;
    for (const Minutes& row : sampleTimes)
        labels << QLatin1String(row.label);
    return labels << QStringLiteral("Custom");
}

QStringList entries(const QComboBox* combo)
{
    QStringList all;
    for (int i = 0; i < combo->count(); ++i)
        all << combo->itemText(i);
    return all;
}

LoggerModel loggerWithTimes(int samplingTime, int startDelay)
{
    LoggerModel model = basicLogger();
    model.settings().samplingTime = samplingTime;
    model.settings().startDelay = startDelay;
    return model;
}

LoggerModel loggerWithShipmentType(const QString& type)
{
    LoggerModel model = basicLogger();
    model.settings().texts[3] = type;
    return model;
}

} // namespace

class TestMainWindowSetup : public QObject
{
    Q_OBJECT

private slots:
    void lists();
    void limits_data();
    void limits();
    void choosesTime_data();
    void choosesTime();
    void customStartsFromTheLastChoice();
    void readsTime_data();
    void readsTime();
    void keepsTimesApart();
    void readsTimesAnew();
    void readsShipmentType_data();
    void readsShipmentType();
};

void TestMainWindowSetup::lists()
{
    const ProcedureRig rig;
    QCOMPARE(entries(rig.find<QComboBox>("comboSampling")), sampleTimeLabels());
    QCOMPARE(entries(rig.find<QComboBox>("comboDelay")), sampleTimeLabels());
    QCOMPARE(entries(rig.find<QComboBox>("comboTemp")),
             QStringList({"2°C to 8°C", "-10°C to -1°C", "-8°C to -2°C", "2°C to 25°C", "15°C to 25°C",
                          "15°C to 30°C", "-30°C to -15°C", "Custom"}));
    QCOMPARE(entries(rig.find<QComboBox>("comboType")), QStringList({" ", "Air", "Land", "Sea"}));
}

void TestMainWindowSetup::limits_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::newRow("spinSampling") << 1.0 << 960.0;
    QTest::newRow("spinDelay") << 1.0 << 960.0;
    QTest::newRow("spindTempMin") << -30.0 << 79.0;
    QTest::newRow("spindTempMax") << -29.0 << 80.0;
}

void TestMainWindowSetup::limits()
{
    const ProcedureRig rig;
    const auto* spin = rig.find<QAbstractSpinBox>(QTest::currentDataTag());
    QTEST(spin->property("minimum").toDouble(), "minimum");
    QTEST(spin->property("maximum").toDouble(), "maximum");
    QCOMPARE(spin->property("singleStep").toDouble(), 1.0);
    if (const auto* degrees = qobject_cast<const QDoubleSpinBox*>(spin))
        QCOMPARE(degrees->decimals(), 2);
}

void TestMainWindowSetup::choosesTime_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("minutes");
    for (const Minutes& row : sampleTimes)
        QTest::newRow(row.label) << row.label << row.minutes;
}

void TestMainWindowSetup::choosesTime()
{
    QFETCH(const QString, label);
    QFETCH(const int, minutes);
    ProcedureRig rig;
    const Panel panel(rig);
    for (const TimePlace& place : timePlaces) {
        panel.choose(place.combo, QStringLiteral("Custom"));
        QVERIFY(rig.isEnabled(place.spin));
        panel.choose(place.combo, label);
        QCOMPARE(panel.minutes(place.spin), minutes);
        QVERIFY(!rig.isEnabled(place.spin));
    }
}

void TestMainWindowSetup::customStartsFromTheLastChoice()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    const Panel panel(rig);
    panel.choose("comboSampling", QStringLiteral("3 hours"));
    panel.choose("comboDelay", QStringLiteral("30 minutes"));
    panel.choose("comboTemp", QStringLiteral("15°C to 25°C"));
    for (const char* combo : {"comboSampling", "comboDelay", "comboTemp"})
        panel.choose(combo, QStringLiteral("Custom"));
    QCOMPARE(panel.minutes("spinSampling"), 180);
    QCOMPARE(panel.minutes("spinDelay"), 30);
    QCOMPARE(panel.range(), QStringLiteral("15* to 25*"));
    QVERIFY(rig.isEnabled("spinSampling") && rig.isEnabled("spinDelay"));

    panel.type("spinSampling", 5);
    panel.type("spinDelay", 959);
    panel.type("spindTempMax", 25.5);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire().mid(0, 3), QList<QByteArray>({"St0001500000025500", "Ss00000300", "Sd00057540"}));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowSetup::readsTime_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("secondsWritten");
    for (const Minutes& row : sampleTimes)
        QTest::newRow(row.label) << row.minutes * 60 << row.label << row.minutes << row.minutes * 60;
    QTest::newRow("seven minutes") << 420 << "Custom" << 7 << 420;
    QTest::newRow("a minute and a half") << 90 << "Custom" << 1 << 60;
    QTest::newRow("a minute and a second") << 61 << "Custom" << 1 << 60;
    QTest::newRow("half a minute") << 30 << "Custom" << 1 << 60;
    QTest::newRow("none") << 0 << "Custom" << 1 << 60;
    QTest::newRow("negative") << -600 << "Custom" << 1 << 60;
    QTest::newRow("sixteen hours") << 57600 << "Custom" << 960 << 57600;
    QTest::newRow("twenty hours") << 72000 << "Custom" << 960 << 57600;
    QTest::newRow("largest number") << 2147483647 << "Custom" << 960 << 57600;
}

void TestMainWindowSetup::readsTime()
{
    QFETCH(const int, seconds);
    QFETCH(const int, secondsWritten);
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithTimes(seconds, seconds));
    const Panel panel(rig);
    for (const TimePlace& place : timePlaces) {
        QTEST(panel.choice(place.combo), "choice");
        QTEST(panel.minutes(place.spin), "minutes");
        QCOMPARE(rig.isEnabled(place.spin), panel.choice(place.combo) == QLatin1String("Custom"));
    }
    const QByteArray digits = QByteArray::number(secondsWritten).rightJustified(8, '0');
    rig.press("buttonWrite");
    QCOMPARE(rig.wire().mid(1, 2), QList<QByteArray>({"Ss" + digits, "Sd" + digits}));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowSetup::keepsTimesApart()
{
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithTimes(420, 900));
    const Panel panel(rig);
    QCOMPARE(panel.choice("comboSampling"), QStringLiteral("Custom"));
    QCOMPARE(panel.minutes("spinSampling"), 7);
    QVERIFY(rig.isEnabled("spinSampling"));
    QCOMPARE(panel.choice("comboDelay"), QStringLiteral("15 minutes"));
    QCOMPARE(panel.minutes("spinDelay"), 15);
    QVERIFY(!rig.isEnabled("spinDelay"));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowSetup::readsTimesAnew()
{
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithTimes(420, 420));
    const Panel panel(rig);
    for (const int minutes : {8, 5, 9}) { // from one custom value to the next, to a list entry and back
        rig.logger->model().settings().samplingTime = minutes * 60;
        rig.press("buttonRead");
        QCOMPARE(panel.minutes("spinSampling"), minutes);
        QCOMPARE(panel.choice("comboSampling"),
                 minutes == 5 ? QStringLiteral("5 minutes") : QStringLiteral("Custom"));
        QCOMPARE(rig.isEnabled("spinSampling"), minutes != 5);
    }
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowSetup::readsShipmentType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("choice");
    QTest::newRow("air") << "Air"
                         << "Air";
    QTest::newRow("land") << "Land"
                          << "Land";
    QTest::newRow("sea") << "Sea"
                         << "Sea";
    QTest::newRow("blank") << " "
                           << " ";
    QTest::newRow("empty") << ""
                           << " ";
    QTest::newRow("not in the list") << "Rail"
                                     << " ";
    QTest::newRow("other case") << "air"
                                << " ";
    QTest::newRow("longer") << "Airship"
                            << " ";
}

void TestMainWindowSetup::readsShipmentType()
{
    QFETCH(const QString, type);
    QFETCH(const QString, choice);
    ProcedureRig rig;
    rig.plugAndConnect(loggerWithShipmentType(type));
    const Panel panel(rig);
    QCOMPARE(panel.choice("comboType"), choice);
    QCOMPARE(panel.written("S3"), "S3" + choice.toUtf8());
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowSetup)
#include "tst_mainwindow_setup.moc"
