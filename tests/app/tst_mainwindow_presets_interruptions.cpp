// What arrives while the choice of a preset's file, or a box about it, is open: clicks, the time, the
// window's end.

#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "presetrig.h"
#include "support/nextchance.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTest>

#include <functional>

using namespace TimeWords;
using namespace WindowWords;

namespace {

constexpr qint64 dayMsecs = Q_INT64_C(24) * 60 * 60 * 1000;

Settings timeAndPresets()
{
    Settings settings = presetSettings();
    settings.insert(QStringLiteral("disabletime"), QStringLiteral("0"));
    return settings;
}

/// The answer of the time servers waits to be sent.
struct AnsweredRig
{
    explicit AnsweredRig(qint64 offsetMsecs = 0)
        : rig(timeAndPresets())
    {
        servers.answer(NtpAnswer::currentTime(offsetMsecs).later());
        if (!QTest::qWaitFor([this] { return servers.requests() > 0; }))
            qFatal("nobody asks for the time");
    }

    void answer()
    {
        servers.release();
        came = rig.comesTo(fetchedServer);
    }

    Servers servers;
    PresetRig rig;
    bool came = false;
};

void atFileDialog(PresetRig& rig, const std::function<void()>& action)
{
    QObject::connect(&rig.hand, &FileDialogHand::sOpened, &rig.window, action);
}

void atFirstBox(PresetRig& rig, const std::function<void()>& action)
{
    QObject::connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window, [&rig, action] {
        if (rig.robot.boxes().size() == 1)
            action();
    });
}

void clickEverything(const PresetRig& rig)
{
    for (const char* button :
         {"buttonConnect", "buttonRead", "buttonWrite", "buttonStart", "buttonAdvanced", "buttonPreset"})
        rig.find<QAbstractButton>(button)->click();
    for (const char* action : {"actionSave", "actionLoad"})
        rig.trigger(action);
}

PresetTable milkPreset()
{
    return presetWith(presetOfBasicLogger(), {{QStringLiteral("info"), QStringLiteral("Milk")}});
}

const QString unreadableText = QStringLiteral("Unable to read from selected file. File is corrupted.");
const QString unsavedText = QStringLiteral("Unable to save preset file!");
const QString unreachableText =
    QStringLiteral("Loaded preset sets a Time Zone (GMT) but Time Server(s) cannot be reached for "
                   "synchronization.\nTime Zone will be ignored.");

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
    void timeComesAtTheFileDialog();
    void timeComesAtAWarning();
    void deviceIsInvalidAtTheFileDialog_data() { bothDialogs(); }
    void deviceIsInvalidAtTheFileDialog();
    void fileChosenWhileTheDeviceIsJudged_data() { bothDialogs(); }
    void fileChosenWhileTheDeviceIsJudged();
    void replacingIsNotAskedOnForALostDevice();

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
    atFileDialog(rig, [&rig] { clickEverything(rig); });
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
    rig.robot.expectWarning(QStringLiteral("Error"), unreadableText);
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
    atFileDialog(rig, [&rig] { rig.window.close(); });
    rig.takeStatusLog();
    rig.trigger(action);
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(presetIn(rig.document(QStringLiteral("own.bpr"))), milkPreset());
    QCOMPARE(rig.takeStatusLog(), QStringList());
    QCOMPARE(closedWindowRemains(rig), QString());
}

void TestMainWindowPresetsInterruptions::windowClosesAtABox_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("unreadable") << "Error" << unreadableText;
    QTest::newRow("not saved") << "Error" << unsavedText;
    QTest::newRow("zone ignored") << "Warning" << unreachableText;
}

void TestMainWindowPresetsInterruptions::windowClosesAtABox()
{
    QFETCH(const QString, title);
    QFETCH(const QString, text);
    const Servers silent;
    PresetRig rig(timeAndPresets());
    rig.plugAndConnect();
    if (text == unreachableText)
        writePreset(defaultPreset, presetOfBasicLogger());
    QVERIFY(QDir().mkpath(rig.document(QStringLiteral("taken.bpr"))));
    rig.robot.expectWarning(title, text);
    atFirstBox(rig, [&rig] { rig.window.close(); });
    if (text == unsavedText)
        rig.save(rig.document(QStringLiteral("taken")));
    else
        rig.press("buttonPreset");
    QCOMPARE(closedWindowRemains(rig), QString());
}

// In time for the zone of the file that is then chosen.
void TestMainWindowPresetsInterruptions::timeComesAtTheFileDialog()
{
    AnsweredRig answered;
    PresetRig& rig = answered.rig;
    rig.plugAndConnect(secureLogger());
    const QString path = rig.document(QStringLiteral("own.bpr"));
    writePreset(path, presetWith(milkPreset(), {{QStringLiteral("timezone"), QStringLiteral("GMT+3:00")}}));
    atFileDialog(rig, [&answered] { answered.answer(); });
    rig.load(path);
    QVERIFY(answered.came);
    QCOMPARE(rig.wire(), QList<QByteArray>{"m"});
    QCOMPARE(rig.text("lineInfo"), QStringLiteral("Milk"));
    QCOMPARE(rig.text("labelTimeZone"), QStringLiteral("GMT+3:00"));
    QCOMPARE(differences(rig, idle(QStringLiteral("Loaded ") + path, true)), QString());
}

// Too late for the zone.
void TestMainWindowPresetsInterruptions::timeComesAtAWarning()
{
    AnsweredRig answered;
    PresetRig& rig = answered.rig;
    rig.plugAndConnect();
    writePreset(defaultPreset, milkPreset());
    rig.robot.expectWarning(QStringLiteral("Warning"), unreachableText);
    atFirstBox(rig, [&answered] { answered.answer(); });
    rig.press("buttonPreset");
    QVERIFY(answered.came);
    QCOMPARE(rig.wire(), QList<QByteArray>{"m"});
    QCOMPARE(rig.text("lineInfo"), QStringLiteral("Milk"));
    QCOMPARE(differences(rig, idle(QStringLiteral("Loaded default.bpr"), true)), QString());
}

// The file was chosen for a device that is gone: nothing is saved of it, and nothing comes into an empty
// window.
void TestMainWindowPresetsInterruptions::deviceIsInvalidAtTheFileDialog()
{
    QFETCH(const QByteArray, action);
    AnsweredRig answered(3 * dayMsecs);
    PresetRig& rig = answered.rig;
    rig.plugAndConnect();
    const QString path = rig.document(QStringLiteral("own.bpr"));
    writePreset(path, milkPreset());
    rig.hand.setPath(path);
    expectInvalidDevice(rig.robot);
    atFileDialog(rig, [&] {
        answered.servers.release();
        answered.came = rig.comesTo(QStringLiteral("Disconnected from ttyACM0"));
    });
    rig.trigger(action);
    QVERIFY(answered.came);
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(presetIn(path), milkPreset());
    QCOMPARE(differences(rig, disconnected()), QString());
}

// The file dialog is accepted just before the device turns out to be invalid.
void TestMainWindowPresetsInterruptions::fileChosenWhileTheDeviceIsJudged()
{
    QFETCH(const QByteArray, action);
    AnsweredRig answered(3 * dayMsecs);
    PresetRig& rig = answered.rig;
    rig.plugAndConnect();
    const QString taken = rig.document(QStringLiteral("own.bpr"));
    const QString fresh = rig.document(QStringLiteral("new.bpr"));
    writePreset(taken, milkPreset());
    rig.hand.setPath({});
    expectInvalidDevice(rig.robot);
    connect(&rig.hand, &FileDialogHand::sOpened, &rig.window, [&](QFileDialog* dialog) {
        rig.atCommand(1, [&, dialog] {
            dialog->findChild<QLineEdit*>()->setText(dialog->acceptMode() == QFileDialog::AcceptSave ? fresh
                                                                                                     : taken);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        answered.servers.release();
        answered.came = rig.comesTo(QStringLiteral("Disconnected from ttyACM0"));
    });
    rig.trigger(action);
    QVERIFY(answered.came);
    QVERIFY(!QFile::exists(fresh));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowPresetsInterruptions::replacingIsNotAskedOnForALostDevice()
{
    AnsweredRig answered(3 * dayMsecs);
    PresetRig& rig = answered.rig;
    rig.plugAndConnect();
    const QString path = rig.document(QStringLiteral("own.bpr"));
    writePreset(path, milkPreset());
    expectInvalidDevice(rig.robot); // over the question, and so answered first
    rig.robot.expectWarningQuestion(QStringLiteral("Save to preset"),
                                    QStringLiteral("own.bpr already exists.\nDo you want to replace it?"),
                                    Yes);
    connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window, [&](const QString& title) {
        if (title != QStringLiteral("Save to preset"))
            return;
        answered.servers.release();
        answered.came = rig.comesTo(QStringLiteral("Disconnected from ttyACM0"));
    });
    rig.save(path);
    QVERIFY(answered.came);
    QCOMPARE(presetIn(path), milkPreset());
    QCOMPARE(differences(rig, disconnected()), QString());
}

QTEST_MAIN(TestMainWindowPresetsInterruptions)
#include "tst_mainwindow_presets_interruptions.moc"
