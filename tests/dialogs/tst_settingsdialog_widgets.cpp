// The dialog of the settings: its form, what can be used when, the choice of a preset.

#include "settingsdesk.h"

#include "app/languages.h"
#include "support/filedialoghand.h"
#include "support/minimised.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTest>
#include <QToolButton>

class TestSettingsDialogWidgets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void form();
    void texts_data();
    void texts();
    void toolTips_data();
    void toolTips();
    void servers();
    void fontSizes_data();
    void fontSizes();
    void serverTimeIsAFixedFact();
    void choiceOutlivesMinimising();
    void timeOffDisablesServerAndPool();
    void timeOnRestoresWhatThePoolDemands();
    void poolDisablesTheServer();
    void choosesAPreset();
    void pathIsTrimmed();
    void cancelledChoiceChangesNothing();
    void nothingIsCut_data();
    void nothingIsCut();
};

void TestSettingsDialogWidgets::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QStandardPaths::setTestModeEnabled(true);
}

void TestSettingsDialogWidgets::form()
{
    const SettingsDesk desk;
    QCOMPARE(desk.dialog.windowTitle(), QStringLiteral("Settings"));
    QVERIFY(!desk.dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QCOMPARE(desk.find<QWidget>("buttonBox")->minimumWidth(), 400);
    QCOMPARE(desk.find<QDialogButtonBox>("buttonBox")->standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QVERIFY(desk.find<QLineEdit>("lineFilename")->isReadOnly());
    for (const char* combo : {"comboServerList", "comboLanguage"})
        QVERIFY(!desk.find<QComboBox>(combo)->isEditable());
    for (const char* box : {"checkDisableTime", "checkUsePool"})
        QVERIFY(desk.isEnabled(box) && !desk.isChecked(box));
    QVERIFY(desk.isEnabled("comboServerList") && desk.isEnabled("labelTimeServer"));
}

void TestSettingsDialogWidgets::texts_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* widget, const char* property, const char* text) {
        QTest::newRow(widget) << QByteArray(property) << QString(text);
    };
    row("groupBox", "title", "Default Preset");
    row("groupBox_2", "title", "General");
    row("groupBox_3", "title", "Device Time Configuration");
    row("groupBox_4", "title", "General Device Settings");
    row("buttonTool", "text", "...");
    row("checkPreset", "text", "Enable preset");
    row("label_2", "text", "Application font size:");
    row("label_3", "text", "Application language:");
    row("labelTimeServer", "text", "Time Server (NTP):");
    row("checkDisableTime", "text", "Disable Time Configuration");
    row("checkEnforceServerTime", "text", "Enforce use of time server");
    row("checkUsePool", "text", "Use multiple time servers (recommended)");
    row("checkDisableFast", "text", "Disable fast Read/Write (recommended for slower computers)");
}

void TestSettingsDialogWidgets::texts()
{
    QFETCH(QByteArray, property);
    const SettingsDesk desk;
    QTEST(desk.find<QWidget>(QTest::currentDataTag())->property(property).toString(), "text");
}

void TestSettingsDialogWidgets::toolTips_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("checkDisableTime") << "Enable/disable Time Zone Editor functinality.";
    QTest::newRow("checkEnforceServerTime")
        << "Fetch time reference from time server instead of using local computer time.";
    QTest::newRow("checkUsePool") << "Fetch time reference from multiple servers. Using single servers is "
                                     "disencouraged, as they may send slightly outdated references.";
    QTest::newRow("checkDisableFast")
        << "Disables the standard fast Read/Write. Recommended if the computer is "
           "facing issues during Read/Write operations to the device.";
    QTest::newRow("checkPreset") << "";
}

void TestSettingsDialogWidgets::toolTips()
{
    const SettingsDesk desk;
    QTEST(desk.find<QWidget>(QTest::currentDataTag())->toolTip(), "text");
}

void TestSettingsDialogWidgets::servers()
{
    const SettingsDesk desk;
    const QStringList expected{QStringLiteral("time.google.com (Recommended)"),
                               QStringLiteral("time.nist.gov"),
                               QStringLiteral("stdtime.gov.hk"),
                               QStringLiteral("0.pool.ntp.org"),
                               QStringLiteral("1.pool.ntp.org"),
                               QStringLiteral("0.cn.pool.ntp.org"),
                               QStringLiteral("1.cn.pool.ntp.org")};
    const auto* combo = desk.find<QComboBox>("comboServerList");
    QStringList shown;
    for (int row = 0; row < combo->count(); row++)
        shown << combo->itemText(row);
    QCOMPARE(shown, expected);
    QCOMPARE(desk.dialog.serverListForPool(), expected);
    QCOMPARE(desk.dialog.timeServer(), QStringLiteral("time.google.com"));
}

void TestSettingsDialogWidgets::fontSizes_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("smallest");
    QTest::addColumn<int>("largest");
    QTest::newRow("usual") << 9 << 4 << 40;
    QTest::newRow("tiny") << 2 << 2 << 40;
    QTest::newRow("huge") << 48 << 4 << 48;
}

void TestSettingsDialogWidgets::fontSizes()
{
    QFETCH(int, size);
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPointSize(size);
    QApplication::setFont(font);
    const SettingsDesk desk;
    QApplication::setFont(before);
    const auto* spin = desk.find<QSpinBox>("spinFont");
    QTEST(spin->minimum(), "smallest");
    QTEST(spin->maximum(), "largest");
    QCOMPARE(spin->value(), size);
}

void TestSettingsDialogWidgets::serverTimeIsAFixedFact()
{
    SettingsDesk desk;
    desk.open();
    QTest::mouseClick(desk.find<QCheckBox>("checkEnforceServerTime"), Qt::LeftButton);
    desk.check("checkDisableTime");
    desk.check("checkDisableTime", false);
    desk.dialog.accept();
    desk.dialog.loadSettings();
    QVERIFY(desk.isChecked("checkEnforceServerTime"));
    QVERIFY(!desk.isEnabled("checkEnforceServerTime"));
}

void TestSettingsDialogWidgets::choiceOutlivesMinimising()
{
    SettingsDesk desk({{QStringLiteral("useserverpool"), QStringLiteral("0")}});
    desk.open();
    desk.check("checkUsePool");
    bringBack(desk.dialog);
    QVERIFY(desk.isChecked("checkUsePool"));
}

void TestSettingsDialogWidgets::timeOffDisablesServerAndPool()
{
    SettingsDesk desk;
    desk.check("checkDisableTime");
    for (const char* widget : {"checkUsePool", "comboServerList", "labelTimeServer"})
        QVERIFY(!desk.isEnabled(widget));
}

void TestSettingsDialogWidgets::timeOnRestoresWhatThePoolDemands()
{
    for (const bool pool : {false, true}) {
        SettingsDesk desk;
        desk.check("checkUsePool", pool);
        desk.check("checkDisableTime");
        desk.check("checkDisableTime", false);
        QVERIFY(desk.isEnabled("checkUsePool"));
        QCOMPARE(desk.isEnabled("comboServerList"), !pool);
        QCOMPARE(desk.isEnabled("labelTimeServer"), !pool);
    }
}

void TestSettingsDialogWidgets::poolDisablesTheServer()
{
    SettingsDesk desk;
    for (const bool pool : {true, false}) {
        desk.check("checkUsePool", pool);
        QCOMPARE(desk.isEnabled("comboServerList"), !pool);
        QCOMPARE(desk.isEnabled("labelTimeServer"), !pool);
    }
}

void TestSettingsDialogWidgets::choosesAPreset()
{
    SettingsDesk desk;
    desk.open();
    QFile preset(QStringLiteral("some.bpr"));
    QVERIFY(preset.open(QIODevice::WriteOnly));
    const QString path = QFileInfo(preset).absoluteFilePath();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QVERIFY(QDir().mkpath(documents));

    const FileDialogHand hand(path);
    QTest::mouseClick(desk.find<QToolButton>("buttonTool"), Qt::LeftButton);
    QCOMPARE(hand.title, QStringLiteral("Select preset"));
    QCOMPARE(hand.filters, QStringList(QStringLiteral("Brumalogger preset files (*.bpr)")));
    QCOMPARE(QDir(hand.directory), QDir(documents));
    QCOMPARE(hand.parent, &desk.dialog);
    QCOMPARE(desk.dialog.presetPath(), path);
    QVERIFY(desk.dialog.presetEnabled());
}

void TestSettingsDialogWidgets::pathIsTrimmed()
{
    SettingsDesk desk;
    desk.open();
    QFile preset(QStringLiteral("blank at its end "));
    QVERIFY(preset.open(QIODevice::WriteOnly));
    const QString path = QFileInfo(preset).absoluteFilePath();
    const FileDialogHand hand(path);
    QTest::mouseClick(desk.find<QToolButton>("buttonTool"), Qt::LeftButton);
    QCOMPARE(desk.dialog.presetPath(), path.trimmed());
}

void TestSettingsDialogWidgets::cancelledChoiceChangesNothing()
{
    SettingsDesk desk;
    desk.open();
    const FileDialogHand hand{QString()};
    QTest::mouseClick(desk.find<QToolButton>("buttonTool"), Qt::LeftButton);
    QCOMPARE(hand.title, QStringLiteral("Select preset"));
    QCOMPARE(desk.dialog.presetPath(), QString());
    QVERIFY(!desk.dialog.presetEnabled());
}

void TestSettingsDialogWidgets::nothingIsCut_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {8, 11, 20})
        QTest::addRow("%d points", size) << size;
}

void TestSettingsDialogWidgets::nothingIsCut()
{
    QFETCH(int, size);
    SettingsDesk desk;
    desk.dialog.setLanguages(languageTable());
    desk.window.setStyleSheet(QStringLiteral("font-size: %1pt").arg(size));
    desk.open();
    QCoreApplication::processEvents();
    for (const QWidget* widget : desk.dialog.findChildren<QWidget*>()) {
        const bool hasText = qobject_cast<const QLabel*>(widget) ||
                             qobject_cast<const QAbstractButton*>(widget) ||
                             qobject_cast<const QComboBox*>(widget) || qobject_cast<const QGroupBox*>(widget);
        if (hasText && widget->isVisible())
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width() &&
                         widget->height() >= widget->minimumSizeHint().height(),
                     qPrintable(widget->objectName()));
    }
}

QTEST_MAIN(TestSettingsDialogWidgets)
#include "tst_settingsdialog_widgets.moc"
