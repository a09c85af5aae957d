// Extended firmware that falls silent, or the Cancel button, at every single command of a read and a write.

#include "extendedrig.h"
#include "progresswatch.h"
#include "readingrig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace WindowWords;

namespace {

bool isText(const QByteArray& command)
{
    return command.size() == 2 && command.at(0) == 'G' && command.at(1) >= '0' && command.at(1) <= '4' &&
           command.at(1) != '3';
}

/// A rig with a logger of extended firmware.
struct ExtendedReadingRig : ReadingRig
{
    explicit ExtendedReadingRig(bool connecting)
        : ReadingRig(connecting, secureLogger(), extendedReadCommands())
    {
    }
};

void addRows(const QList<QByteArray>& wanted, int skipped = 0)
{
    addReadingRows(extendedReadCommands(), wanted, skipped);
}

/// The first question for the type, the one of the read itself.
void addTypeRows()
{
    const int number = extendedReadCommands().indexOf("m") + 1;
    QTest::addRow("%d m in a connect", number) << QByteArray("m") << number << true;
    QTest::addRow("%d m in a read", number) << QByteArray("m") << number << false;
}

const QList<const char*> zoneLabels{"labelTimeZoneStatic", "labelTimeZone"};

} // namespace

class TestMainWindowExtendedFailures : public QObject
{
    Q_OBJECT

private slots:
    void readFailsAtSilence_data();
    void readFailsAtSilence();
    void readDoesWithoutSilentTexts_data();
    void readDoesWithoutSilentTexts();
    void readEndsWithoutAWordOnTheLock_data();
    void readEndsWithoutAWordOnTheLock();
    void readKeepsTheLinkWithoutAWordOnTheBattery_data();
    void readKeepsTheLinkWithoutAWordOnTheBattery();
    void silentDeviceIsTakenAsInvalid_data();
    void silentDeviceIsTakenAsInvalid();
    void silentAfterAGoodRead_data();
    void silentAfterAGoodRead();
    void readStopsAtCancel_data();
    void readStopsAtCancel();
    void readTakesNoCancelAtItsEnd_data();
    void readTakesNoCancelAtItsEnd();
    void writeFailsAtSilence_data();
    void writeFailsAtSilence();
    void writeStopsAtCancel_data();
    void writeStopsAtCancel();
    void writeMovesBar_data();
    void writeMovesBar();
};

void TestMainWindowExtendedFailures::readFailsAtSilence_data()
{
    addRows({"i", "e", "g", "Gt", "Gs", "Gd", "Gl", "G3", "Go", "Gz", "Ga", "Gp"});
    addTypeRows();
}

// Not even the zone of the device is left, also where it was read in time.
void TestMainWindowExtendedFailures::readFailsAtSilence()
{
    QFETCH(const int, number);
    QFETCH(const bool, connecting);
    ExtendedReadingRig rig(connecting);
    rig.disturb(rig.number(number), Fault::Kind::Silence);
    rig.expectFailure();
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsOfReadEndingAt(number));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(visibleLabels(rig, zoneLabels), QStringList());
    QCOMPARE(differences(rig, rig.lostState()), QString());
}

void TestMainWindowExtendedFailures::readDoesWithoutSilentTexts_data()
{
    addRows({"G0", "G1", "G2", "G4"});
}

void TestMainWindowExtendedFailures::readDoesWithoutSilentTexts()
{
    QFETCH(const int, number);
    QFETCH(const bool, connecting);
    ExtendedReadingRig rig(connecting);
    rig.disturb(rig.number(number), Fault::Kind::Silence);
    rig.run();
    const int shipmentType = extendedReadCommands().indexOf("G3");
    QCOMPARE(rig.wire(), rig.commandsUpTo(number) + extendedReadCommands().mid(shipmentType));
    QCOMPARE(differences(rig, rig.readState()), QString());
}

void TestMainWindowExtendedFailures::readEndsWithoutAWordOnTheLock_data()
{
    addRows({"#"});
}

// The link stays, but nothing can be done with it before the next read.
void TestMainWindowExtendedFailures::readEndsWithoutAWordOnTheLock()
{
    QFETCH(const int, number);
    QFETCH(const bool, connecting);
    ExtendedReadingRig rig(connecting);
    rig.disturb(rig.number(number), Fault::Kind::Silence);
    if (connecting)
        expectReadIncorrect(rig.robot);
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsUpTo(number));
    WindowState state = connected();
    state.controls = Controls::Disabled;
    QCOMPARE(differences(rig, state), QString());
}

void TestMainWindowExtendedFailures::readKeepsTheLinkWithoutAWordOnTheBattery_data()
{
    addRows({"l"});
}

void TestMainWindowExtendedFailures::readKeepsTheLinkWithoutAWordOnTheBattery()
{
    QFETCH(const int, number);
    QFETCH(const bool, connecting);
    ExtendedReadingRig rig(connecting);
    rig.disturb(rig.number(number), Fault::Kind::Silence);
    rig.expectFailure();
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsOfReadEndingAt(number));
    QCOMPARE(rig.text("labelDeviceName"), QStringLiteral("Brumalogger USB"));
    QCOMPARE(differences(rig, connecting ? connected()
                                         : idle(QStringLiteral("Read failed. Please retry."), false)),
             QString());
}

void TestMainWindowExtendedFailures::silentDeviceIsTakenAsInvalid_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<bool>("connecting");
    for (const QByteArray& from : {QByteArray("Gt"), QByteArray("Go"), QByteArray("Gp"), QByteArray("l")}) {
        QTest::addRow("from %s in a connect", from.constData()) << from << true;
        QTest::addRow("from %s in a read", from.constData()) << from << false;
    }
}

// The failure of the read is told first. The connect says nothing more, and nothing looks connected.
void TestMainWindowExtendedFailures::silentDeviceIsTakenAsInvalid()
{
    QFETCH(const QByteArray, from);
    QFETCH(const bool, connecting);
    ExtendedReadingRig rig(connecting);
    const int number = extendedReadCommands().indexOf(from) + 1;
    rig.atCommand(rig.number(number), [&rig] { rig.disturb("", Fault::Kind::Silence); });
    rig.disturb(rig.number(number), Fault::Kind::Silence);
    expectReadFailed(rig.robot);
    expectInvalidDevice(rig.robot);
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsOfReadEndingAt(number));
    QCOMPARE(panels(rig), emptyPanels());
    QStringList statuses{"Reading from device on ttyACM0", "Read failed. Please retry.",
                         "Invalid device detected.", "Disconnected from ttyACM0"};
    if (connecting)
        statuses.prepend("Connecting to device... ");
    QCOMPARE(rig.takeStatusLog(), statuses);
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowExtendedFailures::silentAfterAGoodRead_data()
{
    QTest::addColumn<bool>("connecting");
    QTest::newRow("in a connect") << true;
    QTest::newRow("in a read") << false;
}

// Only the last question for the type has no answer.
void TestMainWindowExtendedFailures::silentAfterAGoodRead()
{
    QFETCH(const bool, connecting);
    ExtendedReadingRig rig(connecting);
    rig.disturb(rig.number(extendedReadCommands().size()), Fault::Kind::Silence);
    expectInvalidDevice(rig.robot);
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsUpTo(extendedReadCommands().size()));
    QCOMPARE(panels(rig), emptyPanels());
    QStringList statuses{"Reading from device on ttyACM0", "Read successful", "Invalid device detected.",
                         "Disconnected from ttyACM0"};
    if (connecting)
        statuses.prepend("Connecting to device... ");
    QCOMPARE(rig.takeStatusLog(), statuses);
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowExtendedFailures::readStopsAtCancel_data()
{
    // From the first step of the dialog on, and as long as it is looked at.
    addRows({"e", "i", "g", "Gt", "Gs", "Gd", "Gl", "G0", "G1", "G2", "G4", "G3", "Go", "Gz", "Ga", "Gp"}, 2);
    addTypeRows();
}

void TestMainWindowExtendedFailures::readStopsAtCancel()
{
    QFETCH(const QByteArray, command);
    QFETCH(const int, number);
    QFETCH(const bool, connecting);
    ExtendedReadingRig rig(connecting);
    rig.atCommand(rig.number(number), [&rig] { rig.pressCancel(); });
    rig.run();
    const QList<QByteArray> more = isText(command) ? QList<QByteArray>{"G3"} : QList<QByteArray>();
    QCOMPARE(rig.wire(), rig.commandsUpTo(number) + more + QList<QByteArray>{"m"});
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(visibleLabels(rig, zoneLabels), QStringList());
    QCOMPARE(differences(rig, rig.lostState()), QString());
}

void TestMainWindowExtendedFailures::readTakesNoCancelAtItsEnd_data()
{
    addRows({"z", "l"});
}

void TestMainWindowExtendedFailures::readTakesNoCancelAtItsEnd()
{
    QFETCH(const int, number);
    QFETCH(const bool, connecting);
    ExtendedReadingRig rig(connecting);
    rig.atCommand(rig.number(number), [&rig] { rig.pressCancel(); });
    rig.run();
    QCOMPARE(rig.wire(), connecting ? extendedConnectCommands() : extendedReadCommands());
    QCOMPARE(differences(rig, rig.readState()), QString());
}

void TestMainWindowExtendedFailures::writeFailsAtSilence_data()
{
    addCommandRows(extendedWriteCommands());
}

// A text that is silent is no failure; all else is.
void TestMainWindowExtendedFailures::writeFailsAtSilence()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    rig.disturb(command, Fault::Kind::Silence);
    const QList<QByteArray> all = extendedWriteCommands();
    const int shipmentType = all.indexOf("S3Land");
    const bool silentText = command >= 5 && command <= shipmentType;
    if (!silentText)
        expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), firstOf(all, command) + (silentText ? all.mid(shipmentType) : QList<QByteArray>()));
    QCOMPARE(differences(rig, silentText ? idle(QStringLiteral("Write successful"), false)
                                         : idle(QStringLiteral("Write failed. Please retry"), true)),
             QString());
}

void TestMainWindowExtendedFailures::writeStopsAtCancel_data()
{
    addCommandRows(extendedWriteCommands());
}

void TestMainWindowExtendedFailures::writeStopsAtCancel()
{
    QFETCH(const int, command);
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    rig.atCommand(command, [&rig] { rig.pressCancel(); });
    expectWriteCanceled(rig.robot);
    rig.press("buttonWrite");
    const QList<QByteArray> all = extendedWriteCommands();
    const int shipmentType = all.indexOf("S3Land");
    const bool inText = command >= 5 && command <= shipmentType;
    QCOMPARE(rig.wire(), firstOf(all, command) + (inText ? all.mid(shipmentType, 1) : QList<QByteArray>()));
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

void TestMainWindowExtendedFailures::writeMovesBar_data()
{
    QTest::addColumn<QByteArray>("silentCommand");
    QTest::addColumn<bool>("fails");
    QTest::addColumn<QList<int>>("values");
    const auto row = [](const char* name, const QByteArray& silentCommand, bool fails,
                        const QList<int>& values) {
        QTest::newRow(name) << silentCommand << fails << values;
    };
    row("all is written", "", false, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 17});
    row("S1 is silent", "S1", false, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17});
    row("Sa is silent", "Sa", true, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17});
}

void TestMainWindowExtendedFailures::writeMovesBar()
{
    QFETCH(const QByteArray, silentCommand);
    QFETCH(const bool, fails);
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    if (!silentCommand.isEmpty())
        rig.disturb(silentCommand, Fault::Kind::Silence);
    if (fails)
        expectWriteFailed(rig.robot);
    const ProgressWatch watch;
    rig.press("buttonWrite");
    QCOMPARE(watch.dialogs().size(), 1);
    QTEST(watch.dialogs().first().values, "values");
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowExtendedFailures)
#include "tst_mainwindow_extendedfailures.moc"
