// A read that meets silence or the Cancel button, at every single command, as part of a connect and on its
// own.

#include "procedurerig.h"
#include "progresswatch.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QProgressDialog>
#include <QTest>

using namespace WindowWords;

namespace {

/// Numbers of commands in a read, from 1 on.
constexpr int firstText = 10;
constexpr int lastText = 13;

/// One row each for a connect and for a read on its own, for the commands @p first to @p last of a read.
void addRows(int first, int last)
{
    for (int command = first; command <= last; ++command) {
        const QByteArray name = readCommands().at(command - 1);
        QTest::addRow("%d %s in a connect", command, name.constData()) << command << true;
        QTest::addRow("%d %s in a read", command, name.constData()) << command << false;
    }
}

void addColumns()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<bool>("connecting");
}

/// A rig just before the press of Connect or Read, with its record counting the commands of what follows.
struct ReadingRig : ProcedureRig
{
    explicit ReadingRig(bool connecting)
        : connecting(connecting)
    {
        plug();
        if (connecting)
            return;
        press("buttonConnect");
        logger->clearExchanges();
        takeStatusLog();
    }

    /// The number on the wire of a command of the read.
    int number(int command) const { return connecting ? command + 1 : command; }
    void run() { press(connecting ? "buttonConnect" : "buttonRead"); }
    QList<QByteArray> commandsUpTo(int command) const
    {
        return firstOf(connecting ? connectCommands() : readCommands(), number(command));
    }
    /// What a read sends that ends at @p command: every ending looks whether the device is valid.
    QList<QByteArray> commandsOfReadEndingAt(int command) const { return commandsUpTo(command) << "m"; }
    /// What the status bar shows of a read that ends in @p ending and a disconnect.
    QStringList statusesOfLostRead(const QString& ending) const
    {
        QStringList read{QStringLiteral("Reading from device on ttyACM0"), ending,
                         QStringLiteral("Disconnected from ttyACM0")};
        if (!connecting)
            return read;
        return QStringList{QStringLiteral("Connecting to device... ")} + read +
               QStringList{QStringLiteral("Connected to device on ttyACM0")};
    }
    WindowState lostState() const { return connecting ? mixed() : disconnected(); }
    WindowState readState() const
    {
        return connecting ? connected() : idle(QStringLiteral("Read successful"), false);
    }

    bool connecting;
};

/// The panels after a read that lost the texts from the command @p command on.
QStringList panelsWithoutTexts(int command)
{
    const QStringList lines{QStringLiteral("lineSender = "), QStringLiteral("lineRecipient = "),
                            QStringLiteral("lineInfo = "), QStringLiteral("lineBarcode = ")};
    return panelsWith(panelsOfBasicLogger(), lines.mid(command - firstText));
}

} // namespace

class TestMainWindowReadFailures : public QObject
{
    Q_OBJECT

private slots:
    void failsAtSilence_data();
    void failsAtSilence();
    void doesWithoutSilentTexts_data();
    void doesWithoutSilentTexts();
    void stopsAtCancel_data();
    void stopsAtCancel();
    void cancelsBy_data();
    void cancelsBy();
    void movesBarUpToFailure_data();
    void movesBarUpToFailure();
    void connectsAnewAfterFailedRead();
};

void TestMainWindowReadFailures::failsAtSilence_data()
{
    addColumns();
    addRows(1, firstText - 1);
    addRows(stepsOfRead, stepsOfRead);
}

void TestMainWindowReadFailures::failsAtSilence()
{
    QFETCH(const int, command);
    QFETCH(const bool, connecting);
    ReadingRig rig(connecting);
    rig.disturb(rig.number(command), Fault::Kind::Silence);
    if (connecting)
        expectConnectFailed(rig.robot);
    else
        expectReadFailed(rig.robot);
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsOfReadEndingAt(command));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(rig.takeStatusLog(), rig.statusesOfLostRead(QStringLiteral("Read failed. Please retry.")));
    QCOMPARE(differences(rig, rig.lostState()), QString());
}

void TestMainWindowReadFailures::doesWithoutSilentTexts_data()
{
    addColumns();
    addRows(firstText, lastText);
}

void TestMainWindowReadFailures::doesWithoutSilentTexts()
{
    QFETCH(const int, command);
    QFETCH(const bool, connecting);
    ReadingRig rig(connecting);
    rig.disturb(rig.number(command), Fault::Kind::Silence);
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsUpTo(command) << "G3"
                                                   << "m");
    QCOMPARE(panels(rig), panelsWithoutTexts(command));
    QCOMPARE(differences(rig, rig.readState()), QString());
}

void TestMainWindowReadFailures::stopsAtCancel_data()
{
    addColumns();
    addRows(2, stepsOfRead); // the first command goes out before the dialog is there
}

// The command under way is waited out. Among the texts the shipment type still follows.
void TestMainWindowReadFailures::stopsAtCancel()
{
    QFETCH(const int, command);
    QFETCH(const bool, connecting);
    ReadingRig rig(connecting);
    rig.atCommand(rig.number(command), [&rig] { rig.pressCancel(); });
    rig.run();
    const bool isText = command >= firstText && command <= lastText;
    QCOMPARE(rig.wire(),
             rig.commandsUpTo(command) + (isText ? QList<QByteArray>{"G3", "m"} : QList<QByteArray>{"m"}));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(rig.takeStatusLog(), rig.statusesOfLostRead(QStringLiteral("Read successful")));
    QCOMPARE(differences(rig, rig.lostState()), QString());
}

void TestMainWindowReadFailures::cancelsBy_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("the Escape key") << true;
    QTest::newRow("closing the dialog") << false;
}

void TestMainWindowReadFailures::cancelsBy()
{
    QFETCH(const bool, byKey);
    ReadingRig rig(false);
    rig.atCommand(5, [&rig, byKey] {
        if (byKey)
            QTest::keyClick(rig.progressDialog(), Qt::Key_Escape);
        else
            rig.progressDialog()->close();
    });
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsOfReadEndingAt(5));
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowReadFailures::movesBarUpToFailure_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<bool>("cancelled");
    QTest::addColumn<QList<int>>("values");
    const auto row = [](const char* name, int command, bool cancelled, const QList<int>& values) {
        QTest::newRow(name) << command << cancelled << values;
    };
    row("the first command fails", 1, false, {17});
    row("the first step fails", 2, false, {17});
    row("Gt fails", 6, false, {0, 1, 2, 3, 17});
    row("G3 fails", stepsOfRead, false, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17});
    row("cancelled at the first step", 2, true, {17});
    row("cancelled at Gt", 6, true, {0, 1, 2, 3, 17});
    row("cancelled at G1", 11, true, {0, 1, 2, 3, 4, 5, 6, 7, 8, 17});
    row("cancelled at G3", stepsOfRead, true, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17});
}

void TestMainWindowReadFailures::movesBarUpToFailure()
{
    QFETCH(const int, command);
    QFETCH(const bool, cancelled);
    ReadingRig rig(false);
    if (cancelled) {
        rig.atCommand(command, [&rig] { rig.pressCancel(); });
    } else {
        rig.disturb(command, Fault::Kind::Silence);
        expectReadFailed(rig.robot);
    }
    const ProgressWatch watch;
    rig.run();
    QCOMPARE(watch.dialogs().size(), 1);
    QTEST(watch.dialogs().first().values, "values");
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowReadFailures::connectsAnewAfterFailedRead()
{
    ReadingRig rig(false);
    rig.disturb(6, Fault::Kind::Silence);
    expectReadFailed(rig.robot);
    rig.run();
    rig.logger->faults().clear();
    rig.logger->clearExchanges();
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

QTEST_MAIN(TestMainWindowReadFailures)
#include "tst_mainwindow_readfailures.moc"
