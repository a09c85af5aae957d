// Loading a preset: the choice of the file, and where its values go.

#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "presetrig.h"
#include "support/loglines.h"
#include "windowstate.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace {

/// Another value than basicLogger()'s in every place.
PresetTable fullPreset()
{
    return {{QStringLiteral("mintemp"), QStringLiteral("15")},
            {QStringLiteral("maxtemp"), QStringLiteral("30")},
            {QStringLiteral("samplet"), QStringLiteral("1800")},
            {QStringLiteral("startdl"), QStringLiteral("14400")},
            {QStringLiteral("timezone"), QStringLiteral("GMT")},
            {QStringLiteral("sender"), QStringLiteral("Somebody")},
            {QStringLiteral("recipient"), QStringLiteral("Somebody else")},
            {QStringLiteral("info"), QStringLiteral("Blood")},
            {QStringLiteral("type"), QStringLiteral("Sea")},
            {QStringLiteral("buttonlock"), QStringLiteral("0")},
            {QStringLiteral("policies"), QStringLiteral("771")},
            {QStringLiteral("password"), QStringLiteral("Secret")},
            {QStringLiteral("startdate_en"), QStringLiteral("1")},
            {QStringLiteral("startdate"), QStringLiteral("03:04:05 01/02/2031")},
            {QStringLiteral("stopdate_en"), QStringLiteral("1")},
            {QStringLiteral("stopdate"), QStringLiteral("23:59:58 31/12/2031")}};
}

QStringList panelsOfFullPreset()
{
    return panelsWith(panelsOfBasicLogger(),
                      {QStringLiteral("lineSender = Somebody"),
                       QStringLiteral("lineRecipient = Somebody else"), QStringLiteral("lineInfo = Blood"),
                       QStringLiteral("comboTemp = 15°C to 30°C"),
                       QStringLiteral("comboSampling = 30 minutes"), QStringLiteral("comboDelay = 4 hours"),
                       QStringLiteral("comboType = Sea")});
}

const QStringList numbersOfFullPreset{QStringLiteral("spinSampling = 30"), QStringLiteral("spinDelay = 240"),
                                      QStringLiteral("spindTempMin = 15"),
                                      QStringLiteral("spindTempMax = 30"), QStringLiteral("checkLock = 0")};

/// The dialog's values in one line.
QString optionsOf(const PresetRig& rig)
{
    return QStringLiteral("%1, \"%2\", %3, %4")
        .arg(rig.options()->lPolicies())
        .arg(rig.options()->lPassword(), startDate(rig), stopDate(rig));
}

const QString optionsOfFullPreset =
    QStringLiteral("771, \"Secret\", on 03:04:05 01/02/2031, on 23:59:58 31/12/2031");

QString loaded(const QString& path)
{
    return QStringLiteral("Loaded ") + path;
}

void expectCorrupted(PresetRig& rig)
{
    rig.robot.expectWarning(QStringLiteral("Error"),
                            QStringLiteral("Unable to read from selected file. File is corrupted."));
}

} // namespace

class TestMainWindowPresetsLoading : public QObject
{
    Q_OBJECT

private slots:
    void asksForAFile();
    void endsWithoutAName_data() { addNamelessRows(); }
    void endsWithoutAName();
    void spreadsEveryValue_data();
    void spreadsEveryValue();
    void leavesTheBarcodeAlone();
    void fillsAnExtendedLoggersWindow();
    void missingKeys_data();
    void missingKeys();
    void unreadable_data();
    void unreadable();
    void buttonNeedsTheSetting();
    void buttonTakesThePathAsItStands();
    void carriesTheTableOver();
    void plainFileReplacesTheTable();
    void logsThePath();
};

void TestMainWindowPresetsLoading::asksForAFile()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.load(QString());
    QCOMPARE(rig.hand.showings, 1);
    QCOMPARE(rig.hand.title, QStringLiteral("Load preset"));
    QCOMPARE(rig.hand.directory, rig.documents);
    QCOMPARE(rig.hand.filters, QStringList("Brumalogger preset files (*.bpr)"));
    QCOMPARE(rig.hand.mode, QFileDialog::AcceptOpen);
    QCOMPARE(rig.hand.parent, &rig.window);
}

void TestMainWindowPresetsLoading::endsWithoutAName()
{
    QFETCH(const QString, typed);
    PresetRig rig;
    writePreset(rig.document(QStringLiteral("  ")),
                presetWith(presetOfBasicLogger(), {{QStringLiteral("info"), QStringLiteral("Batch 9")}}));
    rig.plugAndConnect();
    rig.takeStatusLog();
    const LogLines log;
    rig.load(typed.isEmpty() ? QString() : rig.document(typed));
    QCOMPARE(log.all().filter(QStringLiteral("Opening")), QStringList());
    QCOMPARE(rig.takeStatusLog(), QStringList());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowPresetsLoading::spreadsEveryValue_data()
{
    QTest::addColumn<bool>("byMenu");
    QTest::addColumn<bool>("plain");
    QTest::newRow("by the menu") << true << false;
    QTest::newRow("by the menu, version 1.0") << true << true;
    QTest::newRow("by the button") << false << false;
    QTest::newRow("by the button, version 1.0") << false << true;
}

void TestMainWindowPresetsLoading::spreadsEveryValue()
{
    QFETCH(const bool, byMenu);
    QFETCH(const bool, plain);
    PresetRig rig;
    rig.plugAndConnect();
    const QString path = byMenu ? rig.document(QStringLiteral("full.bpr")) : defaultPreset;
    (plain ? writePlainPreset : writePreset)(path, fullPreset());
    if (byMenu)
        rig.load(path);
    else
        rig.press("buttonPreset");
    QCOMPARE(panels(rig), panelsOfFullPreset());
    QCOMPARE(setupNumbers(rig), numbersOfFullPreset);
    QCOMPARE(optionsOf(rig), optionsOfFullPreset);
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(differences(rig, idle(loaded(path), true)), QString());
}

void TestMainWindowPresetsLoading::leavesTheBarcodeAlone()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.apply(presetWith(fullPreset(), {{QStringLiteral("barcode"), QStringLiteral("9999")}}));
    QCOMPARE(rig.text("lineBarcode"), QStringLiteral("B1234"));
}

void TestMainWindowPresetsLoading::fillsAnExtendedLoggersWindow()
{
    PresetRig rig;
    rig.plugAndConnect(secureLogger());
    rig.apply(fullPreset());
    QCOMPARE(setupNumbers(rig), numbersOfFullPreset);
    QCOMPARE(optionsOf(rig), optionsOfFullPreset);
    rig.press("buttonWrite");
    const LoggerModel::Settings& settings = rig.logger->model().settings();
    QCOMPARE(settings.policies, 771);
    QCOMPARE(settings.password, QStringLiteral("Secret"));
    QCOMPARE(settings.startDate, figures(1, 2, 2031, 3, 4, 5).toSecsSinceEpoch());
    QCOMPARE(settings.stopDate, figures(31, 12, 2031, 23, 59, 58).toSecsSinceEpoch());
    QCOMPARE(settings.tempMin, 15000);
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

// Numbers become 0, which the spin boxes clamp, and texts empty; the dialog keeps what it has.
void TestMainWindowPresetsLoading::missingKeys_data()
{
    QTest::addColumn<bool>("plain");
    QTest::newRow("version 1.0") << true;
    QTest::newRow("version 2.0") << false;
}

void TestMainWindowPresetsLoading::missingKeys()
{
    QFETCH(const bool, plain);
    PresetRig rig;
    rig.plugAndConnect(secureLogger());
    rig.options()->lSetPassword(QStringLiteral("kept"));
    const QString options = optionsOf(rig);
    QCOMPARE(options, QStringLiteral("4355, \"kept\", on 08:00:00 16/05/2024, on 09:00:00 20/05/2024"));
    (plain ? writePlainPreset : writePreset)(defaultPreset, {});
    rig.press("buttonPreset");
    QCOMPARE(setupNumbers(rig), QStringList({"spinSampling = 1", "spinDelay = 1", "spindTempMin = 0",
                                             "spindTempMax = 0", "checkLock = 0"}));
    QCOMPARE(panels(rig).mid(5),
             QStringList({"lineSender = ", "lineRecipient = ", "lineInfo = ", "lineBarcode = B1234",
                          "comboTemp = Custom", "comboSampling = Custom", "comboDelay = Custom",
                          "comboType =  "}));
    QCOMPARE(optionsOf(rig), options);
    QCOMPARE(differences(rig, idle(loaded(defaultPreset), true)), QString());
}

void TestMainWindowPresetsLoading::unreadable_data()
{
    QTest::addColumn<QString>("damage");
    for (const char* damage : {"no file", "a folder", "digest", "version", "empty"})
        QTest::newRow(damage) << QString(damage);
}

// The next save goes on with the table as it was.
void TestMainWindowPresetsLoading::unreadable()
{
    QFETCH(const QString, damage);
    PresetRig rig;
    rig.plugAndConnect();
    if (damage == QLatin1String("digest"))
        writeDamagedPreset(defaultPreset);
    QFile file(defaultPreset);
    if (damage == QLatin1String("version"))
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("3.0\ninfo=Blood\n") > 0);
    if (damage == QLatin1String("empty"))
        QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    if (damage == QLatin1String("a folder"))
        QVERIFY(QDir().mkpath(defaultPreset));
    const QStringList before = panels(rig) + setupNumbers(rig) + QStringList(optionsOf(rig));
    rig.takeStatusLog();
    expectCorrupted(rig);
    rig.press("buttonPreset");
    QCOMPARE(panels(rig) + setupNumbers(rig) + QStringList(optionsOf(rig)), before);
    QCOMPARE(rig.takeStatusLog(), QStringList());
    rig.save(rig.document(QStringLiteral("own")));
    QCOMPARE(presetIn(rig.document(QStringLiteral("own.bpr"))), presetOfBasicLogger());
    QCOMPARE(rig.robot.problems(), QString());
    QVERIFY(!rig.isModified());
}

// The button is disabled then, but not before the settings are accepted.
void TestMainWindowPresetsLoading::buttonNeedsTheSetting()
{
    PresetRig rig;
    rig.plugAndConnect();
    writePreset(defaultPreset, fullPreset());
    rig.check("checkPreset", false);
    QVERIFY(rig.isEnabled("buttonPreset"));
    rig.press("buttonPreset");
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowPresetsLoading::buttonTakesThePathAsItStands()
{
    const QString path = defaultPreset + QLatin1Char(' ');
    PresetRig rig(quietSettingsWith(
        {{QStringLiteral("preseten"), QStringLiteral("1")}, {QStringLiteral("presetpath"), path}}));
    rig.plugAndConnect();
    writePreset(defaultPreset, fullPreset());
    expectCorrupted(rig);
    rig.press("buttonPreset");
    writePreset(path, fullPreset());
    rig.press("buttonPreset");
    QCOMPARE(panels(rig), panelsOfFullPreset());
    QCOMPARE(differences(rig, idle(loaded(path), true)), QString());
}

void TestMainWindowPresetsLoading::carriesTheTableOver()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.apply(fullPreset());
    rig.apply({{QStringLiteral("info"), QStringLiteral("Milk")}});
    QCOMPARE(panels(rig), panelsWith(panelsOfFullPreset(), {QStringLiteral("lineInfo = Milk")}));
    QCOMPARE(setupNumbers(rig), numbersOfFullPreset);
    QCOMPARE(optionsOf(rig), optionsOfFullPreset);
}

void TestMainWindowPresetsLoading::plainFileReplacesTheTable()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.apply(fullPreset());
    writePlainPreset(defaultPreset, {{QStringLiteral("info"), QStringLiteral("Milk")}});
    rig.press("buttonPreset");
    QCOMPARE(panels(rig).mid(5, 3), QStringList({"lineSender = ", "lineRecipient = ", "lineInfo = Milk"}));
    QCOMPARE(optionsOf(rig), optionsOfFullPreset);
}

void TestMainWindowPresetsLoading::logsThePath()
{
    PresetRig rig;
    rig.plugAndConnect();
    writePreset(defaultPreset, fullPreset());
    const LogLines log;
    rig.press("buttonPreset");
    QCOMPARE(log.all(), QStringList({"debug: Opening  \"default.bpr\"", "debug: READING =  \"default.bpr\"",
                                     "debug: File version  2 . 0", log.all().value(3),
                                     "debug: Got date/time string: \"03:04:05 01/02/2031\"",
                                     log.all().value(5), log.all().value(6)}));
    QVERIFY2(log.all().value(3).contains(QLatin1String("_gendate_:")), qPrintable(log.all().value(3)));
    for (const int i : {5, 6})
        QVERIFY2(
            log.all().value(i).startsWith(QLatin1String("debug: Read date/time from file: QDateTime(2031-")),
            qPrintable(log.all().value(i)));
}

QTEST_MAIN(TestMainWindowPresetsLoading)
#include "tst_mainwindow_presets_loading.moc"
