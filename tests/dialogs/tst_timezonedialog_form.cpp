// The Time Zone Editor: its form and its words.

#include "advanceddesk.h"
#include "zonedesk.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

class TestTimeZoneDialogForm : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void texts_data();
    void texts();
    void places_data();
    void places();
    void zonesInTheirOrder();
    void withoutTimeManager();
    void nothingIsCut_data();
    void nothingIsCut();
    void comesInItsFinalSize_data();
    void comesInItsFinalSize();
};

void TestTimeZoneDialogForm::form()
{
    const ZoneDesk desk;
    QCOMPARE(desk.dialog.windowTitle(), QStringLiteral("Time Zone Editor"));
    QVERIFY(!desk.dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QCOMPARE(desk.find<QDialogButtonBox>("buttonBox")->standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QCOMPARE(desk.find<QWidget>("labelNewDeviceTime")->styleSheet(), QStringLiteral("font: bold"));
    QCOMPARE(desk.find<QLabel>("label_6")->buddy(), desk.combo());
    QCOMPARE(desk.find<QGroupBox>("groupBox_3")->title(), QStringLiteral("Reference"));
    QCOMPARE(desk.find<QGroupBox>("groupBox_2")->title(), QStringLiteral("Device"));
    QCOMPARE(desk.combo()->currentIndex(), 0);
}

void TestTimeZoneDialogForm::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("label_4") << "Source:";
    QTest::newRow("label_5") << "UTC/GMT:";
    QTest::newRow("label_7") << "Local:";
    QTest::newRow("label_3") << "Current:";
    QTest::newRow("label_9") << "";
    QTest::newRow("label_6") << "Set to:";
    QTest::newRow("label_8") << "Updated date/time:";
}

void TestTimeZoneDialogForm::texts()
{
    const ZoneDesk desk;
    QTEST(desk.text(QTest::currentDataTag()), "text");
}

void TestTimeZoneDialogForm::places_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("group");
    QTest::newRow("source") << "label_4"
                            << "labelSource"
                            << "groupBox_3";
    QTest::newRow("true time") << "label_5"
                               << "labelRefUTC"
                               << "groupBox_3";
    QTest::newRow("local time") << "label_7"
                                << "labelRefLocal"
                                << "groupBox_3";
    QTest::newRow("device") << "label_3"
                            << "labelDeviceTime"
                            << "groupBox_2";
    QTest::newRow("choice") << "label_6"
                            << "comboTimezone"
                            << "groupBox_2";
    QTest::newRow("device then") << "label_8"
                                 << "labelNewDeviceTime"
                                 << "groupBox_2";
}

void TestTimeZoneDialogForm::places()
{
    QFETCH(const QString, caption);
    QFETCH(const QString, value);
    ZoneDesk desk;
    desk.open();
    const auto* left = desk.find<QWidget>(qPrintable(caption));
    const auto* right = desk.find<QWidget>(qPrintable(value));
    QTEST(left->parentWidget()->objectName(), "group");
    QTEST(right->parentWidget()->objectName(), "group");
    QVERIFY(left->geometry().right() < right->geometry().left());
    QVERIFY(qAbs(left->geometry().center().y() - right->geometry().center().y()) <= 2);
    QCOMPARE(right->mapTo(&desk.dialog, QPoint()).x(), desk.combo()->mapTo(&desk.dialog, QPoint()).x());
}

void TestTimeZoneDialogForm::zonesInTheirOrder()
{
    const ZoneDesk desk;
    const QList<TimeZoneMatch>& zones = desk.manager->timeZones();
    QCOMPARE(zones.size(), 27);
    QCOMPARE(desk.combo()->count(), zones.size());
    for (int i = 0; i < zones.size(); ++i) {
        QCOMPARE(desk.combo()->itemText(i), zones.at(i).name);
        desk.combo()->setCurrentIndex(i);
        QCOMPARE(desk.dialog.chosenName(), zones.at(i).name);
        QCOMPARE(desk.dialog.chosenOffset(), zones.at(i).offset);
    }
}

void TestTimeZoneDialogForm::withoutTimeManager()
{
    QWidget window;
    TimeZoneDialog dialog(&window);
    dialog.open();
    QCOMPARE(dialog.findChild<QComboBox*>()->count(), 0);
    QCOMPARE(dialog.chosenName(), QString());
    QCOMPARE(dialog.chosenOffset(), 0);
    QCOMPARE(dialog.findChild<QLabel*>("labelRefUTC")->text(), QStringLiteral("-"));
}

void TestTimeZoneDialogForm::nothingIsCut_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {8, 11, 20})
        QTest::addRow("%d points", size) << size;
}

void TestTimeZoneDialogForm::nothingIsCut()
{
    QFETCH(const int, size);
    ZoneDesk desk;
    desk.window.setStyleSheet(QStringLiteral("font-size: %1pt").arg(size));
    desk.setDevice(4 * 86400);
    desk.open();
    QCOMPARE(desk.text("labelDeviceTime"),
             shown(deskTime().addDays(4)) + QStringLiteral(" (Time Zone Unknown)"));
    QCOMPARE(cutWidgets(desk.dialog), QStringList());
    desk.combo()->setCurrentText(QStringLiteral("GMT-10:00"));
    QCoreApplication::processEvents();
    QCOMPARE(cutWidgets(desk.dialog), QStringList());
}

void TestTimeZoneDialogForm::comesInItsFinalSize_data()
{
    QTest::addColumn<QList<int>>("fontSizes");
    QTest::addColumn<QList<int>>("secondsOff");
    QTest::newRow("smaller font") << QList<int>({20, 8}) << QList<int>({0, 0});
    QTest::newRow("larger font") << QList<int>({8, 20}) << QList<int>({0, 0});
    QTest::newRow("fewer words") << QList<int>({11, 11}) << QList<int>({4 * 86400, 0});
    QTest::newRow("more words") << QList<int>({11, 11}) << QList<int>({0, 4 * 86400});
}

// It gets onto the screen, and into the middle of its window, with the size of what it shows.
void TestTimeZoneDialogForm::comesInItsFinalSize()
{
    QFETCH(const QList<int>, fontSizes);
    QFETCH(const QList<int>, secondsOff);
    ZoneDesk desk;
    QList<int> widths;
    for (const int showing : {0, 1}) {
        // A style sheet, even the same one again, has everything laid out anew.
        if (showing == 0 || fontSizes[1] != fontSizes[0])
            desk.window.setStyleSheet(QStringLiteral("font-size: %1pt").arg(fontSizes[showing]));
        desk.setDevice(secondsOff[showing]);
        desk.dialog.open();
        const QSize first = desk.dialog.size();
        QVERIFY(QTest::qWaitForWindowExposed(&desk.dialog));
        QCoreApplication::processEvents();
        QCOMPARE(desk.dialog.size(), first);
        QCOMPARE(desk.dialog.size(), desk.dialog.sizeHint());
        widths << first.width();
        desk.dialog.reject();
    }
    QCOMPARE(widths[1] > widths[0], fontSizes[1] > fontSizes[0] || secondsOff[1] > secondsOff[0]);
}

QTEST_MAIN(TestTimeZoneDialogForm)
#include "tst_timezonedialog_form.moc"
