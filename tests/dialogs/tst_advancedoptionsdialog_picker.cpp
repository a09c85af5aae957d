// The dialog of advanced options: the picker of an automatic date and time.

#include "pickerdesk.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

/// Where the widget stands in the picker: row, column, rows, columns.
QVector<int> placeOf(const QDialog* picker, QWidget* widget)
{
    const auto* grid = qobject_cast<QGridLayout*>(picker->layout());
    int row = -1;
    int column = -1;
    int rows = -1;
    int columns = -1;
    grid->getItemPosition(grid->indexOf(widget), &row, &column, &rows, &columns);
    return {row, column, rows, columns};
}

} // namespace

class TestAdvancedOptionsDialogPicker : public QObject
{
    Q_OBJECT

private slots:
    void titles_data();
    void titles();
    void form();
    void showsTheStoredDate();
    void okKeepsTheDate();
    void okStoresTheDate_data();
    void okStoresTheDate();
    void cancelLeavesTheDate_data();
    void cancelLeavesTheDate();
    void cancelledDialogKeepsThePickedDate();
    void dayLeavesTheTimeAlone();
    void typedDateMovesTheCalendar();
    void pastCanBeChosen();
    void enterMeansOk();
    void nothingIsCut_data();
    void nothingIsCut();
};

void TestAdvancedOptionsDialogPicker::titles_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QDateTime>("date");
    QTest::newRow("toolStartDate") << "Select a START Date and Time" << stored;
    QTest::newRow("toolStopDate") << "Select a STOP Date and Time" << stored.addDays(1);
}

void TestAdvancedOptionsDialogPicker::titles()
{
    QFETCH(QDateTime, date);
    const PickerDesk desk;
    QString title;
    QDate day;
    QVERIFY(desk.pick(QTest::currentDataTag(), [&](QDialog* picker) {
        title = picker->windowTitle();
        day = editorOf(picker)->date();
        picker->reject();
    }));
    QTEST(title, "title");
    QCOMPARE(day, date.date());
}

void TestAdvancedOptionsDialogPicker::form()
{
    const PickerDesk desk;
    QVERIFY(desk.pick("toolStartDate", [&desk](QDialog* picker) {
        picker->reject();
        QCOMPARE(picker->parentWidget(), &desk.dialog);
        QVERIFY(picker->isModal());
        QVERIFY(!picker->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
        auto* zone = picker->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(zone->text(), QStringLiteral("GMT+2:00: "));
        QCOMPARE(editorOf(picker)->displayFormat(), QStringLiteral("hh:mm dd/MMM/yyyy"));
        QCOMPARE(placeOf(picker, calendarOf(picker)), QVector<int>({0, 0, 1, 4}));
        QCOMPARE(placeOf(picker, zone), QVector<int>({2, 0, 1, 1}));
        QCOMPARE(placeOf(picker, editorOf(picker)), QVector<int>({2, 1, 1, 2}));
        QCOMPARE(placeOf(picker, buttonOf(picker, "Now")), QVector<int>({2, 3, 1, 1}));
        QCOMPARE(placeOf(picker, buttonOf(picker, "Ok")), QVector<int>({4, 0, 1, 2}));
        QCOMPARE(placeOf(picker, buttonOf(picker, "Cancel")), QVector<int>({4, 2, 1, 2}));
    }));
}

void TestAdvancedOptionsDialogPicker::showsTheStoredDate()
{
    const PickerDesk desk;
    QVERIFY(desk.pick("toolStartDate", [](QDialog* picker) {
        picker->reject();
        QCOMPARE(calendarOf(picker)->selectedDate(), stored.date());
        QCOMPARE(editorOf(picker)->date(), stored.date());
        QCOMPARE(editorOf(picker)->time(), stored.time());
    }));
}

void TestAdvancedOptionsDialogPicker::okKeepsTheDate()
{
    const PickerDesk desk;
    QVERIFY(desk.pick("toolStartDate", [](QDialog* picker) { buttonOf(picker, "Ok")->click(); }));
    QCOMPARE(desk.startDate(), stored);
}

void TestAdvancedOptionsDialogPicker::okStoresTheDate_data()
{
    QTest::addColumn<QByteArray>("check");
    QTest::addColumn<bool>("isStart");
    QTest::newRow("toolStartDate") << QByteArray("checkStartDate") << true;
    QTest::newRow("toolStopDate") << QByteArray("checkStopDate") << false;
}

void TestAdvancedOptionsDialogPicker::okStoresTheDate()
{
    QFETCH(QByteArray, check);
    QFETCH(bool, isStart);
    const PickerDesk desk;
    const QDateTime chosen(QDate(2032, 2, 29), QTime(23, 59), Qt::UTC);
    const LogLines log;
    QVERIFY(desk.pick(QTest::currentDataTag(), [&chosen](QDialog* picker) {
        editorOf(picker)->setDate(chosen.date());
        editorOf(picker)->setTime(chosen.time());
        buttonOf(picker, "Ok")->click();
    }));
    QCOMPARE(programLines(log), QStringList("debug: Selected timestamp:  1961711940"));
    QCOMPARE(desk.startDate(), isStart ? chosen : stored);
    QCOMPARE(desk.stopDate(), isStart ? stored.addDays(1) : chosen);
    QVERIFY(desk.button(check)->text().endsWith(chosen.toString(QStringLiteral(": hh:mm dd/MMM/yyyy")) +
                                                QStringLiteral(" (GMT+2:00)")));
}

void TestAdvancedOptionsDialogPicker::cancelLeavesTheDate_data()
{
    QTest::addColumn<QByteArray>("tool");
    QTest::addColumn<QByteArray>("check");
    QTest::addColumn<bool>("byFrame");
    for (const bool byFrame : {false, true}) {
        const char* how = byFrame ? "window's frame" : "Cancel";
        QTest::addRow("start, %s", how)
            << QByteArray("toolStartDate") << QByteArray("checkStartDate") << byFrame;
        QTest::addRow("stop, %s", how)
            << QByteArray("toolStopDate") << QByteArray("checkStopDate") << byFrame;
    }
}

// The text is spoiled first: it is made anew all the same.
void TestAdvancedOptionsDialogPicker::cancelLeavesTheDate()
{
    QFETCH(QByteArray, tool);
    QFETCH(QByteArray, check);
    QFETCH(bool, byFrame);
    const PickerDesk desk;
    const QString text = desk.button(check)->text();
    desk.button(check)->setText(QStringLiteral("spoiled"));
    const LogLines log;
    QVERIFY(desk.pick(tool, [byFrame](QDialog* picker) {
        buttonOf(picker, "Now")->click();
        byFrame ? static_cast<void>(picker->close()) : buttonOf(picker, "Cancel")->click();
    }));
    QCOMPARE(programLines(log), QStringList());
    QCOMPARE(desk.startDate(), stored);
    QCOMPARE(desk.stopDate(), stored.addDays(1));
    QCOMPARE(desk.button(check)->text(), text);
}

void TestAdvancedOptionsDialogPicker::cancelledDialogKeepsThePickedDate()
{
    PickerDesk desk;
    QVERIFY(desk.pick("toolStartDate", [](QDialog* picker) {
        editorOf(picker)->setDate(stored.date().addDays(3));
        buttonOf(picker, "Ok")->click();
    }));
    desk.dialog.reject();
    QCOMPARE(desk.startDate(), stored.addDays(3));
}

void TestAdvancedOptionsDialogPicker::dayLeavesTheTimeAlone()
{
    const PickerDesk desk;
    QVERIFY(desk.pick("toolStartDate", [](QDialog* picker) {
        calendarOf(picker)->setSelectedDate(QDate(2031, 3, 30));
        QCOMPARE(editorOf(picker)->date(), QDate(2031, 3, 30));
        QCOMPARE(editorOf(picker)->time(), stored.time());
        buttonOf(picker, "Ok")->click();
    }));
    QCOMPARE(desk.startDate(), QDateTime(QDate(2031, 3, 30), stored.time(), Qt::UTC));
}

void TestAdvancedOptionsDialogPicker::typedDateMovesTheCalendar()
{
    const PickerDesk desk;
    QVERIFY(desk.pick("toolStartDate", [](QDialog* picker) {
        editorOf(picker)->setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(editorOf(picker), QStringLiteral("19"));
        picker->reject();
        QCOMPARE(calendarOf(picker)->selectedDate(), QDate(2031, 5, 19));
        QCOMPARE(editorOf(picker)->time(), stored.time());
    }));
}

void TestAdvancedOptionsDialogPicker::pastCanBeChosen()
{
    const PickerDesk desk;
    QVERIFY(desk.pick("toolStartDate", [](QDialog* picker) {
        editorOf(picker)->setDate(QDate(1999, 1, 1));
        buttonOf(picker, "Ok")->click();
    }));
    QCOMPARE(desk.startDate().date(), QDate(1999, 1, 1));
}

void TestAdvancedOptionsDialogPicker::enterMeansOk()
{
    const PickerDesk desk;
    QVERIFY(desk.pick("toolStartDate", [](QDialog* picker) {
        editorOf(picker)->setDate(stored.date().addDays(5));
        QTest::keyClick(editorOf(picker), Qt::Key_Return);
    }));
    QCOMPARE(desk.startDate(), stored.addDays(5));
}

void TestAdvancedOptionsDialogPicker::nothingIsCut_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {8, 11, 20})
        QTest::addRow("%d points", size) << size;
}

void TestAdvancedOptionsDialogPicker::nothingIsCut()
{
    QFETCH(int, size);
    PickerDesk desk;
    desk.window.setStyleSheet(QStringLiteral("font-size: %1pt").arg(size));
    QStringList cut{QStringLiteral("not seen")};
    QVERIFY(desk.pick("toolStartDate", [&cut](QDialog* picker) {
        QVERIFY(QTest::qWaitForWindowExposed(picker));
        cut = cutWidgets(*picker);
        picker->reject();
    }));
    QCOMPARE(cut, QStringList());
}

QTEST_MAIN(TestAdvancedOptionsDialogPicker)
#include "tst_advancedoptionsdialog_picker.moc"
