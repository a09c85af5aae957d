// What the operator, the program or the plug do while an exchange of the unlock dialog waits for the logger.

#include "passworddesk.h"

#include "support/minimised.h"

#include <QLineEdit>
#include <QTest>

namespace {

using Hand = std::function<void(PasswordDesk& desk)>;

void addClosings()
{
    QTest::addColumn<Hand>("close");
    QTest::newRow("Cancel") << Hand([](PasswordDesk& desk) { desk.pressCancel(); });
    QTest::newRow("Escape") << Hand(
        [](PasswordDesk& desk) { QTest::keyClick(desk.find<QLineEdit>("linePassw"), Qt::Key_Escape); });
    QTest::newRow("frame") << Hand([](PasswordDesk& desk) { desk.dialog.close(); });
    QTest::newRow("several times") << Hand([](PasswordDesk& desk) {
        desk.pressCancel();
        desk.dialog.close();
        desk.dialog.reject();
    });
}

void addCommands()
{
    QTest::addColumn<QByteArray>("command");
    for (const QByteArray& command : showingCommands())
        QTest::newRow(command) << command;
}

/// What is wrong when the dialog is used once more, undisturbed; empty if nothing is.
QString troubleWithNextUse(PasswordDesk& desk)
{
    desk.logger->faults().clear();
    desk.takeWire();
    desk.run([&] { desk.tryPassword(rightPassword()); });
    if (desk.takeWire() != showingCommands() << "?Secret")
        return QStringLiteral("wrong commands");
    if (!desk.dialog.lUnlocked() || desk.dialog.isVisible())
        return QStringLiteral("not unlocked, or not closed");
    if (desk.labels() != idleLabels())
        return desk.labels().join(QLatin1Char('\n'));
    return desk.robot.problems();
}

} // namespace

Q_DECLARE_METATYPE(Hand)

class TestPasswordDialogInterruptions : public QObject
{
    Q_OBJECT

private slots:
    void closingWhileShowing_data() { addCommands(); }
    void closingWhileShowing();
    void closingWhileShowingFails_data() { addCommands(); }
    void closingWhileShowingFails();
    void closingWhileTrying_data() { addClosings(); }
    void closingWhileTrying();
    void closingWhileTryingTheWrongOne();
    void closingWhileTryingInVain_data();
    void closingWhileTryingInVain();
    void closingOverTheFirstWarning();
    void acceptingWhileShowing_data() { addCommands(); }
    void acceptingWhileShowing();
    void acceptingWhileTrying_data();
    void acceptingWhileTrying();
    void disconnectingWhileShowing_data() { addCommands(); }
    void disconnectingWhileShowing();
    void disconnectingWhileTrying();
    void typingWhileTrying();
    void togglingWhileTrying();
    void comingBackWhileTrying();
};

void TestPasswordDialogInterruptions::closingWhileShowing()
{
    QFETCH(QByteArray, command);
    PasswordDesk desk;
    desk.atCommand(command, [&] { desk.dialog.close(); });
    const int result = desk.dialog.exec();
    QCOMPARE(result, int(QDialog::Rejected));
    QVERIFY(!desk.dialog.isVisible());
    QVERIFY(!desk.dialog.windowHandle()->isVisible());
    QVERIFY(!desk.dialog.lUnlocked());
    QCOMPARE(desk.takeWire(), showingCommands());
    QVERIFY(desk.robot.boxes().isEmpty());
    QCOMPARE(troubleWithNextUse(desk), QString());
}

void TestPasswordDialogInterruptions::closingWhileShowingFails()
{
    QFETCH(QByteArray, command);
    PasswordDesk desk;
    desk.atCommand(command, [&] {
        desk.dialog.reject();
        desk.unplug();
    });
    QCOMPARE(desk.dialog.exec(), int(QDialog::Rejected));
    QVERIFY(!desk.dialog.isVisible());
    QVERIFY(!desk.dialog.windowHandle()->isVisible());
    QCOMPARE(desk.labels(), untouchedLabels());
    QVERIFY(desk.robot.boxes().isEmpty());
}

// Closed is closed, even if the password turns out to be right.
void TestPasswordDialogInterruptions::closingWhileTrying()
{
    QFETCH(Hand, close);
    PasswordDesk desk;
    desk.atCommand("?", [&] { close(desk); });
    const int result = desk.run([&] { desk.tryPassword(rightPassword()); });
    QCOMPARE(result, int(QDialog::Rejected));
    QVERIFY(!desk.dialog.lUnlocked());
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.takeWire(), showingCommands() << "?Secret");
    QVERIFY(desk.robot.boxes().isEmpty());
    QCOMPARE(troubleWithNextUse(desk), QString());
}

void TestPasswordDialogInterruptions::closingWhileTryingTheWrongOne()
{
    PasswordDesk desk;
    desk.atCommand("?", [&] { desk.pressCancel(); });
    QCOMPARE(desk.run([&] { desk.tryPassword(QStringLiteral("wrong")); }), int(QDialog::Rejected));
    QVERIFY(!desk.dialog.lUnlocked());
    QVERIFY(desk.robot.boxes().isEmpty());
    QCOMPARE(troubleWithNextUse(desk), QString());
}

void TestPasswordDialogInterruptions::closingWhileTryingInVain_data()
{
    QTest::addColumn<bool>("unplugged");
    QTest::newRow("silence") << false;
    QTest::newRow("unplugged") << true;
}

void TestPasswordDialogInterruptions::closingWhileTryingInVain()
{
    QFETCH(bool, unplugged);
    PasswordDesk desk;
    desk.disturb("?", Fault::Kind::Silence);
    desk.atCommand("?", [&] {
        desk.pressCancel();
        if (unplugged)
            desk.unplug();
    });
    QCOMPARE(desk.run([&] { desk.tryPassword(rightPassword()); }), int(QDialog::Rejected));
    QVERIFY(!desk.dialog.lUnlocked());
    QVERIFY(!desk.dialog.isVisible());
    QVERIFY(desk.robot.boxes().isEmpty());
}

// Only the program can do so, and it has nothing more to say then.
void TestPasswordDialogInterruptions::closingOverTheFirstWarning()
{
    PasswordDesk desk;
    desk.disturb("?", Fault::Kind::Silence);
    desk.robot.expectWarning(QStringLiteral("Unlock device"),
                             QStringLiteral("Failed while trying to unlock device."));
    connect(&desk.robot, &DialogRobot::sBoxOpened, &desk.dialog, [&desk] { desk.dialog.reject(); });
    QCOMPARE(desk.run([&] { desk.tryPassword(rightPassword()); }), int(QDialog::Rejected));
    QVERIFY(!desk.dialog.lUnlocked());
    QCOMPARE(desk.robot.problems(), QString());
    desk.robot.disconnect(&desk.dialog);
    QCOMPARE(troubleWithNextUse(desk), QString());
}

// It isn't on the screen yet, so only the program itself could do so.
void TestPasswordDialogInterruptions::acceptingWhileShowing()
{
    QFETCH(QByteArray, command);
    PasswordDesk desk;
    desk.atCommand(command, [&] { desk.dialog.accept(); });
    desk.open();
    QVERIFY(desk.dialog.isVisible());
    QCOMPARE(desk.labels(), idleLabels());
    QCOMPARE(desk.takeWire(), showingCommands());
    QVERIFY(desk.robot.boxes().isEmpty());
}

void TestPasswordDialogInterruptions::acceptingWhileTrying_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<bool>("isRight");
    QTest::newRow("right") << rightPassword() << true;
    QTest::newRow("wrong") << QStringLiteral("wrong") << false;
}

void TestPasswordDialogInterruptions::acceptingWhileTrying()
{
    QFETCH(QString, password);
    QFETCH(bool, isRight);
    PasswordDesk desk;
    desk.open();
    desk.takeWire();
    desk.atCommand("?", [&] {
        desk.pressOk();
        QTest::keyClick(desk.find<QLineEdit>("linePassw"), Qt::Key_Return);
    });
    if (!isRight)
        desk.expectIncorrect();
    desk.tryPassword(password);
    QCOMPARE(desk.takeWire(), QList<QByteArray>({"?" + password.toUtf8()}));
    QCOMPARE(desk.dialog.lUnlocked(), isRight);
    QCOMPARE(desk.dialog.isVisible(), !isRight);
    QCOMPARE(desk.robot.problems(), QString());
}

// The link may be closed while an exchange waits: there is no answer then, and nothing more is sent.
void TestPasswordDialogInterruptions::disconnectingWhileShowing()
{
    QFETCH(QByteArray, command);
    PasswordDesk desk;
    desk.atCommand(command, [&] { desk.link->lDisconnect(); });
    desk.open();
    QVERIFY(desk.dialog.isVisible());
    QCOMPARE(desk.labels(), untouchedLabels());
    const QList<QByteArray> sent = showingCommands().mid(0, showingCommands().indexOf(command) + 1);
    QCOMPARE(desk.takeWire(), sent);

    desk.expectNoAnswer();
    desk.tryPassword(rightPassword());
    QVERIFY(!desk.dialog.isVisible());
    QVERIFY(!desk.dialog.lUnlocked());
    QCOMPARE(desk.takeWire(), QList<QByteArray>());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogInterruptions::disconnectingWhileTrying()
{
    PasswordDesk desk;
    desk.atCommand("?", [&] { desk.link->lDisconnect(); });
    desk.expectNoAnswer();
    QCOMPARE(desk.run([&] { desk.tryPassword(rightPassword()); }), int(QDialog::Accepted));
    QVERIFY(!desk.dialog.lUnlocked());
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.takeWire(), showingCommands() << "?Secret");
    QCOMPARE(desk.robot.problems(), QString());
    QVERIFY(desk.link->lConnectAuto());
    QCOMPARE(troubleWithNextUse(desk), QString());
}

// The password on its way stays as it was, and what was typed is cleared with it.
void TestPasswordDialogInterruptions::typingWhileTrying()
{
    PasswordDesk desk;
    desk.open();
    desk.takeWire();
    desk.atCommand("?", [&] { QTest::keyClicks(desk.find<QLineEdit>("linePassw"), QStringLiteral("more")); });
    desk.expectIncorrect();
    desk.tryPassword(QStringLiteral("wrong"));
    QCOMPARE(desk.takeWire(), QList<QByteArray>({"?wrong"}));
    QCOMPARE(desk.text("linePassw"), QString());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogInterruptions::togglingWhileTrying()
{
    PasswordDesk desk;
    desk.open();
    desk.atCommand("?", [&] { desk.pressToggle(); });
    desk.expectIncorrect();
    desk.tryPassword(QStringLiteral("wrong"));
    QVERIFY(desk.isShowingInfo());
    QCOMPARE(desk.text("buttonToggleInfo"), QStringLiteral("Less..."));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestPasswordDialogInterruptions::comingBackWhileTrying()
{
    PasswordDesk desk;
    desk.open();
    desk.takeWire();
    desk.atCommand("?", [&] { bringBack(desk.dialog); });
    desk.tryPassword(rightPassword());
    QVERIFY(desk.dialog.lUnlocked());
    QCOMPARE(desk.takeWire(), QList<QByteArray>({"?Secret"}));
}

QTEST_MAIN(TestPasswordDialogInterruptions)
#include "tst_passworddialog_interruptions.moc"
