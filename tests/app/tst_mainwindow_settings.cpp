// The settings in the window: applied at the start and at every acceptance, saved with its size at the end.

#include "procedurerig.h"

#include "dialogs/settingsdialog.h"
#include "support/nextchance.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>

namespace {

constexpr QSize formSize(850, 789);
/// The commands of a connect and the pause before its read, each with a reply wait; opening the port waits
/// once more.
constexpr int waitsOfAConnect = 17;
constexpr int fastWait = 75;
constexpr int slowWait = 150;

QString key(const char* name)
{
    return QLatin1String(name);
}

class Rig : public ProcedureRig
{
public:
    explicit Rig(const Settings& settings = quietSettings())
        : ProcedureRig(settings)
        , dialog(window.findChild<SettingsDialog*>())
    {
    }
    void check(const char* box, bool checked = true) const
    {
        child<QCheckBox>(*dialog, box)->setChecked(checked);
    }
    /// Milliseconds that a connect takes by the program's clock.
    qint64 connectTime()
    {
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        press("buttonConnect");
        return QDateTime::currentMSecsSinceEpoch() - before;
    }

    SettingsDialog* dialog;
};

} // namespace

class TestMainWindowSettings : public QObject
{
    Q_OBJECT

private slots:
    void firstStart();
    void actionOpensTheDialog();
    void fontSizeIsTheWindows();
    void fastModeIsTheLinks_data();
    void fastModeIsTheLinks();
    void defaultPresetEnablesItsButton();
    void timeConfigurationEnablesTheEditor();
    void disabledControlsStayAlone();
    void acceptedAtAnyCommandOfAProcedure_data();
    void acceptedAtAnyCommandOfAProcedure();
    void fileIsWrittenBeforeTheSettingsApply();
    void savedSize_data();
    void savedSize();
    void closingSaves();
    void refusedClosingSavesNothing();
    void nextStartFindsItAll();
    void languagesGoToTheDialog();
};

void TestMainWindowSettings::firstStart()
{
    const Rig rig{Settings()};
    QCOMPARE(rig.window.size(), formSize);
    QVERIFY(rig.dialog->timeEnabled());
    QVERIFY(!rig.dialog->poolEnabled());
    QCOMPARE(rig.window.styleSheet(),
             QStringLiteral("font-size: %1pt").arg(QApplication::font().pointSize()));
}

void TestMainWindowSettings::actionOpensTheDialog()
{
    Rig rig;
    bool wasModal = false;
    atNextChance(rig.dialog, [&] {
        wasModal = QApplication::activeModalWidget() == rig.dialog;
        child<QSpinBox>(*rig.dialog, "spinFont")->setValue(19);
        QTest::mouseClick(child<QDialogButtonBox>(*rig.dialog, "buttonBox")->button(QDialogButtonBox::Ok),
                          Qt::LeftButton);
    });
    rig.find<QAction>("actionSettings")->trigger();
    QVERIFY(wasModal);
    QCOMPARE(rig.window.styleSheet(), QStringLiteral("font-size: 19pt"));
    QCOMPARE(WorkFolder::configuration().value(key("fontsize")), key("19"));
}

void TestMainWindowSettings::fontSizeIsTheWindows()
{
    Rig rig(quietSettingsWith({{key("fontsize"), key("14")}}));
    QCOMPARE(rig.window.styleSheet(), QStringLiteral("font-size: 14pt"));
    QCOMPARE(rig.find<QPushButton>("buttonRead")->font().pointSize(), 14);
    QCOMPARE(rig.dialog->font().pointSize(), 14);
    child<QSpinBox>(*rig.dialog, "spinFont")->setValue(16);
    QCOMPARE(rig.find<QPushButton>("buttonRead")->font().pointSize(), 14);
    rig.dialog->accept();
    QCOMPARE(rig.find<QPushButton>("buttonRead")->font().pointSize(), 16);
}

void TestMainWindowSettings::fastModeIsTheLinks_data()
{
    QTest::addColumn<bool>("atTheStart");
    QTest::addColumn<bool>("later");
    QTest::newRow("fast") << false << false;
    QTest::newRow("slow") << true << true;
    QTest::newRow("slow later") << false << true;
    QTest::newRow("fast later") << true << false;
}

void TestMainWindowSettings::fastModeIsTheLinks()
{
    QFETCH(bool, atTheStart);
    QFETCH(bool, later);
    Rig rig(quietSettingsWith({{key("disablefast"), key(atTheStart ? "1" : "0")}}));
    rig.plug();
    if (later != atTheStart) {
        rig.check("checkDisableFast", later);
        rig.dialog->accept();
    }
    const qint64 leastTime = qint64(waitsOfAConnect) * (later ? slowWait : fastWait);
    const qint64 time = rig.connectTime();
    QVERIFY2(time >= leastTime && time < leastTime * 3 / 2, qPrintable(QString::number(time)));
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), connectCommands() + writeCommandsOfBasicLogger());
}

void TestMainWindowSettings::defaultPresetEnablesItsButton()
{
    Rig rig(quietSettingsWith({{key("preseten"), key("1")}, {key("presetpath"), key("some.bpr")}}));
    QVERIFY(!rig.isEnabled("buttonPreset"));
    rig.plugAndConnect();
    QVERIFY(rig.isEnabled("buttonPreset"));
    rig.check("checkPreset", false);
    QVERIFY(rig.isEnabled("buttonPreset"));
    rig.dialog->accept();
    QVERIFY(!rig.isEnabled("buttonPreset"));
    rig.check("checkPreset");
    rig.dialog->accept();
    QVERIFY(rig.isEnabled("buttonPreset"));
    rig.press("buttonConnect");
    QVERIFY(!rig.isEnabled("buttonPreset"));
}

// By the setting alone, whether there is a reference time or not.
void TestMainWindowSettings::timeConfigurationEnablesTheEditor()
{
    Rig rig;
    rig.plugAndConnect();
    QVERIFY(!rig.isEnabled("buttonToolTimeZone"));
    rig.check("checkDisableTime", false);
    rig.dialog->accept();
    QVERIFY(rig.find<QToolButton>("buttonToolTimeZone")->isEnabled());
    rig.check("checkDisableTime");
    rig.dialog->accept();
    QVERIFY(!rig.find<QToolButton>("buttonToolTimeZone")->isEnabled());
}

void TestMainWindowSettings::disabledControlsStayAlone()
{
    Rig rig;
    rig.check("checkPreset");
    child<QLineEdit>(*rig.dialog, "lineFilename")->setText(key("some.bpr"));
    rig.check("checkDisableTime", false);
    child<QSpinBox>(*rig.dialog, "spinFont")->setValue(18);
    rig.dialog->accept();
    QVERIFY(!rig.isEnabled("buttonPreset"));
    QVERIFY(!rig.find<QToolButton>("buttonToolTimeZone")->isEnabled());
    QCOMPARE(rig.window.styleSheet(), QStringLiteral("font-size: 18pt"));
    QCOMPARE(rig.status(), QStringLiteral("Fetching time and date from time.google.com..."));
}

void TestMainWindowSettings::acceptedAtAnyCommandOfAProcedure_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("command");
    for (int command = 1; command <= stepsOfRead; command++)
        QTest::addRow("read, %d", command) << QByteArray("buttonRead") << command;
    for (int command = 1; command <= writeCommandsOfBasicLogger().size(); command++)
        QTest::addRow("write, %d", command) << QByteArray("buttonWrite") << command;
}

void TestMainWindowSettings::acceptedAtAnyCommandOfAProcedure()
{
    QFETCH(QByteArray, button);
    QFETCH(int, command);
    Rig rig;
    rig.plugAndConnect();
    bool enabledThen = true;
    rig.atCommand(command, [&] {
        child<QLineEdit>(*rig.dialog, "lineFilename")->setText(key("some.bpr"));
        rig.check("checkPreset");
        rig.check("checkDisableTime", false);
        rig.check("checkDisableFast");
        child<QSpinBox>(*rig.dialog, "spinFont")->setValue(17);
        rig.dialog->accept();
        enabledThen = rig.isEnabled("buttonPreset") || rig.isEnabled("buttonToolTimeZone");
    });
    rig.press(button);
    QVERIFY(!enabledThen);
    QVERIFY(rig.isEnabled("buttonPreset"));
    QVERIFY(!rig.isEnabled("buttonToolTimeZone")); // no reference time
    QCOMPARE(rig.wire(), button == "buttonRead" ? readCommands() : writeCommandsOfBasicLogger());
    QCOMPARE(rig.window.styleSheet(), QStringLiteral("font-size: 17pt"));
    QCOMPARE(rig.robot.problems(), QString());
}

// Asking for the time is a part of applying the settings. The dialog first takes back a preset without a
// path.
void TestMainWindowSettings::fileIsWrittenBeforeTheSettingsApply()
{
    Rig rig;
    rig.plugAndConnect();
    rig.check("checkPreset");
    rig.check("checkDisableTime", false);
    QList<Settings> files;
    QObject::connect(rig.find<QStatusBar>("statusBar"), &QStatusBar::messageChanged, &rig.window,
                     [&files] { files << WorkFolder::configuration(); });
    rig.dialog->accept();
    QCOMPARE(files.size(), 1);
    QCOMPARE(files.first().value(key("preseten")), key("0"));
    QCOMPARE(files.first().value(key("disabletime")), key("0"));
    QVERIFY(!rig.isEnabled("buttonPreset"));
}

void TestMainWindowSettings::savedSize_data()
{
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("height");
    QTest::addColumn<QSize>("size");
    QTest::newRow("larger") << "1000"
                            << "900" << QSize(1000, 900);
    QTest::newRow("no width") << "0"
                              << "900" << formSize;
    QTest::newRow("no height") << "1000" << QString() << formSize;
    QTest::newRow("below the minimum") << "100"
                                       << "50" << QSize(760, 680);
    QTest::newRow("nonsense") << "wide"
                              << "high" << formSize;
}

void TestMainWindowSettings::savedSize()
{
    QFETCH(QString, width);
    QFETCH(QString, height);
    Settings settings = quietSettingsWith({{key("winwidth"), width}});
    if (!height.isNull())
        settings.insert(key("winheight"), height);
    const Rig rig(settings);
    QTEST(rig.window.size(), "size");
}

void TestMainWindowSettings::closingSaves()
{
    Rig rig;
    rig.window.resize(920, 810);
    rig.check("checkDisableFast");
    QVERIFY(rig.window.close());
    QCOMPARE(WorkFolder::configuration().value(key("winwidth")), key("920"));
    QCOMPARE(WorkFolder::configuration().value(key("winheight")), key("810"));
    QCOMPARE(WorkFolder::configuration().value(key("disablefast")), key("1"));
}

void TestMainWindowSettings::refusedClosingSavesNothing()
{
    Rig rig;
    rig.plugAndConnect();
    rig.type("lineInfo", QStringLiteral("changed"));
    rig.check("checkDisableFast");
    rig.robot.expectQuestion(QStringLiteral("Exit"),
                             QStringLiteral("There are modifications that were not written to the device.\n"
                                            "Do you really wish to exit?"),
                             QMessageBox::No);
    QVERIFY(!rig.window.close());
    QVERIFY(!WorkFolder::configuration().contains(key("disablefast")));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowSettings::nextStartFindsItAll()
{
    Rig rig;
    rig.window.resize(930, 820);
    child<QSpinBox>(*rig.dialog, "spinFont")->setValue(15);
    child<QLineEdit>(*rig.dialog, "lineFilename")->setText(QStringLiteral("/größer/preset.bpr"));
    rig.check("checkPreset");
    rig.dialog->accept();
    QVERIFY(rig.window.close());

    const MainWindow next;
    QCOMPARE(next.size(), QSize(930, 820));
    QCOMPARE(next.styleSheet(), QStringLiteral("font-size: 15pt"));
    const auto* dialog = next.findChild<SettingsDialog*>();
    QVERIFY(dialog->presetEnabled());
    QCOMPARE(dialog->presetPath(), QStringLiteral("/größer/preset.bpr"));
}

void TestMainWindowSettings::languagesGoToTheDialog()
{
    Rig rig;
    rig.window.lSetLanguages({{key("en_us"), {key("English (US)"), key("en")}}});
    QCOMPARE(child<QComboBox>(*rig.dialog, "comboLanguage")->itemText(0), key("English (US)"));
}

QTEST_MAIN(TestMainWindowSettings)
#include "tst_mainwindow_settings.moc"
