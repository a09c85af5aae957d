// Buttons and keys pressed and settings accepted at every command of extended firmware, with a reference time
// at hand: nothing comes of them.

#include "extendedrig.h"
#include "timerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include "dialogs/settingsdialog.h"

#include <QTest>

using namespace TimeWords;
using namespace WindowWords;

namespace {

struct BusyRig : WaitingRig
{
    BusyRig()
    {
        tellTimeUntil(fetchedServer);
        if (!told)
            qFatal("the answer never came");
        rig.activate();
    }

    /// From now on, whenever the logger receives a command.
    void disturbAtEveryCommand()
    {
        rig.takeStatusLog();
        rig.pressAtEveryCommand(&times, [this] { rig.dialog->accept(); });
    }

    int times = 0;
};

} // namespace

class TestMainWindowExtendedInterruptions : public QObject
{
    Q_OBJECT

private slots:
    void duringConnect();
    void duringRead();
    void duringWrite();
};

void TestMainWindowExtendedInterruptions::duringConnect()
{
    BusyRig busy;
    TimeRig& rig = busy.rig;
    rig.plug(lockedLogger());
    const UnlockHand hand(rig, {rightPassword});
    busy.disturbAtEveryCommand();
    rig.press("buttonConnect");
    QCOMPARE(busy.times, lockedConnectCommands().size());
    QCOMPARE(rig.wire(), lockedConnectCommands());
    QCOMPARE(hand.showings(), 1);
    QCOMPARE(rig.takeStatusLog(), QStringList({"Connecting to device... ", "Reading from device on ttyACM0",
                                               "Read successful", "Connected to device on ttyACM0"}));
    QCOMPARE(rig.zone(), QStringLiteral("GMT+2:00, label, button"));
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowExtendedInterruptions::duringRead()
{
    BusyRig busy;
    TimeRig& rig = busy.rig;
    rig.plugAndConnect(secureLogger());
    busy.disturbAtEveryCommand();
    rig.press("buttonRead");
    QCOMPARE(busy.times, extendedReadCommands().size());
    QCOMPARE(rig.wire(), extendedReadCommands());
    QCOMPARE(rig.takeStatusLog(), QStringList({"Reading from device on ttyACM0", "Read successful"}));
    QCOMPARE(rig.zone(), QStringLiteral("GMT+2:00, label, button"));
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowExtendedInterruptions::duringWrite()
{
    BusyRig busy;
    TimeRig& rig = busy.rig;
    rig.plugAndConnect(secureLogger());
    busy.disturbAtEveryCommand();
    rig.press("buttonWrite");
    QList<QByteArray> expected = extendedWriteCommands();
    expected.insert(1, "Sz00007200");
    expected.insert(2, "u");
    QCOMPARE(busy.times, expected.size());
    QCOMPARE(withoutSeconds(rig.wire()), expected);
    QCOMPARE(rig.takeStatusLog(), QStringList({"Writing to device...", "Write successful"}));
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

QTEST_MAIN(TestMainWindowExtendedInterruptions)
#include "tst_mainwindow_extendedinterruptions.moc"
