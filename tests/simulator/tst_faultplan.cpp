// Which fault happens when, and how faults are written.

#include "simulator/faultplan.h"

#include <QTest>

namespace {

using Kind = Fault::Kind;

Fault fault(Kind kind, int exchange = 0, const QByteArray& command = {}, int occurrence = 0)
{
    Fault planned;
    planned.kind = kind;
    planned.exchange = exchange;
    planned.command = command;
    planned.occurrence = occurrence;
    return planned;
}

} // namespace

Q_DECLARE_METATYPE(Fault)

class TestFaultPlan : public QObject
{
    Q_OBJECT

private slots:
    void matches_data();
    void matches();
    void firstFaultWins();
    void clearedPlanMatchesNothing();
    void parses_data();
    void parses();
    void refuses_data();
    void refuses();
};

void TestFaultPlan::matches_data()
{
    QTest::addColumn<Fault>("planned");
    QTest::addColumn<QList<int>>("exchanges"); // of i, Gs, Gt, Gs, Ss00000060, Gs
    QTest::newRow("any") << fault(Kind::Silence) << QList<int>{1, 2, 3, 4, 5, 6};
    QTest::newRow("third") << fault(Kind::Silence, 3) << QList<int>{3};
    QTest::newRow("command") << fault(Kind::Silence, 0, "Gs") << QList<int>{2, 4, 6};
    QTest::newRow("beginning of a command") << fault(Kind::Silence, 0, "Ss") << QList<int>{5};
    QTest::newRow("occurrence") << fault(Kind::Silence, 0, "Gs", 2) << QList<int>{4};
    QTest::newRow("occurrence of a beginning") << fault(Kind::Silence, 0, "G", 2) << QList<int>{3};
    QTest::newRow("both") << fault(Kind::Silence, 4, "Gs") << QList<int>{4};
    QTest::newRow("both, apart") << fault(Kind::Silence, 3, "Gs") << QList<int>{};
    QTest::newRow("never comes") << fault(Kind::Silence, 0, "Gd") << QList<int>{};
}

void TestFaultPlan::matches()
{
    QFETCH(Fault, planned);
    FaultPlan plan;
    plan.add(planned);
    QList<int> exchanges;
    QList<QByteArray> commands;
    for (const char* command : {"i", "Gs", "Gt", "Gs", "Ss00000060", "Gs"}) {
        commands << command;
        if (plan.match(commands) != nullptr)
            exchanges << commands.size();
    }
    QTEST(exchanges, "exchanges");
}

void TestFaultPlan::firstFaultWins()
{
    FaultPlan plan;
    plan.add(fault(Kind::Garbage, 0, "Gs"));
    plan.add(fault(Kind::Silence));
    QCOMPARE(plan.match({"Gs"})->kind, Kind::Garbage);
    QCOMPARE(plan.match({"Gd"})->kind, Kind::Silence);
}

void TestFaultPlan::clearedPlanMatchesNothing()
{
    FaultPlan plan;
    plan.add(fault(Kind::Silence));
    QVERIFY(plan.match({}) == nullptr);
    plan.clear();
    QVERIFY(plan.match({"Gs"}) == nullptr);
}

void TestFaultPlan::parses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Fault>("expected");
    const auto row = [](const char* text, Fault expected, const QByteArray& bytes = {}, int milliseconds = 0,
                        const QList<QByteArray>& pieces = {}) {
        expected.bytes = bytes;
        expected.milliseconds = milliseconds;
        expected.pieces = pieces;
        QTest::newRow(text) << QString::fromLatin1(text) << expected;
    };
    row("silence", fault(Kind::Silence));
    row("silence@5", fault(Kind::Silence, 5));
    row("silence@#", fault(Kind::Silence, 0, "#"));
    row("silence@##2", fault(Kind::Silence, 0, "#", 2));
    row("late=120@Gs", fault(Kind::Late, 0, "Gs"), {}, 120);
    row("late-until-next@i#2", fault(Kind::LateUntilNext, 0, "i", 2));
    row("pieces@i", fault(Kind::Pieces, 0, "i"));
    row("pieces=o|k\\r\\n@Ss", fault(Kind::Pieces, 0, "Ss"), {}, 0, {"o", "k\r\n"});
    row("garbage@Gt#2", fault(Kind::Garbage, 0, "Gt", 2));
    row("garbage=\\xff@Gt", fault(Kind::Garbage, 0, "Gt"), "\xff");
    row("overlong@7", fault(Kind::OverLong, 7));
    row("reply=OK@Ss", fault(Kind::Reply, 0, "Ss"), "OK");
    row("reply=@Ss", fault(Kind::Reply, 0, "Ss"));
    row("reply=a@b@Ss", fault(Kind::Reply, 0, "Ss"), "a@b");
    row("reply=1\\x002@Gs", fault(Kind::Reply, 0, "Gs"),
        QByteArray("1\0"
                   "2",
                   3));
    row("unplug@7", fault(Kind::Unplug, 7));
    row("unplug-after-reply@a", fault(Kind::UnplugAfterReply, 0, "a"));
}

void TestFaultPlan::parses()
{
    QFETCH(QString, text);
    QFETCH(Fault, expected);
    Fault read;
    QString error;
    QVERIFY2(FaultPlan::parse(text, &read, &error), qPrintable(error));
    QCOMPARE(read.kind, expected.kind);
    QCOMPARE(read.exchange, expected.exchange);
    QCOMPARE(read.command, expected.command);
    QCOMPARE(read.occurrence, expected.occurrence);
    QCOMPARE(read.bytes, expected.bytes);
    QCOMPARE(read.pieces, expected.pieces);
    QCOMPARE(read.milliseconds, expected.milliseconds);
}

void TestFaultPlan::refuses_data()
{
    QTest::addColumn<QString>("error");
    QTest::newRow("") << "'' is no kind of fault";
    QTest::newRow("quiet@5") << "'quiet' is no kind of fault";
    QTest::newRow("Silence") << "'Silence' is no kind of fault";
    QTest::newRow("silence=1@5") << "'silence=1' has no fitting value";
    QTest::newRow("late@Gs") << "'late' has no fitting value";
    QTest::newRow("late=soon@Gs") << "'late=soon' has no fitting value";
    QTest::newRow("late=-1@Gs") << "'late=-1' has no fitting value";
    QTest::newRow("reply@Gs") << "'reply' has no fitting value";
    QTest::newRow("reply=\\q@Gs") << "'reply=\\q' has no fitting value";
    QTest::newRow("pieces=o|\\x@Gs") << "'pieces=o|\\x' has no fitting value";
    QTest::newRow("silence@") << "'' is no place for a fault";
    QTest::newRow("silence@0") << "'0' is no place for a fault";
    QTest::newRow("silence@5x") << "'5x' is no place for a fault";
    QTest::newRow("silence@Gs#") << "'Gs#' is no place for a fault";
    QTest::newRow("silence@Gs#0") << "'Gs#0' is no place for a fault";
}

void TestFaultPlan::refuses()
{
    Fault untouched = fault(Kind::Reply, 9);
    QString error;
    QVERIFY(!FaultPlan::parse(QString::fromLatin1(QTest::currentDataTag()), &untouched, &error));
    QTEST(error, "error");
    QCOMPARE(untouched.kind, Kind::Reply);
    QCOMPARE(untouched.exchange, 9);
}

QTEST_GUILESS_MAIN(TestFaultPlan)
#include "tst_faultplan.moc"
