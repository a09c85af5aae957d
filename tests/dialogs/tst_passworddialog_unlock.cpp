// A password tried on the logger, and what becomes of the dialog then.

#include "passworddesk.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace {

/// Whether the dialog is on the screen when each of the boxes opens.
void watchBoxes(PasswordDesk& desk, QList<bool>* visible)
{
    QObject::connect(&desk.robot, &DialogRobot::sBoxOpened, &desk.dialog,
                     [&desk, visible] { *visible << desk.dialog.isVisible(); });
}

} // namespace

class TestPasswordDialogUnlock : public QObject
{
    Q_OBJECT

private slots:
    void rightOne_data();
    void rightOne();
    void wrongThenRight();
    void wrongThenCancelled();
    void manyTries();
    void cancelled();
    void closedByItsFrame();
    void emptyPassword_data();
    void emptyPassword();
    void longPassword();
    void anyOtherAnswerIsNo_data();
    void anyOtherAnswerIsNo();
    void noAnswer_data();
    void noAnswer();
    void unpluggedAtTheTry();
    void unpluggedBeforeTheTry();
    void noDevice();
    void answersAgainAfterSilence();
    void otherResults();
};

void TestPasswordDialogUnlock::rightOne_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("IDLE") << 2;
    QTest::newRow("FINISHED") << 16;
    QTest::newRow("recording") << 4;
}

void TestPasswordDialogUnlock::rightOne()
{
    QFETCH(int, state);
    PasswordDesk desk(lockedLogger(static_cast<LoggerModel::State>(state)));
    const int result = desk.run([&] { desk.tryPassword(rightPassword()); });
    QCOMPARE(result, int(QDialog::Accepted));
    QVERIFY(desk.dialog.lUnlocked());
    QCOMPARE(desk.dialog.lState(), state);
    QVERIFY(!desk.dialog.isVisible());
    QVERIFY(!desk.logger->model().settings().locked);
    QCOMPARE(desk.takeWire(), showingCommands() << "?Secret");
    QVERIFY(desk.robot.boxes().isEmpty());
}

void TestPasswordDialogUnlock::wrongThenRight()
{
    PasswordDesk desk;
    QList<bool> visible;
    watchBoxes(desk, &visible);
    desk.expectIncorrect();
    const int result = desk.run([&] {
        desk.pressToggle();
        desk.tryPassword(QStringLiteral("secret"));
        QVERIFY(desk.dialog.isVisible());
        QVERIFY(desk.isShowingInfo());
        QVERIFY(!desk.dialog.lUnlocked());
        QCOMPARE(desk.text("linePassw"), QString());
        desk.tryPassword(rightPassword());
    });
    QCOMPARE(result, int(QDialog::Accepted));
    QVERIFY(desk.dialog.lUnlocked());
    QCOMPARE(visible, QList<bool>({true}));
    QCOMPARE(desk.takeWire(), showingCommands() << "?secret"
                                                << "?Secret");
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogUnlock::wrongThenCancelled()
{
    PasswordDesk desk;
    desk.expectIncorrect();
    const int result = desk.run([&] {
        desk.tryPassword(QStringLiteral("wrong"));
        desk.pressCancel();
    });
    QCOMPARE(result, int(QDialog::Rejected));
    QVERIFY(!desk.dialog.lUnlocked());
    QCOMPARE(desk.takeWire(), showingCommands() << "?wrong");
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogUnlock::manyTries()
{
    PasswordDesk desk;
    desk.open();
    QList<QByteArray> tries;
    for (int number = 1; number <= 12; ++number) {
        const QString wrong = QStringLiteral("wrong %1").arg(number);
        tries << "?" + wrong.toUtf8();
        desk.expectIncorrect();
        desk.tryPassword(wrong);
        QVERIFY(desk.dialog.isVisible());
    }
    QCOMPARE(desk.takeWire(), showingCommands() + tries);
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogUnlock::cancelled()
{
    PasswordDesk desk;
    const int result = desk.run([&] {
        desk.find<QLineEdit>("linePassw")->setText(rightPassword());
        desk.pressCancel();
    });
    QCOMPARE(result, int(QDialog::Rejected));
    QVERIFY(!desk.dialog.lUnlocked());
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.takeWire(), showingCommands());
    QVERIFY(desk.robot.boxes().isEmpty());
}

void TestPasswordDialogUnlock::closedByItsFrame()
{
    PasswordDesk desk;
    QCOMPARE(desk.run([&] { desk.dialog.close(); }), int(QDialog::Rejected));
    QVERIFY(!desk.dialog.lUnlocked());
    QCOMPARE(desk.takeWire(), showingCommands());
}

void TestPasswordDialogUnlock::emptyPassword_data()
{
    QTest::addColumn<bool>("isRight");
    QTest::newRow("right") << true;
    QTest::newRow("wrong") << false;
}

void TestPasswordDialogUnlock::emptyPassword()
{
    QFETCH(bool, isRight);
    LoggerModel model = lockedLogger();
    if (isRight)
        model.settings().password.clear();
    PasswordDesk desk(model);
    desk.open();
    if (!isRight)
        desk.expectIncorrect();
    desk.tryPassword({});
    QCOMPARE(desk.takeWire(), showingCommands() << "?");
    QCOMPARE(desk.dialog.lUnlocked(), isRight);
    QCOMPARE(desk.dialog.isVisible(), !isRight);
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogUnlock::longPassword()
{
    const QString thirty(QStringLiteral("123456789 abcdefghij ABCDEFGHI"));
    LoggerModel model = lockedLogger();
    model.settings().password = thirty;
    PasswordDesk desk(model);
    desk.open();
    desk.tryPassword(thirty + QLatin1Char('J'));
    QCOMPARE(desk.takeWire(), showingCommands() << "?" + thirty.toUtf8());
    QVERIFY(desk.dialog.lUnlocked());
}

void TestPasswordDialogUnlock::anyOtherAnswerIsNo_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("upper case") << QByteArray("OK");
    QTest::newRow("more behind") << QByteArray("okay");
    QTest::newRow("an error") << QByteArray("error: locked");
    QTest::newRow("a number") << QByteArray("1");
}

void TestPasswordDialogUnlock::anyOtherAnswerIsNo()
{
    QFETCH(QByteArray, reply);
    PasswordDesk desk;
    desk.open();
    desk.disturb("?", Fault::Kind::Reply, reply);
    desk.expectIncorrect();
    desk.tryPassword(rightPassword());
    QVERIFY(!desk.dialog.lUnlocked());
    QVERIFY(desk.dialog.isVisible());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogUnlock::noAnswer_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("silence") << QByteArray();
    QTest::newRow("a line end only") << QByteArray("\r\n");
    QTest::newRow("blanks") << QByteArray("   ");
}

// The dialog is gone before the second box, which says nothing true: the password may well be right.
void TestPasswordDialogUnlock::noAnswer()
{
    QFETCH(QByteArray, reply);
    PasswordDesk desk;
    QList<bool> visible;
    watchBoxes(desk, &visible);
    desk.disturb("?", Fault::Kind::Reply, reply);
    desk.expectNoAnswer();
    const int result = desk.run([&] { desk.tryPassword(rightPassword()); });
    QCOMPARE(result, int(QDialog::Accepted));
    QVERIFY(!desk.dialog.lUnlocked());
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(visible, QList<bool>({true, false}));
    QCOMPARE(desk.text("linePassw"), QString());
    QCOMPARE(desk.takeWire(), showingCommands() << "?Secret");
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogUnlock::unpluggedAtTheTry()
{
    PasswordDesk desk;
    desk.atCommand("?", [&] { desk.unplug(); });
    desk.expectNoAnswer();
    const int result = desk.run([&] { desk.tryPassword(rightPassword()); });
    QCOMPARE(result, int(QDialog::Accepted));
    QVERIFY(!desk.dialog.lUnlocked());
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogUnlock::unpluggedBeforeTheTry()
{
    PasswordDesk desk;
    desk.open();
    desk.unplug();
    desk.expectNoAnswer();
    desk.tryPassword(rightPassword());
    QVERIFY(!desk.dialog.lUnlocked());
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogUnlock::noDevice()
{
    PasswordDesk desk;
    desk.dialog.lSetDevice({});
    desk.open();
    desk.expectNoAnswer();
    desk.tryPassword(rightPassword());
    QVERIFY(!desk.dialog.lUnlocked());
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.takeWire(), QList<QByteArray>());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogUnlock::answersAgainAfterSilence()
{
    PasswordDesk desk;
    desk.disturb("?", Fault::Kind::Silence);
    desk.expectNoAnswer();
    desk.run([&] { desk.tryPassword(QStringLiteral("wrong")); });
    desk.logger->faults().clear();
    desk.takeWire();
    desk.run([&] { desk.tryPassword(rightPassword()); });
    QVERIFY(desk.dialog.lUnlocked());
    QCOMPARE(desk.labels(), idleLabels());
    QCOMPARE(desk.takeWire(), showingCommands() << "?Secret");
    QCOMPARE(desk.robot.problems(), QString());
}

// Whatever isn't Accepted only closes, and takes back an unlocking.
void TestPasswordDialogUnlock::otherResults()
{
    PasswordDesk desk;
    desk.open();
    desk.tryPassword(rightPassword());
    QVERIFY(desk.dialog.lUnlocked());
    desk.takeWire();
    const QSignalSpy finished(&desk.dialog, &QDialog::finished);
    desk.dialog.done(7);
    QVERIFY(!desk.dialog.lUnlocked());
    QCOMPARE(desk.dialog.result(), 7);
    QCOMPARE(finished, QList<QVariantList>({{7}}));
    QCOMPARE(desk.takeWire(), QList<QByteArray>());
}

QTEST_MAIN(TestPasswordDialogUnlock)
#include "tst_passworddialog_unlock.moc"
