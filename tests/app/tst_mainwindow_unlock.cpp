// A logger whose password lock is on: the unlock dialog in the middle of a read, and what follows it.

#include "dialogs/passworddialog.h"
#include "extendedrig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace WindowWords;

namespace {

QByteArray attempt(const QString& password)
{
    return "?" + password.toUtf8();
}

/// The proof of identity, the beginning of a read, and what the dialog asks when it is shown.
QList<QByteArray> connectUpToTheDialog()
{
    return {"i", "i", "#", "x", "G0", "G1", "G2"};
}

QList<QByteArray> restOfTheRead()
{
    return extendedReadCommands().mid(2);
}

/// What a logger that stays locked leaves behind in a connect.
WindowState givenUp()
{
    WindowState state = beforeAnyConnect();
    state.status = QStringLiteral("Connecting to device... ");
    return state;
}

} // namespace

class TestMainWindowUnlock : public QObject
{
    Q_OBJECT

private slots:
    void unlocks();
    void unlocksSingleUseLogger();
    void unlocksWithoutAWordOnTheLogger_data();
    void unlocksWithoutAWordOnTheLogger();
    void unlocksAtTheSecondTry();
    void givesUpWhenRefused();
    void givesUpWithoutAnswer();
    void finishedLoggerOpensItsReports();
    void otherStatesAreRead();
    void refusedInAReadOfItsOwn();
    void unlocksInAReadOfItsOwn();
    void nextLoggerIsJudgedAnew_data();
    void nextLoggerIsJudgedAnew();
    void comesBeforeTheProgressDialog();
    void openLoggerIsNotAsked();
};

void TestMainWindowUnlock::unlocks()
{
    ProcedureRig rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {rightPassword});
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectUpToTheDialog() << attempt(rightPassword) << restOfTheRead());
    QCOMPARE(hand.showings(), 1);
    QVERIFY(!rig.logger->model().settings().locked);
    QCOMPARE(rig.text("labelSerial"), QStringLiteral("BL-0042"));
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowUnlock::unlocksSingleUseLogger()
{
    LoggerModel model = lockedLogger();
    model.settings().multiuse = false;
    ProcedureRig rig;
    rig.plug(model);
    const UnlockHand hand(rig, {rightPassword});
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectUpToTheDialog()
                             << attempt(rightPassword) << extendedReadCommands(false).mid(2));
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowUnlock::unlocksWithoutAWordOnTheLogger_data()
{
    addCommandRows(connectUpToTheDialog(), {4, 5, 6, 7});
}

// The dialog asks no further, and the password can be tried all the same.
void TestMainWindowUnlock::unlocksWithoutAWordOnTheLogger()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plug(lockedLogger());
    rig.disturb(command, Fault::Kind::Silence);
    const UnlockHand hand(rig, {rightPassword});
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), firstOf(connectUpToTheDialog(), command)
                             << attempt(rightPassword) << restOfTheRead());
    QCOMPARE(hand.showings(), 1);
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowUnlock::unlocksAtTheSecondTry()
{
    ProcedureRig rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {QStringLiteral("secret"), rightPassword});
    expectWrongPassword(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectUpToTheDialog()
                             << attempt("secret") << attempt(rightPassword) << restOfTheRead());
    QCOMPARE(hand.showings(), 1);
    QCOMPARE(differences(rig, connected()), QString());
}

// The window shows the state that it had before, and the logger is free for the next connect.
void TestMainWindowUnlock::givesUpWhenRefused()
{
    ProcedureRig rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {});
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectUpToTheDialog());
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(rig.takeStatusLog(), QStringList("Connecting to device... "));
    rig.logger->clearExchanges();
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectUpToTheDialog());
    QCOMPARE(hand.showings(), 2);
    QCOMPARE(differences(rig, givenUp()), QString());
}

void TestMainWindowUnlock::givesUpWithoutAnswer()
{
    ProcedureRig rig;
    rig.plug(lockedLogger());
    rig.disturb("?", Fault::Kind::Silence);
    const UnlockHand hand(rig, {rightPassword});
    expectNoAnswerToPassword(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectUpToTheDialog() << attempt(rightPassword));
    QCOMPARE(differences(rig, givenUp()), QString());
}

void TestMainWindowUnlock::finishedLoggerOpensItsReports()
{
    ProcedureRig rig;
    rig.plug(lockedLogger(LoggerModel::State::Finished));
    const UnlockHand hand(rig, {rightPassword});
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectUpToTheDialog() << attempt(rightPassword));
    QVERIFY(!rig.logger->model().settings().locked);
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, givenUp()), QString());
}

void TestMainWindowUnlock::otherStatesAreRead()
{
    ProcedureRig rig;
    rig.plug(lockedLogger(LoggerModel::State::Recording));
    const UnlockHand hand(rig, {rightPassword});
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectUpToTheDialog() << attempt(rightPassword) << restOfTheRead());
    QCOMPARE(differences(rig, connected()), QString());
}

// Nothing was asked for but the read, so the link stays; the controls don't.
void TestMainWindowUnlock::refusedInAReadOfItsOwn()
{
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    rig.logger->model() = lockedLogger();
    const UnlockHand hand(rig, {});
    rig.press("buttonRead");
    QCOMPARE(rig.wire(), connectUpToTheDialog().mid(1));
    WindowState state = connected();
    state.controls = Controls::Disabled;
    QCOMPARE(differences(rig, state), QString());
}

void TestMainWindowUnlock::unlocksInAReadOfItsOwn()
{
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    rig.logger->model() = lockedLogger();
    const UnlockHand hand(rig, {rightPassword});
    rig.press("buttonRead");
    QCOMPARE(rig.wire(), connectUpToTheDialog().mid(1) << attempt(rightPassword) << restOfTheRead());
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowUnlock::nextLoggerIsJudgedAnew_data()
{
    QTest::addColumn<bool>("extended");
    QTest::newRow("extended firmware without a lock") << true;
    QTest::newRow("basic firmware") << false;
}

void TestMainWindowUnlock::nextLoggerIsJudgedAnew()
{
    QFETCH(const bool, extended);
    ProcedureRig rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {});
    rig.press("buttonConnect");
    rig.unplugAll();
    rig.plug(extended ? secureLogger() : basicLogger());
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), extended ? extendedConnectCommands() : connectCommands());
    QCOMPARE(hand.showings(), 1);
    QCOMPARE(differences(rig, connected()), QString());
}

// So it can't be cancelled through that one.
void TestMainWindowUnlock::comesBeforeTheProgressDialog()
{
    ProcedureRig rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {rightPassword});
    bool progressThen = true;
    bool controlsThen = true;
    connect(&hand, &UnlockHand::sShown, this, [&] {
        progressThen = rig.progressDialog() != nullptr;
        controlsThen = rig.controlsEnabled();
    });
    rig.press("buttonConnect");
    QVERIFY(!progressThen);
    QVERIFY(!controlsThen);
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowUnlock::openLoggerIsNotAsked()
{
    LoggerModel model = lockedLogger();
    model.settings().locked = false;
    ProcedureRig rig;
    rig.plug(model);
    const UnlockHand hand(rig, {});
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), extendedConnectCommands());
    QCOMPARE(hand.showings(), 0);
    QCOMPARE(differences(rig, connected()), QString());
}

QTEST_MAIN(TestMainWindowUnlock)
#include "tst_mainwindow_unlock.moc"
