// A query of the pool comes to its end in the middle of a procedure, at every single exchange: by the last
// answer that it takes, or when its time is over, with answers enough or too few. Nothing comes between the
// procedure's own commands, and nothing in the window changes but the status bar.

#include "extendedrig.h"
#include "poolaccess.h"
#include "timerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace TimeWords;
using namespace WindowWords;

namespace {

enum class Ending { LastAnswer, TimeOverWithHalf, TimeOverWithFewer };

struct EndingRow
{
    const char* name;
    Ending ending;
    int early; ///< servers that answer at once; of the seven asked, five make an end and three are half
};

constexpr EndingRow endingRows[] = {
    {"last answer", Ending::LastAnswer, 4},
    {"time over, half the answers", Ending::TimeOverWithHalf, 3},
    {"time over, fewer", Ending::TimeOverWithFewer, 2},
};

/// Some of them answer at once, and the others when they are told to. The first one isn't asked: in the list
/// of servers it is no host name.
struct PoolServers : Servers
{
    explicit PoolServers(int early)
        : Servers(NtpAnswer::currentTime().later())
    {
        for (int number = 2; number < 2 + early; ++number)
            answer(number, NtpAnswer::currentTime());
    }
};

/// A window whose pool has answered in part.
class PoolRig
{
public:
    explicit PoolRig(const EndingRow& row)
        : ending(row.ending)
        , servers(row.early)
        , rig(timeSettings(true))
    {
        rig.skipIdleWaits();
        if (!QTest::qWaitFor([this] { return servers.requests() >= poolSize - 1; }) || !otherQueryPasses())
            qFatal("the pool isn't asked");
        if (rig.status() != fetchingPool)
            qFatal("the query has ended too early");
    }

    bool succeeds() const { return ending != Ending::TimeOverWithFewer; }
    QString endStatus() const { return succeeds() ? fetchedPool : failedPool; }
    /// The query ends in the middle of the n-th command from now; `ended` tells whether it did.
    void endAt(int command)
    {
        rig.atCommand(command, [this] { end(); });
    }

private:
    void end()
    {
        if (ending == Ending::LastAnswer)
            servers.release();
        else
            endPoolPatience(rig.window);
        ended = rig.comesTo(endStatus());
    }

    const Ending ending;
    PoolServers servers;

public:
    TimeRig rig;
    bool ended = false;
};

/// The same with a logger connected, whose n-th command from then on the query's end meets.
struct ConnectedPool : PoolRig
{
    ConnectedPool(int row, int command)
        : PoolRig(endingRows[row])
    {
        rig.plugAndConnect(secureLogger());
        endAt(command);
    }
};

/// Rows for every command. A time-out with answers enough ends as any answer does; it is left to those
/// procedures that go by the reference time or have few commands.
void addRows(const QList<QByteArray>& commands, bool alsoWithHalf)
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("command");
    for (const EndingRow& row : endingRows) {
        if (row.ending == Ending::TimeOverWithHalf && !alsoWithHalf)
            continue;
        for (int number = 1; number <= commands.size(); ++number)
            QTest::addRow("%s, %d %s", row.name, number, commands.at(number - 1).left(2).constData())
                << int(&row - endingRows) << number;
    }
}

} // namespace

class TestMainWindowPoolAnswers : public QObject
{
    Q_OBJECT

private slots:
    void duringConnect_data() { addRows(lockedConnectCommands(), false); }
    void duringConnect();
    void duringRead_data() { addRows(extendedReadCommands(), false); }
    void duringRead();
    void duringWrite_data() { addRows(extendedWriteCommands(), true); }
    void duringWrite();
    void duringStart_data() { addRows({"Go", "a"}, true); }
    void duringStart();
};

void TestMainWindowPoolAnswers::duringConnect()
{
    QFETCH(const int, row);
    QFETCH(const int, command);
    PoolRig pool(endingRows[row]);
    TimeRig& rig = pool.rig;
    const UnlockHand hand(rig, {rightPassword});
    rig.plug(lockedLogger());
    pool.endAt(command);
    rig.press("buttonConnect");
    QVERIFY(pool.ended);
    QCOMPARE(rig.wire(), lockedConnectCommands());
    QCOMPARE(rig.isEnabled("buttonToolTimeZone"), pool.succeeds());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowPoolAnswers::duringRead()
{
    QFETCH(const int, row);
    QFETCH(const int, command);
    ConnectedPool pool(row, command);
    TimeRig& rig = pool.rig;
    rig.press("buttonRead");
    QVERIFY(pool.ended);
    QCOMPARE(rig.wire(), extendedReadCommands());
    QCOMPARE(rig.isEnabled("buttonToolTimeZone"), pool.succeeds());
    const bool atTheEnd = command == extendedReadCommands().size();
    QCOMPARE(differences(rig, idle(atTheEnd ? pool.endStatus() : QStringLiteral("Read successful"), false)),
             QString());
}

// At the first command it is in time to be sent to the logger.
void TestMainWindowPoolAnswers::duringWrite()
{
    QFETCH(const int, row);
    QFETCH(const int, command);
    ConnectedPool pool(row, command);
    TimeRig& rig = pool.rig;
    rig.press("buttonWrite");
    QVERIFY(pool.ended);
    QList<QByteArray> expected = extendedWriteCommands();
    if (command == 1 && pool.succeeds()) {
        expected.insert(1, "Sz00007200");
        expected.insert(2, "u");
    }
    QCOMPARE(withoutSeconds(rig.wire()), expected);
    QCOMPARE(rig.isEnabled("buttonToolTimeZone"), pool.succeeds());
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

void TestMainWindowPoolAnswers::duringStart()
{
    QFETCH(const int, row);
    QFETCH(const int, command);
    ConnectedPool pool(row, command);
    TimeRig& rig = pool.rig;
    expectStartConfirm(rig.robot, Yes);
    rig.press("buttonStart");
    QVERIFY(pool.ended);
    QCOMPARE(rig.wire(), QList<QByteArray>({"Go", "a"}));
    QCOMPARE(differences(rig, disconnected()), QString());
}

QTEST_MAIN(TestMainWindowPoolAnswers)
#include "tst_mainwindow_poolanswers.moc"
