// The plug of a logger with extended firmware is pulled at every single command; then comes another logger.

#include "extendedrig.h"
#include "pulledplug.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace WindowWords;

namespace {

enum ConnectPart { Handshake, Identification, Lock, UnlockDialog, Unlocking, Steps, Validity };

/// Where the n-th command of a connect with a locked logger belongs.
ConnectPart partOfConnect(int command)
{
    static const QList<QByteArray> commands = lockedConnectCommands();
    constexpr ConnectPart first[] = {Handshake,    Identification, Lock,         UnlockDialog,
                                     UnlockDialog, UnlockDialog,   UnlockDialog, Unlocking};
    constexpr int count = sizeof(first) / sizeof(first[0]);
    if (command <= count)
        return first[command - 1];
    return command == commands.size() ? Validity : Steps;
}

/// A lock that nobody could ask for: the window takes the link to be there and offers nothing else.
WindowState unaskedLock()
{
    WindowState state = connected();
    state.controls = Controls::Disabled;
    return state;
}

/// Expects the boxes of a connect that loses its logger there, and returns what is left of it.
WindowState expectLostInConnect(ProcedureRig& rig, ConnectPart part)
{
    WindowState gone = beforeAnyConnect();
    gone.status = QStringLiteral("Connecting to device... ");
    switch (part) {
    case Handshake:
        expectNoDevice(rig.robot);
        return beforeAnyConnect();
    case Lock:
        expectReadIncorrect(rig.robot);
        return unaskedLock();
    case UnlockDialog:
    case Unlocking:
        expectNoAnswerToPassword(rig.robot);
        return gone;
    default:
        expectLostInRead(rig, part == Validity);
        return disconnected();
    }
}

} // namespace

class TestMainWindowExtendedUnplug : public QObject
{
    Q_OBJECT

private slots:
    void duringConnect_data() { addCommandRows(lockedConnectCommands()); }
    void duringConnect();
    void duringRead_data() { addCommandRows(extendedReadCommands()); }
    void duringRead();
    void duringWrite_data() { addCommandRows(extendedWriteCommands()); }
    void duringWrite();
};

// The operator tries the password in any case.
void TestMainWindowExtendedUnplug::duringConnect()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {rightPassword});
    QList<QByteArray> wire;
    pullAt(rig, command, &wire);
    const ConnectPart part = partOfConnect(command);
    const WindowState left = expectLostInConnect(rig, part);
    rig.press("buttonConnect");
    QCOMPARE(wire, firstOf(lockedConnectCommands(), command));
    QCOMPARE(hand.showings(), part < UnlockDialog ? 0 : 1);
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, left), QString());
    QCOMPARE(troubleWithNextLogger(rig), QString());
}

void TestMainWindowExtendedUnplug::duringRead()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    QList<QByteArray> wire;
    pullAt(rig, command, &wire);
    const bool atTheLock = command == 2;
    if (!atTheLock)
        expectLostInRead(rig, command == extendedReadCommands().size());
    rig.press("buttonRead");
    QCOMPARE(wire, firstOf(extendedReadCommands(), command));
    QCOMPARE(panels(rig) == emptyPanels(), !atTheLock);
    QCOMPARE(differences(rig, atTheLock ? unaskedLock() : disconnected()), QString());
    QCOMPARE(troubleWithNextLogger(rig), QString());
}

void TestMainWindowExtendedUnplug::duringWrite()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    const QStringList before = panels(rig);
    QList<QByteArray> wire;
    pullAt(rig, command, &wire);
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(wire, firstOf(extendedWriteCommands(), command));
    QCOMPARE(panels(rig), before);
    QCOMPARE(differences(rig, idle(QStringLiteral("Write failed. Please retry"), true)), QString());
    QCOMPARE(troubleWithNextLogger(rig), QString());
}

QTEST_MAIN(TestMainWindowExtendedUnplug)
#include "tst_mainwindow_extendedunplug.moc"
