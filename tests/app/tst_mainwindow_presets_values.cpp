// What single values of a preset become in the window, and which of them mark it as modified.

#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "presetrig.h"
#include "setuppanel.h"

#include <QTest>

class TestMainWindowPresetsValues : public QObject
{
    Q_OBJECT

private slots:
    void samplingTime_data();
    void samplingTime();
    void startDelay_data();
    void startDelay();
    void truncatedTimeIsSaved();
    void range_data();
    void range();
    void shipmentType_data();
    void shipmentType();
    void buttonLock_data();
    void buttonLock();
    void textsAreThoseOfADevice();
    void policies_data();
    void policies();
    void password_data();
    void password();
    void changes_data();
    void changes();
};

void TestMainWindowPresetsValues::samplingTime_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<int>("minutes");
    QTest::newRow("60") << "1 minute" << 1;
    QTest::newRow("120") << "Custom" << 2;
    QTest::newRow("300") << "5 minutes" << 5;
    QTest::newRow("14400") << "4 hours" << 240;
    QTest::newRow("90") << "Custom" << 1;
    QTest::newRow("599") << "Custom" << 9;
    QTest::newRow("0") << "Custom" << 1;
    QTest::newRow("-600") << "Custom" << 1;
    QTest::newRow("57600") << "Custom" << 960;
    QTest::newRow("72000") << "Custom" << 960;
    QTest::newRow("99999999999") << "Custom" << 1;
    QTest::newRow("0x12C") << "Custom" << 1;
    QTest::newRow("300.0") << "Custom" << 1;
    QTest::newRow("ten") << "Custom" << 1;
    QTest::newRow("") << "Custom" << 1;
}

void TestMainWindowPresetsValues::samplingTime()
{
    QFETCH(const QString, entry);
    QFETCH(const int, minutes);
    PresetRig rig;
    rig.plugAndConnect();
    rig.apply({{QStringLiteral("samplet"), QString(QTest::currentDataTag())}});
    QCOMPARE(Panel{rig}.choice("comboSampling"), entry);
    QCOMPARE(Panel{rig}.minutes("spinSampling"), minutes);
    QCOMPARE(rig.isEnabled("spinSampling"), entry == QLatin1String("Custom"));
}

void TestMainWindowPresetsValues::startDelay_data()
{
    samplingTime_data();
}

void TestMainWindowPresetsValues::startDelay()
{
    QFETCH(const QString, entry);
    QFETCH(const int, minutes);
    PresetRig rig;
    rig.plugAndConnect();
    rig.apply({{QStringLiteral("startdl"), QString(QTest::currentDataTag())}});
    QCOMPARE(Panel{rig}.choice("comboDelay"), entry);
    QCOMPARE(Panel{rig}.minutes("spinDelay"), minutes);
    QCOMPARE(rig.isEnabled("spinDelay"), entry == QLatin1String("Custom"));
}

void TestMainWindowPresetsValues::truncatedTimeIsSaved()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.apply({{QStringLiteral("samplet"), QStringLiteral("479")},
               {QStringLiteral("startdl"), QStringLiteral("601")}});
    rig.save(rig.document(QStringLiteral("own")));
    const PresetTable saved = presetIn(rig.document(QStringLiteral("own.bpr")));
    QCOMPARE(saved.value(QStringLiteral("samplet")), QStringLiteral("420"));
    QCOMPARE(saved.value(QStringLiteral("startdl")), QStringLiteral("600"));
}

void TestMainWindowPresetsValues::range_data()
{
    QTest::addColumn<QString>("min");
    QTest::addColumn<QString>("max");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("range");
    QTest::newRow("first row") << "2"
                               << "8"
                               << "2°C to 8°C"
                               << "2 to 8";
    QTest::newRow("first row, other words") << "2.000"
                                            << "+0.8e1"
                                            << "2°C to 8°C"
                                            << "2 to 8";
    QTest::newRow("last row") << "-30"
                              << "-15"
                              << "-30°C to -15°C"
                              << "-30 to -15";
    QTest::newRow("slightly more") << "2.000001"
                                   << "8"
                                   << "Custom"
                                   << "2* to 8*";
    QTest::newRow("slightly less") << "2"
                                   << "7.999999"
                                   << "Custom"
                                   << "2* to 8*";
    QTest::newRow("minima alike only") << "15"
                                       << "26"
                                       << "Custom"
                                       << "15* to 26*";
    QTest::newRow("fractions") << "2.5"
                               << "8.25"
                               << "Custom"
                               << "2.5* to 8.25*";
    QTest::newRow("decimal comma") << "2,5"
                                   << "8"
                                   << "Custom"
                                   << "0* to 8*";
    QTest::newRow("no numbers") << "low"
                                << "high"
                                << "Custom"
                                << "0* to 0*";
    QTest::newRow("beyond") << "-300"
                            << "300"
                            << "Custom"
                            << "-30* to 80*";
    QTest::newRow("the wrong way round") << "8"
                                         << "2"
                                         << "Custom"
                                         << "8* to 2*";
}

void TestMainWindowPresetsValues::range()
{
    QFETCH(const QString, min);
    QFETCH(const QString, max);
    PresetRig rig;
    rig.plugAndConnect();
    rig.apply({{QStringLiteral("mintemp"), min}, {QStringLiteral("maxtemp"), max}});
    QTEST(Panel{rig}.choice("comboTemp"), "entry");
    QTEST(Panel{rig}.range(), "range");
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowPresetsValues::shipmentType_data()
{
    QTest::addColumn<QString>("entry");
    QTest::newRow(" ") << " ";
    QTest::newRow("Air") << "Air";
    QTest::newRow("Land") << "Land";
    QTest::newRow("Sea") << "Sea";
    QTest::newRow("sea") << " ";
    QTest::newRow("Rail") << " ";
    QTest::newRow("") << " ";
}

void TestMainWindowPresetsValues::shipmentType()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.apply({{QStringLiteral("type"), QString(QTest::currentDataTag())}});
    QTEST(Panel{rig}.choice("comboType"), "entry");
}

void TestMainWindowPresetsValues::buttonLock_data()
{
    QTest::addColumn<QString>("shown");
    QTest::newRow("0") << "0";
    QTest::newRow("1") << "1";
    QTest::newRow("2") << "1";
    QTest::newRow("-1") << "1";
    QTest::newRow("true") << "0";
    QTest::newRow("") << "0";
}

void TestMainWindowPresetsValues::buttonLock()
{
    QFETCH(const QString, shown);
    LoggerModel model = basicLogger();
    model.settings().buttonLock = shown == QLatin1String("0"); // the other way round at first
    PresetRig rig;
    rig.plugAndConnect(model);
    rig.apply({{QStringLiteral("buttonlock"), QString(QTest::currentDataTag())}});
    rig.save(rig.document(QStringLiteral("own")));
    QCOMPARE(presetIn(rig.document(QStringLiteral("own.bpr"))).value(QStringLiteral("buttonlock")), shown);
}

// They are transliterated and cut like all others.
void TestMainWindowPresetsValues::textsAreThoseOfADevice()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.apply({{QStringLiteral("sender"), QStringLiteral("Café")},
               {QStringLiteral("recipient"), QString(61, QLatin1Char('x'))},
               {QStringLiteral("info"), QStringLiteral(" blanks ")}});
    QCOMPARE(rig.text("lineSender"), QStringLiteral("Cafe"));
    QCOMPARE(rig.text("lineRecipient"), QString(60, QLatin1Char('x')));
    QCOMPARE(rig.text("lineInfo"), QStringLiteral(" blanks "));
    QCOMPARE(rig.text("labelCountInfo"), QStringLiteral("(8/60)"));
}

void TestMainWindowPresetsValues::policies_data()
{
    QTest::addColumn<int>("word");
    QTest::newRow("0") << 0;
    QTest::newRow("4355") << 4355;
    QTest::newRow("65535") << 65535;
    QTest::newRow("") << 1;
    QTest::newRow("0x12") << 1;
    QTest::newRow("12.0") << 1;
    QTest::newRow("none") << 1;
    QTest::newRow("99999999999") << 1;
}

void TestMainWindowPresetsValues::policies()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.options()->lSetPolicies(1);
    rig.apply({{QStringLiteral("policies"), QString(QTest::currentDataTag())}});
    QTEST(rig.options()->lPolicies(), "word");
}

void TestMainWindowPresetsValues::password_data()
{
    QTest::addColumn<QString>("password");
    QTest::newRow("one") << "Sesam öffne dich";
    QTest::newRow("none") << "";
    QTest::newRow("blanks") << "  ";
}

void TestMainWindowPresetsValues::password()
{
    QFETCH(const QString, password);
    PresetRig rig;
    rig.plugAndConnect();
    rig.options()->lSetPassword(QStringLiteral("old"));
    rig.apply({{QStringLiteral("password"), password}});
    QCOMPARE(rig.options()->lPassword(), password);
}

void TestMainWindowPresetsValues::changes_data()
{
    QTest::addColumn<PresetTable>("change");
    QTest::addColumn<bool>("modified");
    const auto row = [](const char* key, const char* value, bool modified) {
        QTest::newRow(key) << PresetTable{{QString(key), QString(value)}} << modified;
    };
    QTest::newRow("none") << PresetTable{} << false;
    row("sender", "Somebody", true);
    row("recipient", "Somebody", true);
    row("info", "Milk", true);
    row("type", "Air", true);
    row("buttonlock", "0", true);
    QTest::newRow("range") << PresetTable{{"mintemp", "2"}, {"maxtemp", "8"}} << true;
    row("mintemp", "3.5", false);
    row("maxtemp", "9.5", false);
    row("samplet", "480", false);
    row("startdl", "480", false);
    QTest::newRow("sampling time of the list") << PresetTable{{"samplet", "600"}} << true;
    QTest::newRow("delay of the list") << PresetTable{{"startdl", "600"}} << true;
    row("policies", "1", false);
    row("password", "Secret", false);
    row("timezone", "GMT", false);
    row("startdate_en", "1", false);
    QTest::newRow("dates") << PresetTable{{"startdate_en", "1"},
                                          {"startdate", "03:04:05 01/02/2031"},
                                          {"stopdate_en", "1"},
                                          {"stopdate", "03:04:05 01/02/2032"}}
                           << false;
}

// From a logger with custom values everywhere to a preset that differs in one.
void TestMainWindowPresetsValues::changes()
{
    QFETCH(const PresetTable, change);
    QFETCH(const bool, modified);
    PresetRig rig;
    rig.plugAndConnect(customLogger());
    rig.apply(
        presetWith(presetWith(presetOfBasicLogger(), {{QStringLiteral("mintemp"), QStringLiteral("2.5")},
                                                      {QStringLiteral("maxtemp"), QStringLiteral("8.5")},
                                                      {QStringLiteral("samplet"), QStringLiteral("420")},
                                                      {QStringLiteral("startdl"), QStringLiteral("420")}}),
                   change));
    QCOMPARE(rig.isModified(), modified);
    QCOMPARE(rig.status(), QStringLiteral("Loaded default.bpr"));
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowPresetsValues)
#include "tst_mainwindow_presets_values.moc"
