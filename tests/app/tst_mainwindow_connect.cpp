// Connecting and disconnecting: what goes over the wire, what the window shows, what it asks.

#include "procedurerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QMenu>
#include <QPushButton>
#include <QSerialPort>
#include <QTest>

using namespace WindowWords;

class TestMainWindowConnect : public QObject
{
    Q_OBJECT

private slots:
    void connectsAndReads();
    void connectsByKeys();
    void disconnects();
    void connectsAgain();
    void asksBeforeDisconnecting_data();
    void asksBeforeDisconnecting();
    void connectsAnewAfterFailedRead();
    void connectsAnewAfterCancelledRead();
    void looksDiffer();
    void statusStaysWhileTheMouseIsOverAMenu();
};

void TestMainWindowConnect::connectsAndReads()
{
    ProcedureRig rig;
    rig.plug();
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(rig.takeStatusLog(), QStringList({"Connecting to device... ", "Reading from device on ttyACM0",
                                               "Read successful", "Connected to device on ttyACM0"}));
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowConnect::connectsByKeys()
{
    ProcedureRig rig;
    rig.plug();
    rig.activate();
    rig.pressKeys(Qt::Key_K);
    QCOMPARE(rig.wire(), connectCommands());
    rig.activate();
    rig.pressKeys(Qt::Key_K);
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowConnect::disconnects()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(rig.text("labelDateTime"), QStringLiteral(" - "));
    QSerialPort otherProgram(QStringLiteral("ttyACM0"));
    QVERIFY2(otherProgram.open(QIODevice::ReadWrite), "the port was not given back");
    otherProgram.close();
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowConnect::connectsAgain()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.press("buttonConnect");
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowConnect::asksBeforeDisconnecting_data()
{
    QTest::addColumn<bool>("agreed");
    QTest::newRow("No keeps everything") << false;
    QTest::newRow("Yes drops the changes") << true;
}

void TestMainWindowConnect::asksBeforeDisconnecting()
{
    QFETCH(const bool, agreed);
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    QVERIFY(rig.isModified());
    expectDisconnecting(rig.robot, agreed ? Yes : No);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(rig.logger->model().settings().texts[2], QStringLiteral("Batch 7"));
    QCOMPARE(panels(rig), agreed ? emptyPanels()
                                 : panelsWith(panelsOfBasicLogger(), {QStringLiteral("lineInfo = Batch 8")}));
    QCOMPARE(differences(rig, agreed ? disconnected()
                                     : idle(QStringLiteral("Connected to device on ttyACM0"), true)),
             QString());
}

void TestMainWindowConnect::connectsAnewAfterFailedRead()
{
    ProcedureRig rig;
    rig.plug();
    rig.disturb("Gt", Fault::Kind::Silence);
    expectConnectFailed(rig.robot);
    rig.press("buttonConnect");
    QCOMPARE(panels(rig), emptyPanels());
    rig.logger->clearExchanges();
    rig.logger->faults().clear();
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowConnect::connectsAnewAfterCancelledRead()
{
    ProcedureRig rig;
    rig.plug();
    rig.atCommand(6, [&rig] { rig.pressCancel(); });
    rig.press("buttonConnect");
    QCOMPARE(panels(rig), emptyPanels());
    rig.logger->clearExchanges();
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

// Or else looking for one of the icons would prove nothing.
void TestMainWindowConnect::looksDiffer()
{
    const ProcedureRig rig;
    const auto* button = rig.find<QPushButton>("buttonConnect");
    QVERIFY(iconDistance(*button, QStringLiteral(":/icon_connect.png")) <= largestIconDistance);
    QVERIFY(iconDistance(*button, QStringLiteral(":/icon_disconnect.png")) > 2 * largestIconDistance);
}

void TestMainWindowConnect::statusStaysWhileTheMouseIsOverAMenu()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    auto* menu = rig.find<QMenu>("menuFile");
    menu->popup(rig.window.mapToGlobal(QPoint(0, 0)));
    for (QAction* action : menu->actions())
        menu->setActiveAction(action);
    menu->close();
    QCOMPARE(rig.status(), connected().status);
}

QTEST_MAIN(TestMainWindowConnect)
#include "tst_mainwindow_connect.moc"
