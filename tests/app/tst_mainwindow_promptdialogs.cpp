// A prompt for a version that must be installed comes over the question for the exit, and over the window's
// dialogs.

#include "extendedrig.h"
#include "support/nextchance.h"
#include "updaterig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QAction>
#include <QTest>

using namespace WindowWords;

class TestMainWindowPromptDialogs : public QObject
{
    Q_OBJECT

private slots:
    void overTheExitQuestion_data();
    void overTheExitQuestion();
    void closesOverADialog_data();
    void closesOverADialog();
};

void TestMainWindowPromptDialogs::overTheExitQuestion_data()
{
    QTest::addColumn<bool>("exits");
    QTest::newRow("Yes") << true;
    QTest::newRow("No") << false;
}

// A window that is about to close isn't closed once more, so the question is asked once.
void TestMainWindowPromptDialogs::overTheExitQuestion()
{
    QFETCH(const bool, exits);
    ConnectedUpdateRig update(mandatoryFile, secureLogger());
    ProcedureRig& rig = update.rig;
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    update.promptOverBox();
    expectMandatoryUpdate(rig.robot, newestVersion, QMessageBox::Ok);
    expectExit(rig.robot, exits ? Yes : No);
    QCOMPARE(rig.window.close(), exits);
    QVERIFY(update.prompted);
    if (exits)
        QCOMPARE(closedWindowRemains(rig), QString());
    else
        QCOMPARE(differences(rig, idle(connected().status, true)), QString());
}

void TestMainWindowPromptDialogs::closesOverADialog_data()
{
    QTest::addColumn<QString>("opener");
    QTest::newRow("settings") << QStringLiteral("actionSettings");
    QTest::newRow("advanced options") << QStringLiteral("buttonAdvanced");
}

void TestMainWindowPromptDialogs::closesOverADialog()
{
    QFETCH(const QString, opener);
    ConnectedUpdateRig update(mandatoryFile, secureLogger());
    ProcedureRig& rig = update.rig;
    atNextChance(&rig.window, [&] { update.prompted = update.prompt(); });
    expectMandatoryUpdate(rig.robot, newestVersion, QMessageBox::Ok);
    if (opener.startsWith(QLatin1String("action")))
        rig.find<QAction>(qPrintable(opener))->trigger();
    else
        rig.press(qPrintable(opener));
    QVERIFY(update.prompted);
    QCOMPARE(closedWindowRemains(rig), QString());
}

QTEST_MAIN(TestMainWindowPromptDialogs)
#include "tst_mainwindow_promptdialogs.moc"
