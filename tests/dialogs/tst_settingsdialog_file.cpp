// The settings and their file: what is read from it, what stands for what is missing, what is written.

#include "settingsdesk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

namespace {

QString key(const char* name)
{
    return QLatin1String(name);
}

} // namespace

class TestSettingsDialogFile : public QObject
{
    Q_OBJECT

private slots:
    void withoutAFile();
    void everyValueOfTheFile();
    void missingKeys();
    void readsFlags_data();
    void readsFlags();
    void readsServer_data();
    void readsServer();
    void nonsenseInNumbers();
    void fontSizeBeyondTheLimits();
    void openingRefillsTheWidgets();
    void acceptingWrites();
    void firstRowWritesTheHostAlone();
    void enabledPresetNeedsAPath();
    void cancelLeavesWidgetsAndFile();
    void closingByTheFrameIsACancel();
    void writesInAReadOnlyPlace();
    void keepsWhatItDoesNotKnow();
};

void TestSettingsDialogFile::withoutAFile()
{
    SettingsDesk desk;
    QVERIFY(!desk.dialog.loadSettings());
    QCOMPARE(desk.summary(), desk.defaults());
}

void TestSettingsDialogFile::everyValueOfTheFile()
{
    SettingsDesk desk({{key("fontsize"), key("17")},
                       {key("preseten"), key("1")},
                       {key("presetpath"), key("/some/where.bpr")},
                       {key("timeserver"), key("0.pool.ntp.org")},
                       {key("disabletime"), key("0")},
                       {key("useserverpool"), key("1")},
                       {key("disablefast"), key("1")},
                       {key("winwidth"), key("901")},
                       {key("winheight"), key("802")}});
    QVERIFY(desk.dialog.loadSettings());
    QCOMPARE(
        desk.summary(),
        QStringLiteral("preset, \"/some/where.bpr\", time, pool, no fast, 17 pt, 0.pool.ntp.org, 901x802"));
}

void TestSettingsDialogFile::missingKeys()
{
    SettingsDesk desk({{key("language"), key("en_us")}});
    desk.check("checkPreset");
    desk.find<QLineEdit>("lineFilename")->setText(key("old"));
    desk.choose("comboServerList", 3);
    desk.check("checkDisableFast");
    QVERIFY(desk.dialog.loadSettings());
    QCOMPARE(desk.summary(),
             QStringLiteral("no preset, \"\", no time, pool, fast, %1 pt, time.google.com, 0x0")
                 .arg(desk.find<QSpinBox>("spinFont")->minimum()));
}

void TestSettingsDialogFile::readsFlags_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("set");
    QTest::newRow("1") << "1" << true;
    QTest::newRow("0") << "0" << false;
    QTest::newRow("-3") << "-3" << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("true") << "true" << false;
}

void TestSettingsDialogFile::readsFlags()
{
    QFETCH(QString, value);
    QFETCH(bool, set);
    SettingsDesk desk({{key("preseten"), value},
                       {key("disabletime"), value},
                       {key("useserverpool"), value},
                       {key("disablefast"), value}});
    QVERIFY(desk.dialog.loadSettings());
    for (const char* box : {"checkPreset", "checkDisableTime", "checkUsePool", "checkDisableFast"})
        QCOMPARE(desk.isChecked(box), set);
}

void TestSettingsDialogFile::readsServer_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("row");
    QTest::newRow("a row") << "stdtime.gov.hk" << 2;
    QTest::newRow("the last row") << "1.cn.pool.ntp.org" << 6;
    QTest::newRow("the first row's host") << "time.google.com" << 0;
    QTest::newRow("the first row's text") << "time.google.com (Recommended)" << 0;
    QTest::newRow("no row") << "ntp.elsewhere.example" << 0;
    QTest::newRow("other case") << "TIME.NIST.GOV" << 0;
    QTest::newRow("empty") << "" << 0;
}

void TestSettingsDialogFile::readsServer()
{
    QFETCH(QString, value);
    SettingsDesk desk({{key("timeserver"), value}});
    desk.choose("comboServerList", 4);
    QVERIFY(desk.dialog.loadSettings());
    QTEST(desk.find<QComboBox>("comboServerList")->currentIndex(), "row");
}

void TestSettingsDialogFile::nonsenseInNumbers()
{
    SettingsDesk desk(
        {{key("winwidth"), key("wide")}, {key("winheight"), key("9e9")}, {key("fontsize"), key("x")}});
    QVERIFY(desk.dialog.loadSettings());
    QCOMPARE(desk.dialog.savedWindowSize(), QSize(0, 0));
    QCOMPARE(desk.dialog.fontSize(), desk.find<QSpinBox>("spinFont")->minimum());
}

void TestSettingsDialogFile::fontSizeBeyondTheLimits()
{
    SettingsDesk desk({{key("fontsize"), key("1000")}});
    QVERIFY(desk.dialog.loadSettings());
    QCOMPARE(desk.dialog.fontSize(), desk.find<QSpinBox>("spinFont")->maximum());
}

void TestSettingsDialogFile::openingRefillsTheWidgets()
{
    SettingsDesk desk({{key("fontsize"), key("17")}, {key("disabletime"), key("0")}});
    desk.dialog.loadSettings();
    desk.find<QSpinBox>("spinFont")->setValue(20);
    desk.check("checkDisableTime");
    desk.open();
    QCOMPARE(desk.dialog.fontSize(), 17);
    QVERIFY(desk.dialog.timeEnabled());
}

void TestSettingsDialogFile::acceptingWrites()
{
    SettingsDesk desk;
    desk.open();
    desk.find<QSpinBox>("spinFont")->setValue(13);
    desk.find<QLineEdit>("lineFilename")->setText(QStringLiteral("/a b/ü.bpr"));
    desk.check("checkPreset");
    desk.choose("comboServerList", 3);
    desk.check("checkDisableFast");
    QTest::mouseClick(desk.find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(WorkFolder::configuration(), Settings({{key("fontsize"), key("13")},
                                                    {key("preseten"), key("1")},
                                                    {key("presetpath"), QStringLiteral("/a b/ü.bpr")},
                                                    {key("timeserver"), key("0.pool.ntp.org")},
                                                    {key("disabletime"), key("0")},
                                                    {key("useserverpool"), key("0")},
                                                    {key("disablefast"), key("1")},
                                                    {key("winwidth"), key("900")},
                                                    {key("winheight"), key("800")}}));
    QCOMPARE(desk.dialog.savedWindowSize(), QSize(900, 800));
}

void TestSettingsDialogFile::firstRowWritesTheHostAlone()
{
    SettingsDesk desk;
    desk.dialog.accept();
    QCOMPARE(WorkFolder::configuration().value(key("timeserver")), key("time.google.com"));
}

void TestSettingsDialogFile::enabledPresetNeedsAPath()
{
    SettingsDesk desk;
    desk.check("checkPreset");
    desk.dialog.accept();
    QVERIFY(!desk.dialog.presetEnabled());
    QCOMPARE(WorkFolder::configuration().value(key("preseten")), key("0"));
}

void TestSettingsDialogFile::cancelLeavesWidgetsAndFile()
{
    SettingsDesk desk({{key("fontsize"), key("17")}});
    desk.open();
    desk.find<QSpinBox>("spinFont")->setValue(20);
    QTest::mouseClick(desk.find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Cancel),
                      Qt::LeftButton);
    QCOMPARE(WorkFolder::configuration(), Settings({{key("fontsize"), key("17")}}));
    // What the widgets show is in force, and is written at the next opportunity.
    QCOMPARE(desk.dialog.fontSize(), 20);
    desk.dialog.saveSettings();
    QCOMPARE(WorkFolder::configuration().value(key("fontsize")), key("20"));
}

void TestSettingsDialogFile::closingByTheFrameIsACancel()
{
    SettingsDesk desk({{key("fontsize"), key("17")}});
    desk.open();
    desk.find<QSpinBox>("spinFont")->setValue(20);
    const QSignalSpy rejections(&desk.dialog, &QDialog::rejected);
    QVERIFY(desk.dialog.close());
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.dialog.result(), int(QDialog::Rejected));
    QCOMPARE(rejections.count(), 0); // no more than hiding
    QCOMPARE(WorkFolder::configuration(), Settings({{key("fontsize"), key("17")}}));
}

void TestSettingsDialogFile::writesInAReadOnlyPlace()
{
    SettingsDesk desk;
    desk.dialog.setConfigPath(QStringLiteral("no/such/folder/blconf"));
    desk.dialog.saveSettings();
    QVERIFY(!QFile::exists(QStringLiteral("no/such/folder/blconf")));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestSettingsDialogFile::keepsWhatItDoesNotKnow()
{
    SettingsDesk desk({{key("language"), key("xx_yy")}});
    desk.dialog.loadSettings();
    desk.dialog.accept();
    QCOMPARE(WorkFolder::configuration().value(key("language")), key("xx_yy"));
}

QTEST_MAIN(TestSettingsDialogFile)
#include "tst_settingsdialog_file.moc"
