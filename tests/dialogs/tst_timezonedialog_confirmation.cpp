// The Time Zone Editor is accepted only with a confirmation.

#include "zonedesk.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>

namespace {

void press(const ZoneDesk& desk, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(desk.find<QDialogButtonBox>("buttonBox")->button(button), Qt::LeftButton);
}

/// The values of the "Chose offset:" lines in the log while this is there.
class ChoiceLog
{
public:
    ChoiceLog()
    {
        values.clear();
        before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& line) {
            if (line.startsWith(QLatin1String("Chose offset: ")))
                values << line.section(QLatin1Char(' '), 2).toInt();
        });
    }
    ~ChoiceLog() { qInstallMessageHandler(before); }
    ChoiceLog(const ChoiceLog&) = delete;
    ChoiceLog& operator=(const ChoiceLog&) = delete;

    static QList<int> values;

private:
    QtMessageHandler before;
};

QList<int> ChoiceLog::values;

} // namespace

class TestTimeZoneDialogConfirmation : public QObject
{
    Q_OBJECT

private slots:
    void okAccepts();
    void cancelGoesBackToTheChoice();
    void rejectionAsksNothing();
    void rejectedWhileItAsks_data();
    void rejectedWhileItAsks();
};

void TestTimeZoneDialogConfirmation::okAccepts()
{
    const ChoiceLog log;
    ZoneDesk desk;
    desk.open();
    desk.combo()->setCurrentText(QStringLiteral("GMT+3:30"));
    desk.expectConfirmation(QMessageBox::Ok);
    press(desk, QDialogButtonBox::Ok);
    QCOMPARE(desk.robot.problems(), QString());
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(desk.dialog.chosenName(), QStringLiteral("GMT+3:30"));
    QCOMPARE(ChoiceLog::values, QList<int>({12600}));
}

void TestTimeZoneDialogConfirmation::cancelGoesBackToTheChoice()
{
    const ChoiceLog log;
    ZoneDesk desk;
    desk.open();
    desk.combo()->setCurrentText(QStringLiteral("GMT+3:30"));
    desk.expectConfirmation(QMessageBox::Cancel);
    press(desk, QDialogButtonBox::Ok);
    QCOMPARE(desk.robot.problems(), QString());
    QVERIFY(desk.dialog.isVisible());
    QCOMPARE(desk.combo()->currentText(), QStringLiteral("GMT+3:30"));
    QCOMPARE(ChoiceLog::values, QList<int>());
}

void TestTimeZoneDialogConfirmation::rejectionAsksNothing()
{
    const ChoiceLog log;
    ZoneDesk desk;
    desk.open();
    desk.combo()->setCurrentText(QStringLiteral("GMT-3:30"));
    press(desk, QDialogButtonBox::Cancel);
    QCOMPARE(desk.robot.problems(), QString());
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.dialog.result(), int(QDialog::Rejected));
    QCOMPARE(ChoiceLog::values, QList<int>({-12600}));
}

void TestTimeZoneDialogConfirmation::rejectedWhileItAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("OK comes too late") << int(QMessageBox::Ok);
    QTest::newRow("Cancel") << int(QMessageBox::Cancel);
}

// The box goes with the dialog; the robot's answer goes to the hidden box.
void TestTimeZoneDialogConfirmation::rejectedWhileItAsks()
{
    QFETCH(const int, answer);
    ZoneDesk desk;
    desk.open();
    bool boxGone = false;
    connect(&desk.robot, &DialogRobot::sBoxOpened, &desk.dialog, [&] {
        desk.dialog.reject();
        boxGone = !desk.dialog.findChild<QMessageBox*>()->isVisible();
    });
    desk.expectConfirmation(static_cast<QMessageBox::StandardButton>(answer));
    press(desk, QDialogButtonBox::Ok);
    QVERIFY(boxGone);
    QCOMPARE(desk.robot.problems(), QString());
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.dialog.result(), int(QDialog::Rejected));
}

QTEST_MAIN(TestTimeZoneDialogConfirmation)
#include "tst_timezonedialog_confirmation.moc"
