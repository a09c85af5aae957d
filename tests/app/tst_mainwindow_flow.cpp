// A day's work with one logger, at its real pace: connect, read, edit, write, read back, start.

#include "procedurerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QComboBox>
#include <QTest>

using namespace WindowWords;

class TestMainWindowFlow : public QObject
{
    Q_OBJECT

private slots:
    void configuresAndStartsLogger();
};

// The steps are one story, so they are one test.
void TestMainWindowFlow::configuresAndStartsLogger()
{
    ProcedureRig rig;
    rig.WindowRig::plug(basicLogger());
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());

    rig.find<QComboBox>("comboTemp")->setCurrentText(QStringLiteral("15°C to 25°C"));
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    QVERIFY(rig.isModified());
    rig.press("buttonWrite");
    QVERIFY(!rig.isModified());
    QCOMPARE(rig.status(), QStringLiteral("Write successful"));

    rig.type("lineInfo", QStringLiteral("Batch 9"));
    expectReadQuestion(rig.robot, Yes);
    rig.press("buttonRead");
    QVERIFY(!rig.isModified());
    QCOMPARE(rig.status(), QStringLiteral("Read successful"));
    QCOMPARE(panels(rig),
             panelsWith(panelsOfBasicLogger(), {"comboTemp = 15°C to 25°C", "lineInfo = Batch 8"}));

    expectStartConfirm(rig.robot, Yes);
    rig.press("buttonStart");
    QCOMPARE(rig.wire().last(), QByteArray("a"));
    QVERIFY(rig.logger->model().settings().state == LoggerModel::State::Recording);
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
}

QTEST_MAIN(TestMainWindowFlow)
#include "tst_mainwindow_flow.moc"
