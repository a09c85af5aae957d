// The device turns out to be invalid while the choice of a preset's file, or a box about it, is open.

#include "waitingpresetrig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

using namespace PresetWords;
using namespace TimeWords;
using namespace WindowWords;

class TestMainWindowPresetsLostDevice : public QObject
{
    Q_OBJECT

private slots:
    void atTheFileDialog_data() { bothDialogs(); }
    void atTheFileDialog();
    void changesAtTheFileDialog_data();
    void changesAtTheFileDialog();
    void fileChosenWhileTheDeviceIsJudged_data() { bothDialogs(); }
    void fileChosenWhileTheDeviceIsJudged();
    void atTheReplaceQuestion();
    void atABox_data();
    void atABox();

private:
    static void bothDialogs();
};

void TestMainWindowPresetsLostDevice::bothDialogs()
{
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("saving") << QByteArray("actionSave");
    QTest::newRow("loading") << QByteArray("actionLoad");
}

// The file was chosen for a device that is gone: nothing is saved of it, and nothing comes into an empty
// window.
void TestMainWindowPresetsLostDevice::atTheFileDialog()
{
    QFETCH(const QByteArray, action);
    DoubtfulPresetRig doubtful;
    PresetRig& rig = doubtful.rig;
    const QString path = rig.document(QStringLiteral("own.bpr"));
    writePreset(path, milkPreset());
    rig.hand.setPath(path);
    expectInvalidDevice(rig.robot);
    bool stayed = true;
    atFileDialog(rig, [&](QFileDialog* dialog) {
        doubtful.tellThatItIsInvalid();
        stayed = dialog->isVisible();
    });
    rig.trigger(action);
    QVERIFY(doubtful.told);
    QVERIFY(!stayed);
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(presetIn(path), milkPreset());
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowPresetsLostDevice::changesAtTheFileDialog_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<bool>("leaves");
    QTest::newRow("saving, disconnects") << QByteArray("actionSave") << true;
    QTest::newRow("saving, stays connected") << QByteArray("actionSave") << false;
    QTest::newRow("loading, disconnects") << QByteArray("actionLoad") << true;
    QTest::newRow("loading, stays connected") << QByteArray("actionLoad") << false;
}

// The dialog is closed before the question about the changes, and so in either case.
void TestMainWindowPresetsLostDevice::changesAtTheFileDialog()
{
    QFETCH(const QByteArray, action);
    QFETCH(const bool, leaves);
    DoubtfulPresetRig doubtful;
    PresetRig& rig = doubtful.rig;
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    const QString path = rig.document(QStringLiteral("own.bpr"));
    writePreset(path, milkPreset());
    rig.hand.setPath(path);
    expectInvalidDevice(rig.robot);
    expectDisconnecting(rig.robot, leaves ? Yes : No);
    QPointer<QFileDialog> fileDialog;
    bool stayed = true;
    atFileDialog(rig, [&](QFileDialog* dialog) {
        fileDialog = dialog;
        doubtful.tellTimeUntil(leaves ? leftPort : foundInvalid);
    });
    connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window, [&](const QString& title) {
        if (title == QStringLiteral("Disconnecting") && fileDialog)
            stayed = fileDialog->isVisible();
    });
    rig.trigger(action);
    QVERIFY(doubtful.told);
    QVERIFY(!stayed);
    QCOMPARE(presetIn(path), milkPreset());
    QCOMPARE(panels(rig), leaves ? emptyPanels()
                                 : panelsWith(panelsOfBasicLogger(), {QStringLiteral("lineInfo = Batch 8")}));
    WindowState kept = idle(foundInvalid, true);
    kept.controls = Controls::Disabled;
    QCOMPARE(differences(rig, leaves ? disconnected() : kept), QString());
}

// The file dialog is accepted just before the device turns out to be invalid.
void TestMainWindowPresetsLostDevice::fileChosenWhileTheDeviceIsJudged()
{
    QFETCH(const QByteArray, action);
    DoubtfulPresetRig doubtful;
    PresetRig& rig = doubtful.rig;
    const QString taken = rig.document(QStringLiteral("own.bpr"));
    const QString fresh = rig.document(QStringLiteral("new.bpr"));
    writePreset(taken, milkPreset());
    rig.hand.setPath({});
    expectInvalidDevice(rig.robot);
    atFileDialog(rig, [&](QFileDialog* dialog) {
        rig.atCommand(1, [&, dialog] {
            dialog->findChild<QLineEdit*>()->setText(dialog->acceptMode() == QFileDialog::AcceptSave ? fresh
                                                                                                     : taken);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        doubtful.tellThatItIsInvalid();
    });
    rig.trigger(action);
    QVERIFY(doubtful.told);
    QVERIFY(!QFile::exists(fresh));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
}

// The question goes with the file dialog, and the robot's answer to it comes too late.
void TestMainWindowPresetsLostDevice::atTheReplaceQuestion()
{
    DoubtfulPresetRig doubtful;
    PresetRig& rig = doubtful.rig;
    const QString path = rig.document(QStringLiteral("own.bpr"));
    writePreset(path, milkPreset());
    expectInvalidDevice(rig.robot); // over the question, and so answered first
    expectReplace(rig.robot, Yes);
    bool stayed = true;
    atFirstBox(rig, [&] {
        const QPointer<QWidget> question = QApplication::activeModalWidget();
        doubtful.tellThatItIsInvalid();
        stayed = question && question->isVisible();
    });
    rig.save(path);
    QVERIFY(doubtful.told);
    QVERIFY(!stayed);
    QCOMPARE(presetIn(path), milkPreset());
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowPresetsLostDevice::atABox_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("unreadable") << unreadable;
    QTest::newRow("not saved") << unsaved;
    QTest::newRow("zone ignored") << unreachable;
}

// What the box is about was over before; only the last word in the status bar is still to come.
void TestMainWindowPresetsLostDevice::atABox()
{
    QFETCH(const QString, text);
    DoubtfulPresetRig doubtful;
    PresetRig& rig = doubtful.rig;
    const QString path = rig.document(QStringLiteral("taken.bpr"));
    QVERIFY(QDir().mkpath(path));
    if (text == unreachable)
        writePreset(defaultPreset, presetOfBasicLogger());
    expectInvalidDevice(rig.robot); // over the box, and so answered first
    rig.robot.expectWarning(QString::fromLatin1(text == unreachable ? "Warning" : "Error"), text);
    atFirstBox(rig, [&] { doubtful.tellThatItIsInvalid(); });
    if (text == unsaved)
        rig.save(path.chopped(4)); // the file dialog would go into the folder
    else
        rig.press("buttonPreset");
    QVERIFY(doubtful.told);
    QCOMPARE(panels(rig), emptyPanels());
    WindowState after = disconnected();
    if (text == unsaved)
        after.status = QStringLiteral("Succesfully saved ") + path;
    else if (text == unreachable)
        after.status = QStringLiteral("Loaded default.bpr");
    QCOMPARE(differences(rig, after), QString());
}

QTEST_MAIN(TestMainWindowPresetsLostDevice)
#include "tst_mainwindow_presets_lostdevice.moc"
