// What arrives while the choice of a preset's file, or a box about it, is open: clicks, the time, the
// window's end.

#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "support/nextchance.h"
#include "waitingpresetrig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <QTest>

using namespace PresetWords;
using namespace TimeWords;
using namespace WindowWords;

namespace {

void clickEverything(const PresetRig& rig)
{
    for (const char* button :
         {"buttonConnect", "buttonRead", "buttonWrite", "buttonStart", "buttonAdvanced", "buttonPreset"})
        rig.find<QAbstractButton>(button)->click();
    for (const char* action : {"actionSave", "actionLoad"})
        rig.trigger(action);
}

} // namespace

class TestMainWindowPresetsInterruptions : public QObject
{
    Q_OBJECT

private slots:
    void clicksAtTheFileDialog_data() { bothDialogs(); }
    void clicksAtTheFileDialog();
    void clicksAtABox();
    void presetsDuringOptions();
    void presetsDuringAQuestion();
    void presetsNeedADevice();
    void windowClosesAtTheFileDialog_data() { bothDialogs(); }
    void windowClosesAtTheFileDialog();
    void windowClosesAtABox_data();
    void windowClosesAtABox();
    void windowClosesAtTheReplaceQuestion();
    void timeComesAtTheFileDialog();
    void timeComesAtAWarning();

private:
    static void bothDialogs();
};

void TestMainWindowPresetsInterruptions::bothDialogs()
{
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("saving") << QByteArray("actionSave");
    QTest::newRow("loading") << QByteArray("actionLoad");
}

void TestMainWindowPresetsInterruptions::clicksAtTheFileDialog()
{
    QFETCH(const QByteArray, action);
    PresetRig rig;
    rig.plugAndConnect();
    writePreset(defaultPreset, milkPreset());
    atFileDialog(rig, [&](QFileDialog*) { clickEverything(rig); });
    rig.trigger(action);
    QCOMPARE(rig.hand.showings, 1);
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowPresetsInterruptions::clicksAtABox()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.robot.expectWarning(QStringLiteral("Error"), unreadable);
    atFirstBox(rig, [&rig] { clickEverything(rig); });
    rig.press("buttonPreset");
    QCOMPARE(rig.hand.showings, 0);
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowPresetsInterruptions::presetsDuringOptions()
{
    LoggerModel model = secureLogger();
    PresetRig rig;
    rig.plugAndConnect(model);
    writePreset(defaultPreset, milkPreset());
    bool opened = false;
    atNextChance(&rig.window, [&] {
        opened = rig.options()->isVisible();
        clickEverything(rig);
        rig.options()->reject();
    });
    rig.press("buttonAdvanced");
    QVERIFY(opened);
    QCOMPARE(rig.hand.showings, 0);
    QCOMPARE(rig.text("lineInfo"), QStringLiteral("Batch 7"));
    QCOMPARE(differences(rig, connected()), QString());
}

// A start leaves the controls enabled.
void TestMainWindowPresetsInterruptions::presetsDuringAQuestion()
{
    PresetRig rig;
    rig.plugAndConnect();
    writePreset(defaultPreset, milkPreset());
    expectStartConfirm(rig.robot, No);
    atFirstBox(rig, [&rig] { clickEverything(rig); });
    rig.press("buttonStart");
    QCOMPARE(rig.hand.showings, 0);
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowPresetsInterruptions::presetsNeedADevice()
{
    PresetRig rig;
    writePreset(defaultPreset, milkPreset());
    for (const char* action : {"actionSave", "actionLoad"})
        QVERIFY(!rig.find<QAction>(action)->isEnabled());
    rig.press("buttonPreset");
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, beforeAnyConnect()), QString());
}

void TestMainWindowPresetsInterruptions::windowClosesAtTheFileDialog()
{
    QFETCH(const QByteArray, action);
    PresetRig rig;
    rig.plugAndConnect();
    writePreset(rig.document(QStringLiteral("own.bpr")), milkPreset());
    rig.hand.setPath(rig.document(QStringLiteral("own.bpr")));
    bool stayed = true;
    atFileDialog(rig, [&](QFileDialog* dialog) {
        rig.window.close();
        stayed = dialog->isVisible();
    });
    rig.takeStatusLog();
    rig.trigger(action);
    QVERIFY(!stayed);
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(presetIn(rig.document(QStringLiteral("own.bpr"))), milkPreset());
    QCOMPARE(rig.takeStatusLog(), QStringList());
    QCOMPARE(closedWindowRemains(rig), QString());
}

void TestMainWindowPresetsInterruptions::windowClosesAtABox_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("unreadable") << "Error" << unreadable;
    QTest::newRow("not saved") << "Error" << unsaved;
    QTest::newRow("zone ignored") << "Warning" << unreachable;
}

void TestMainWindowPresetsInterruptions::windowClosesAtABox()
{
    QFETCH(const QString, title);
    QFETCH(const QString, text);
    const Servers silent;
    PresetRig rig(timeAndPresets());
    rig.plugAndConnect();
    if (text == unreachable)
        writePreset(defaultPreset, presetOfBasicLogger());
    QVERIFY(QDir().mkpath(rig.document(QStringLiteral("taken.bpr"))));
    rig.robot.expectWarning(title, text);
    atFirstBox(rig, [&rig] { rig.window.close(); });
    if (text == unsaved)
        rig.save(rig.document(QStringLiteral("taken")));
    else
        rig.press("buttonPreset");
    QCOMPARE(closedWindowRemains(rig), QString());
}

// The question goes with the file dialog, and the robot's answer to it comes too late.
void TestMainWindowPresetsInterruptions::windowClosesAtTheReplaceQuestion()
{
    PresetRig rig;
    rig.plugAndConnect();
    const QString path = rig.document(QStringLiteral("own.bpr"));
    writePreset(path, milkPreset());
    expectReplace(rig.robot, Yes);
    bool stayed = true;
    atFirstBox(rig, [&] {
        const QPointer<QWidget> question = QApplication::activeModalWidget();
        rig.window.close();
        stayed = question && question->isVisible();
    });
    rig.takeStatusLog();
    rig.save(path);
    QVERIFY(!stayed);
    QCOMPARE(presetIn(path), milkPreset());
    QCOMPARE(rig.takeStatusLog(), QStringList());
    QCOMPARE(closedWindowRemains(rig), QString());
}

// In time for the zone of the file that is then chosen.
void TestMainWindowPresetsInterruptions::timeComesAtTheFileDialog()
{
    WaitingPresetRig waiting;
    PresetRig& rig = waiting.rig;
    rig.plugAndConnect(secureLogger());
    const QString path = rig.document(QStringLiteral("own.bpr"));
    writePreset(path, presetWith(milkPreset(), {{QStringLiteral("timezone"), QStringLiteral("GMT+3:00")}}));
    atFileDialog(rig, [&](QFileDialog*) { waiting.tellTimeUntil(fetchedServer); });
    rig.load(path);
    QVERIFY(waiting.told);
    QCOMPARE(rig.wire(), QList<QByteArray>{"m"});
    QCOMPARE(rig.text("lineInfo"), QStringLiteral("Milk"));
    QCOMPARE(rig.text("labelTimeZone"), QStringLiteral("GMT+3:00"));
    QCOMPARE(differences(rig, idle(QStringLiteral("Loaded ") + path, true)), QString());
}

// Too late for the zone.
void TestMainWindowPresetsInterruptions::timeComesAtAWarning()
{
    WaitingPresetRig waiting;
    PresetRig& rig = waiting.rig;
    rig.plugAndConnect();
    writePreset(defaultPreset, milkPreset());
    rig.robot.expectWarning(QStringLiteral("Warning"), unreachable);
    atFirstBox(rig, [&waiting] { waiting.tellTimeUntil(fetchedServer); });
    rig.press("buttonPreset");
    QVERIFY(waiting.told);
    QCOMPARE(rig.wire(), QList<QByteArray>{"m"});
    QCOMPARE(rig.text("lineInfo"), QStringLiteral("Milk"));
    QCOMPARE(differences(rig, idle(QStringLiteral("Loaded default.bpr"), true)), QString());
}

QTEST_MAIN(TestMainWindowPresetsInterruptions)
#include "tst_mainwindow_presets_interruptions.moc"
