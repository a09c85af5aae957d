// The dialog of advanced options: its form and its words.

#include "advanceddesk.h"
#include "places.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QTest>

namespace {

constexpr const char* resetAfterStop =
    "<html><head/><body><p>A Multiuse device can be RESET <span style=\" font-weight:600;\">only</span> in "
    "the "
    "DONE state (i.e., after measurements have been stopped).</p></body></html>";
constexpr const char* resetAfterReports =
    "<html><head/><body><p>A Multiuse device can be RESET <span style=\"font-weight:600;\">only</span> in "
    "the "
    "DONE state (i.e., after measurements have been stopped) after viewing the reports at least "
    "once.</p></body></html>";

void addPropertyColumns()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("text");
}

void addText(const char* widget, const char* property, const char* text)
{
    QTest::newRow(widget) << QByteArray(property) << QString::fromUtf8(text);
}

} // namespace

class TestAdvancedOptionsDialogForm : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void texts_data();
    void texts();
    void toolTips_data();
    void toolTips();
    void firmwareWordsTheReset_data();
    void firmwareWordsTheReset();
    void newerWordingStays();
    void fromTopToBottom();
    void rows();
    void tabsFollowTheForm();
    void choicesExcludeEachOther();
    void comesInItsFinalSize();
    void warningStandsBeforeTheDialog();
    void nothingIsCut_data();
    void nothingIsCut();
};

void TestAdvancedOptionsDialogForm::form()
{
    const AdvancedDesk desk;
    QCOMPARE(desk.dialog.windowTitle(), QStringLiteral("Advanced Options"));
    QVERIFY(!desk.dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QCOMPARE(desk.find<QDialogButtonBox>("buttonBox")->standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QVERIFY(desk.isChecked("radioPasswNone"));
    QCOMPARE(desk.find<QLabel>("label")->buddy(), desk.passwordField());
}

void TestAdvancedOptionsDialogForm::texts_data()
{
    addPropertyColumns();
    addText("label_2", "text", "<p><em>Hover the mouse over any item for more information.</em></p>");
    addText("groupBox", "title", "Security");
    addText("checkLockButton", "text", "Disable changes via button");
    addText("checkConfigPassw", "text", "Require password for software configuration");
    addText("radioPasswNone", "text", "Do not require password to view reports");
    addText("radioPasswOnce", "text", "Require password only to access report for the first time");
    addText("radioPasswAlways", "text", "Require password always when accessing reports");
    addText("label", "text", "Password:");
    addText("buttonShow", "text", "Show");
    addText("groupBox_2", "title", "Start && Stop Policies");
    addText("checkStartButton", "text", "Allow START via physical button");
    addText("checkStartSoftware", "text", "Allow START via software tool");
    addText("checkStopButton", "text", "Allow STOP via physical button");
    addText("checkStopUSBAttach", "text", "STOP device immediately when attached to USB port");
    addText("checkStartDate", "text", "START automatically on: -");
    addText("toolStartDate", "text", "...");
    addText("checkStopDate", "text", "STOP automatically on: -");
    addText("toolStopDate", "text", "...");
    addText("groupMultiuse", "title", "Multiuse device options");
    addText("radioResetAlways", "text", "Allow device RESET at any time");
    addText("radioResetDone", "text", "Allow device RESET only after STOP");
    addText("labelChangesEffect", "text",
            "<p><span style=\" font-weight:600;\">Changes will take full effect upon disconnecting the "
            "Brumalogger from the USB port.</span></p>");
}

void TestAdvancedOptionsDialogForm::texts()
{
    QFETCH(QByteArray, property);
    const AdvancedDesk desk;
    QTEST(desk.find<QWidget>(QTest::currentDataTag())->property(property).toString(), "text");
}

void TestAdvancedOptionsDialogForm::toolTips_data()
{
    addPropertyColumns();
    const auto row = [](const char* widget, const char* text) { addText(widget, "toolTip", text); };
    row("checkLockButton", "<p>Prevent physical button from changing SAMPLE TIME and TEMPERATURE MONITORING "
                           "RANGE configurations.</p>");
    row("checkConfigPassw", "<p>Requires password to perform any configuration via software tool.</p>");
    row("radioPasswNone",
        "<p>Upon USB connection in the DONE state, device will automatically appear as a USB "
        "thumb drive containing the reports.</p>");
    row("radioPasswOnce",
        "<p>Upon USB connection in the DONE state, the device will require the password only "
        "<b>once</b> to generate the reports. The device must be unlocked using this tool. "
        "After unlocking, it will <b>always</b> appear as a USB thumb drive with the "
        "reports.</p>");
    row("radioPasswAlways",
        "<html><head/><body><p>Upon <span style=\" font-weight:600;\">every</span> USB connection in the "
        "DONE "
        "state, the device will require the password to display the reports. The device must be unlocked "
        "using "
        "this tool. After unlocking, it will appear as a USB thumb drive with the reports until it is "
        "disconnected.</p></body></html>");
    row("checkStartButton",
        "<html><head/><body><p>Allow the START of the device (entering RECORDING mode) via the <span "
        "style=\" "
        "font-weight:600;\">Multifunction Button </span>(i.e., via two <span style=\" font-style:italic;\">5 "
        "second clicks</span>, or via 12 short clicks).</p></body></html>");
    row("checkStartSoftware",
        "<html><head/><body><p>Allows the logger to be placed in RECORDING mode via this "
        "software tool.</p></body></html>");
    row("checkStopButton",
        "<html><head/><body><p>Allow the STOP of the device (entering DONE mode) via the <span style=\" "
        "font-weight:600;\">Multifunction Button </span>(i.e., via two <span style=\" font-style:italic;\">5 "
        "second clicks</span>, or via 12 short clicks).</p></body></html>");
    row("checkStopUSBAttach",
        "<html><head/><body><p>Allows a device in the RECORDING state to immediately STOP into the DONE "
        "state "
        "when attached to an USB port. The <span style=\" font-style:italic;\">Brumalogger Configuration "
        "Tool</span> is <span style=\" font-weight:600;\">not</span> required.</p></body></html>");
    row("checkStartDate",
        "<html><head/><body><p>Device will automatically START on set date. Time zone is the "
        "same as configured on the device.</p></body></html>");
    row("checkStopDate", "<html><head/><body><p>Device will automatically STOP on set date. Time zone is the "
                         "same as configured on the device.</p></body></html>");
    row("radioResetAlways", "<html><head/><body><p>A Multiuse logger can be RESET at <span style=\" "
                            "font-weight:600;\">any</span> time.</p></body></html>");
    row("radioResetDone", resetAfterStop);
    row("toolStartDate", "");
}

void TestAdvancedOptionsDialogForm::toolTips()
{
    texts();
}

void TestAdvancedOptionsDialogForm::firmwareWordsTheReset_data()
{
    QTest::addColumn<int>("firmware");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");
    const QString afterStop = QStringLiteral("Allow device RESET only after STOP");
    const QString afterReports = QStringLiteral("Allow device RESET only after reports are generated");
    QTest::newRow("none read") << 0 << afterStop << QString(resetAfterStop);
    QTest::newRow("1.2.0") << 1002000 << afterStop << QString(resetAfterStop);
    QTest::newRow("1.2.1") << 1002001 << afterReports << QString(resetAfterReports);
    QTest::newRow("2.0.0") << 2000000 << afterReports << QString(resetAfterReports);
}

void TestAdvancedOptionsDialogForm::firmwareWordsTheReset()
{
    QFETCH(int, firmware);
    AdvancedDesk desk;
    desk.dialog.lSetFirmwareCode(firmware);
    desk.open();
    QTEST(desk.button("radioResetDone")->text(), "text");
    QTEST(desk.button("radioResetDone")->toolTip(), "toolTip");
}

void TestAdvancedOptionsDialogForm::newerWordingStays()
{
    AdvancedDesk desk;
    desk.dialog.lSetFirmwareCode(1003000);
    desk.openAndAccept();
    desk.dialog.lSetFirmwareCode(1002000);
    desk.open();
    QCOMPARE(desk.button("radioResetDone")->text(),
             QStringLiteral("Allow device RESET only after reports are generated"));
    QCOMPARE(desk.button("radioResetDone")->toolTip(), QString(resetAfterReports));
}

void TestAdvancedOptionsDialogForm::fromTopToBottom()
{
    AdvancedDesk desk;
    desk.open();
    desk.find<QLabel>("labelChangesEffect")->show();
    QCoreApplication::processEvents();
    QCOMPARE(
        firstNotBelow(desk.dialog,
                      "label_2 groupBox checkLockButton checkConfigPassw line radioPasswNone radioPasswOnce "
                      "radioPasswAlways line_2 linePassw groupBox_2 checkStartButton checkStartSoftware "
                      "checkStopButton checkStopUSBAttach line_3 checkStartDate checkStopDate groupMultiuse "
                      "radioResetAlways radioResetDone labelChangesEffect buttonBox"),
        QString());
}

void TestAdvancedOptionsDialogForm::rows()
{
    AdvancedDesk desk;
    desk.open();
    for (const char* row :
         {"label linePassw buttonShow", "checkStartDate toolStartDate", "checkStopDate toolStopDate"})
        QCOMPARE(firstNotBeside(desk.dialog, row), QString());
}

void TestAdvancedOptionsDialogForm::tabsFollowTheForm()
{
    const AdvancedDesk desk;
    const QStringList expected =
        QStringLiteral("checkLockButton checkConfigPassw radioPasswNone radioPasswOnce radioPasswAlways "
                       "linePassw buttonShow checkStartButton checkStartSoftware checkStopButton "
                       "checkStopUSBAttach checkStartDate toolStartDate checkStopDate toolStopDate "
                       "radioResetAlways radioResetDone")
            .split(QLatin1Char(' '));
    QStringList actual;
    for (const QWidget* widget = desk.dialog.nextInFocusChain(); widget != &desk.dialog;
         widget = widget->nextInFocusChain()) {
        if (expected.contains(widget->objectName()))
            actual << widget->objectName();
    }
    QCOMPARE(actual, expected);
}

void TestAdvancedOptionsDialogForm::choicesExcludeEachOther()
{
    AdvancedDesk desk;
    desk.check("radioResetAlways");
    for (const char* choice : {"radioPasswAlways", "radioPasswOnce", "radioPasswNone"}) {
        desk.check(choice);
        int checked = 0;
        for (const char* other : {"radioPasswAlways", "radioPasswOnce", "radioPasswNone"})
            checked += desk.isChecked(other) ? 1 : 0;
        QCOMPARE(checked, 1);
        QVERIFY(desk.isChecked(choice) && desk.isChecked("radioResetAlways"));
    }
    desk.check("radioResetDone");
    QVERIFY(!desk.isChecked("radioResetAlways") && desk.isChecked("radioPasswNone"));
}

// It gets onto the screen, and into the middle of its window, with the size of what it shows. The letters are
// small, so that there is room for it around the middle.
void TestAdvancedOptionsDialogForm::comesInItsFinalSize()
{
    AdvancedDesk desk;
    desk.window.setStyleSheet(QStringLiteral("font-size: 6pt"));
    desk.window.setGeometry(0, 0, 780, 580);
    desk.dialog.lSetTimeZoneName(QString(40, QLatin1Char('W')));
    desk.dialog.lSetStartDate(true, QDateTime::currentDateTime());
    desk.dialog.open();
    const QRect first = desk.dialog.geometry();
    QVERIFY(QTest::qWaitForWindowExposed(&desk.dialog));
    QCoreApplication::processEvents();
    QCOMPARE(desk.dialog.geometry(), first);
    QVERIFY((first.center() - desk.window.geometry().center()).manhattanLength() <= 2);
}

// The warning is centred on a dialog that isn't on the screen yet, but will be there.
void TestAdvancedOptionsDialogForm::warningStandsBeforeTheDialog()
{
    AdvancedDesk desk;
    desk.dialog.lSetPassword(QString(31, QLatin1Char('p')));
    QPoint middle;
    QObject::connect(&desk.robot, &DialogRobot::sBoxOpened, &desk.window,
                     [&middle] { middle = QApplication::activeModalWidget()->geometry().center(); });
    desk.open();
    QCOMPARE(desk.robot.boxes().size(), 1);
    QVERIFY(qAbs(middle.x() - desk.dialog.geometry().center().x()) <= 1);
}

void TestAdvancedOptionsDialogForm::nothingIsCut_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {8, 11, 20})
        QTest::addRow("%d points", size) << size;
}

void TestAdvancedOptionsDialogForm::nothingIsCut()
{
    QFETCH(int, size);
    AdvancedDesk desk;
    desk.window.setStyleSheet(QStringLiteral("font-size: %1pt").arg(size));
    desk.dialog.lSetFirmwareCode(1003000);
    desk.dialog.lSetTimeZoneName(QStringLiteral("GMT+10:00"));
    desk.dialog.lSetStartDate(true, QDateTime::currentDateTime());
    desk.dialog.lSetStopDate(true, QDateTime::currentDateTime());
    desk.open();
    QCoreApplication::processEvents();
    QCOMPARE(cutWidgets(desk.dialog), QStringList());
    desk.find<QLabel>("labelChangesEffect")->show();
    QCoreApplication::processEvents();
    QCOMPARE(cutWidgets(desk.dialog), QStringList());
}

QTEST_MAIN(TestAdvancedOptionsDialogForm)
#include "tst_advancedoptionsdialog_form.moc"
