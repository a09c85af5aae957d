// What a read and a write report to whoever called them.

#include "procedurerig.h"
#include "windowwords.h"

#include <QTest>

using namespace WindowWords;

namespace {

enum class Ending { Finished, Cancelled, Failed };

/// The result of the window's slot called @p procedure.
bool resultOf(ProcedureRig& rig, const QByteArray& procedure)
{
    bool result = false;
    if (!QMetaObject::invokeMethod(&rig.window, procedure.constData(), Qt::DirectConnection,
                                   Q_RETURN_ARG(bool, result)))
        qFatal("the window has no %s with a result", procedure.constData());
    return result;
}

} // namespace

Q_DECLARE_METATYPE(Ending)

class TestMainWindowResults : public QObject
{
    Q_OBJECT

private slots:
    void result_data();
    void result();
    void declinedReadIsNoFailure();

private:
    static void prepareCancel(ProcedureRig& rig, bool reading);
    static void prepareFailure(ProcedureRig& rig, bool reading);
};

void TestMainWindowResults::prepareCancel(ProcedureRig& rig, bool reading)
{
    rig.atCommand(3, [&rig] { rig.pressCancel(); });
    if (!reading)
        expectWriteCanceled(rig.robot);
}

void TestMainWindowResults::prepareFailure(ProcedureRig& rig, bool reading)
{
    rig.disturb(3, Fault::Kind::Silence);
    if (reading)
        expectReadFailed(rig.robot);
    else
        expectWriteFailed(rig.robot);
}

void TestMainWindowResults::result_data()
{
    QTest::addColumn<QByteArray>("procedure");
    QTest::addColumn<Ending>("ending");
    QTest::addColumn<bool>("expected");
    for (const char* procedure : {"plReadFromDevice", "plWriteToDevice"}) {
        QTest::addRow("%s, finished", procedure) << QByteArray(procedure) << Ending::Finished << true;
        QTest::addRow("%s, cancelled", procedure) << QByteArray(procedure) << Ending::Cancelled << true;
        QTest::addRow("%s, failed", procedure) << QByteArray(procedure) << Ending::Failed << false;
    }
}

void TestMainWindowResults::result()
{
    QFETCH(const QByteArray, procedure);
    QFETCH(const Ending, ending);
    const bool reading = procedure == "plReadFromDevice";
    ProcedureRig rig;
    rig.plugAndConnect();
    if (ending == Ending::Cancelled)
        prepareCancel(rig, reading);
    if (ending == Ending::Failed)
        prepareFailure(rig, reading);
    QTEST(resultOf(rig, procedure), "expected");
    QCOMPARE(rig.robot.problems(), QString());
    const QList<QByteArray> whole = reading ? readCommands() : writeCommandsOfBasicLogger();
    QCOMPARE(rig.wire() == whole, ending == Ending::Finished);
}

void TestMainWindowResults::declinedReadIsNoFailure()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    expectReadQuestion(rig.robot, No);
    QVERIFY(resultOf(rig, "plReadFromDevice"));
    QCOMPARE(rig.robot.problems(), QString());
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QVERIFY(rig.controlsEnabled());
    QVERIFY(rig.isModified());
}

QTEST_MAIN(TestMainWindowResults)
#include "tst_mainwindow_results.moc"
