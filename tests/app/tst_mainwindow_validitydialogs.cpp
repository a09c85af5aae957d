// The time servers' answer tells that the device is invalid while something is open that has nothing to do
// with the device: the question for the exit, the settings, the About box; or a label's menu, which goes.

#include "dialogs/settingsdialog.h"
#include "support/nextchance.h"
#include "timerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QSpinBox>
#include <QTest>
#include <QWindow>

using namespace TimeWords;
using namespace WindowWords;

namespace {

struct JudgedRig : DoubtfulRig
{
    JudgedRig()
        : DoubtfulRig(basicLogger())
    {
    }

    /// Tells the time once the box with this title is open; `stayed` is whether that is there afterwards.
    void tellTimeOver(const QString& title, const QString& lastStatus)
    {
        QObject::connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window,
                         [this, title, lastStatus](const QString& opened) {
                             if (opened != title)
                                 return;
                             const QPointer<QWidget> box = QApplication::activeModalWidget();
                             tellTimeUntil(lastStatus);
                             stayed = box && box->isVisible();
                         });
    }

    bool stayed = false;
};

} // namespace

class TestMainWindowValidityDialogs : public QObject
{
    Q_OBJECT

private slots:
    void overTheExitQuestion_data();
    void overTheExitQuestion();
    void overTheSettings();
    void overTheAboutBox();
    void overALabelsMenu();
};

void TestMainWindowValidityDialogs::overTheExitQuestion_data()
{
    QTest::addColumn<bool>("leaves");
    QTest::addColumn<bool>("exits");
    QTest::newRow("disconnects and exits") << true << true;
    QTest::newRow("disconnects and stays") << true << false;
    QTest::newRow("stays connected and exits") << false << true;
    QTest::newRow("stays connected and stays") << false << false;
}

// It goes on asking about changes, which may be gone already.
void TestMainWindowValidityDialogs::overTheExitQuestion()
{
    QFETCH(const bool, leaves);
    QFETCH(const bool, exits);
    JudgedRig waiting;
    TimeRig& rig = waiting.rig;
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    waiting.tellTimeOver(QStringLiteral("Exit"), leaves ? leftPort : foundInvalid);
    expectInvalidDevice(rig.robot); // this one and the next over the question, and so answered first
    expectDisconnecting(rig.robot, leaves ? Yes : No);
    expectExit(rig.robot, exits ? Yes : No);
    QCOMPARE(rig.window.close(), exits);
    QVERIFY(waiting.told);
    QVERIFY(waiting.stayed);
    QCOMPARE(rig.wire(), QList<QByteArray>{"m"});
    if (exits) {
        QCOMPARE(closedWindowRemains(rig), QString());
        return;
    }
    WindowState kept = idle(foundInvalid, true);
    kept.controls = Controls::Disabled;
    QCOMPARE(panels(rig) == emptyPanels(), leaves);
    QCOMPARE(differences(rig, leaves ? disconnected() : kept), QString());
}

// They are none of the device's, and what the operator has chosen is still there to be accepted.
void TestMainWindowValidityDialogs::overTheSettings()
{
    JudgedRig waiting;
    TimeRig& rig = waiting.rig;
    atNextChance(rig.dialog, [&] {
        child<QSpinBox>(*rig.dialog, "spinFont")->setValue(17);
        waiting.tellTimeUntil(leftPort);
        waiting.stayed = rig.dialog->isVisible();
        rig.dialog->accept();
    });
    expectInvalidDevice(rig.robot);
    rig.find<QAction>("actionSettings")->trigger();
    QVERIFY(waiting.told);
    QVERIFY(waiting.stayed);
    QCOMPARE(rig.window.styleSheet(), QStringLiteral("font-size: 17pt"));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(rig.takeStatusLog(), QStringList({fetchedServer, foundInvalid, leftPort}));
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowValidityDialogs::overTheAboutBox()
{
    JudgedRig waiting;
    TimeRig& rig = waiting.rig;
    waiting.tellTimeOver(QStringLiteral("About Brumalogger Configuration Tool"), leftPort);
    expectInvalidDevice(rig.robot);
    expectAbout(rig.robot);
    rig.find<QAction>("actionAbout")->trigger();
    QVERIFY(waiting.told);
    QVERIFY(waiting.stayed);
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
}

// What it would copy is no longer there.
void TestMainWindowValidityDialogs::overALabelsMenu()
{
    JudgedRig waiting;
    TimeRig& rig = waiting.rig;
    auto* label = rig.find<QLabel>("labelSerial");
    bool opened = false;
    bool closed = false;
    atNextChance(&rig.window, [&] {
        opened = QApplication::activePopupWidget();
        waiting.tellTimeUntil(leftPort);
        closed = !QApplication::activePopupWidget();
    });
    expectInvalidDevice(rig.robot);
    QTest::mouseClick(rig.window.windowHandle(), Qt::RightButton, {},
                      label->mapTo(&rig.window, label->rect().center()));
    QVERIFY(opened);
    QVERIFY(waiting.told);
    QVERIFY(closed);
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
}

QTEST_MAIN(TestMainWindowValidityDialogs)
#include "tst_mainwindow_validitydialogs.moc"
