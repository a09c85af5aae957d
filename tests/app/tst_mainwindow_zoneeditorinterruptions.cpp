// What can come in between while the disclaimer, the Time Zone Editor or one of its boxes is open: the end of
// the window, a time server's answer, and the end of the device. The operator goes on as far as there is
// anything left to press.

#include "dialogs/advancedoptionsdialog.h"
#include "windowstate.h"
#include "zonerig.h"

#include <QApplication>
#include <QTest>

using namespace TimeWords;
using namespace WindowWords;
using namespace ZoneWords;

namespace {

enum Place { Disclaimer, Editor, Confirmation, DatesWarning };

const QString zone = QStringLiteral("GMT+9:00");
constexpr int zoneOffset = 9 * 3600;
constexpr int newTime = 5 * 3600; // seconds ahead of the one before
constexpr int threeDays = 3 * 86400;

struct InterruptedRig
{
    InterruptedRig(const LoggerModel& model, int place)
        : zones(model)
        , place(place)
    {
        if (place == DatesWarning)
            options(zones.rig)->lSetStartDate(true, QDateTime(QDate(2024, 5, 16), QTime(8, 0), Qt::UTC));
    }

    /// Does @p interruption at the place when the operator gets there, and lets the operator go on.
    void run(const std::function<void()>& interruption)
    {
        const auto interrupt = [this, interruption](int here) {
            if (here == place) {
                interruption();
                interruptions++;
            }
        };
        zones.hand.atDisclaimer([this, interrupt](QDialog* dialog) {
            interrupt(Disclaimer);
            stayedOpen = dialog->isVisible();
        });
        zones.hand.atEditor([this, interrupt](QDialog* editor) {
            interrupt(Editor);
            stayedOpen = editor->isVisible();
            if (!editor->isVisible())
                return;
            ZoneRig::choose(editor, zone);
            editor->accept();
        });
        QObject::connect(&zones.rig.robot, &DialogRobot::sBoxOpened, &zones.rig.window,
                         [interrupt](const QString& title) {
                             if (title == confirmation)
                                 interrupt(Confirmation);
                             else if (title == datesWarning)
                                 interrupt(DatesWarning);
                         });
        zones.press();
    }

    /// The boxes on the way to the place @p last. The robot answers a box that comes over another one before
    /// that one.
    void expectBoxesUpTo(int last)
    {
        if (last >= Confirmation)
            expectConfirmation(zones.rig.robot);
        if (last >= DatesWarning && place == DatesWarning)
            expectDatesWarning(zones.rig.robot);
    }

    ZoneRig zones;
    int place;
    int interruptions = 0;
    bool stayedOpen = false; ///< the last dialog, whether it was interrupted or not
};

void addPlaceRows(bool older)
{
    QTest::addColumn<int>("place");
    QTest::addColumn<bool>("older");
    if (older)
        QTest::newRow("disclaimer") << int(Disclaimer) << true;
    for (const bool isOlder : {false, true}) {
        const char* which = isOlder ? "older" : "newer";
        QTest::addRow("editor, %s", which) << int(Editor) << isOlder;
        QTest::addRow("confirmation, %s", which) << int(Confirmation) << isOlder;
        QTest::addRow("warning, %s", which) << int(DatesWarning) << isOlder;
    }
}

LoggerModel loggerFor(bool older)
{
    return older ? olderLogger() : newerLogger();
}

LoggerModel singleUse(LoggerModel model)
{
    model.settings().multiuse = false;
    return model;
}

} // namespace

class TestMainWindowZoneEditorInterruptions : public QObject
{
    Q_OBJECT

private slots:
    void windowIsClosed_data() { addPlaceRows(true); }
    void windowIsClosed();
    void timeComes_data() { addPlaceRows(true); }
    void timeComes();
    void deviceIsInvalid_data() { addPlaceRows(true); }
    void deviceIsInvalid();
    void acceptedWhileTheDeviceIsJudged_data();
    void acceptedWhileTheDeviceIsJudged();
    void plugIsPulled();
    void nextLoggerStartsAnew();
};

void TestMainWindowZoneEditorInterruptions::windowIsClosed()
{
    QFETCH(const int, place);
    QFETCH(const bool, older);
    InterruptedRig interrupted(loggerFor(older), place);
    ZoneRig& zones = interrupted.zones;
    interrupted.expectBoxesUpTo(place);
    interrupted.run([&zones] { zones.rig.window.close(); });
    QCOMPARE(interrupted.interruptions, 1);
    QCOMPARE(interrupted.stayedOpen, place > Editor);
    QCOMPARE(closedWindowRemains(zones.rig), QString());
    QCOMPARE(options(zones.rig)->lTimeZoneOffset(), older ? 0 : 7200);
    QVERIFY(!zones.rig.isModified());
    QCOMPARE(zones.rig.text("lineInfo"), QStringLiteral("Batch 7"));
    QCOMPARE(zones.rig.wire(), QList<QByteArray>());
}

// The device is looked at, and the choice goes by the new time.
void TestMainWindowZoneEditorInterruptions::timeComes()
{
    QFETCH(const int, place);
    QFETCH(const bool, older);
    InterruptedRig interrupted(loggerFor(older), place);
    ZoneRig& zones = interrupted.zones;
    zones.askAgain(newTime);
    interrupted.expectBoxesUpTo(DatesWarning);
    interrupted.run([&zones] {
        zones.releaseUntil(fetchedPool);
        QVERIFY(QTest::qWaitFor([&zones] { return !zones.rig.wire().isEmpty(); }));
    });
    QCOMPARE(interrupted.interruptions, 1);
    QVERIFY(interrupted.stayedOpen);
    QCOMPARE(zones.rig.wire(), QList<QByteArray>({"m"}));
    QCOMPARE(zones.rig.text("labelTimeZone"), zone);
    QVERIFY(qAbs(QDateTime::currentDateTimeUtc().addSecs(newTime + zoneOffset).secsTo(zones.shownTime())) <=
            2);
    QCOMPARE(zones.rig.takeStatusLog(), QStringList({fetchedPool, updating}));
    QCOMPARE(differences(zones.rig, idle(updating, true)), QString());
}

void TestMainWindowZoneEditorInterruptions::deviceIsInvalid()
{
    QFETCH(const int, place);
    QFETCH(const bool, older);
    InterruptedRig interrupted(singleUse(loggerFor(older)), place);
    ZoneRig& zones = interrupted.zones;
    zones.askAgain(threeDays);
    if (place == DatesWarning)
        interrupted.expectBoxesUpTo(Confirmation);
    expectInvalidDevice(zones.rig.robot);
    if (place == DatesWarning)
        expectDatesWarning(zones.rig.robot);
    else if (place == Confirmation)
        expectConfirmation(zones.rig.robot);
    interrupted.run([&zones] { zones.releaseUntil(QStringLiteral("Disconnected from ttyACM0")); });
    QCOMPARE(interrupted.interruptions, 1);
    QCOMPARE(interrupted.stayedOpen, place > Editor);
    QCOMPARE(zones.rig.wire(), QList<QByteArray>({"m"}));
    QCOMPARE(options(zones.rig)->lTimeZoneOffset(), older ? 0 : 7200);
    QCOMPARE(panels(zones.rig), emptyPanels());
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
    QCOMPARE(differences(zones.rig, disconnected()), QString());
}

void TestMainWindowZoneEditorInterruptions::acceptedWhileTheDeviceIsJudged_data()
{
    QTest::addColumn<bool>("older");
    QTest::addColumn<QStringList>("dialogs");
    QTest::newRow("disclaimer") << true << QStringList({disclaimer});
    QTest::newRow("editor") << false << QStringList({editor});
}

// The operator is quicker than the device's answer. Nothing more is opened, and no dates are spoken of.
void TestMainWindowZoneEditorInterruptions::acceptedWhileTheDeviceIsJudged()
{
    QFETCH(const bool, older);
    ZoneRig zones(singleUse(loggerFor(older)));
    options(zones.rig)->lSetStartDate(true, QDateTime(QDate(2024, 5, 16), QTime(8, 0), Qt::UTC));
    zones.askAgain(threeDays);
    const auto acceptAtCommand = [&zones](QDialog* dialog) {
        zones.rig.atCommand(1, [dialog] { dialog->accept(); });
        zones.releaseUntil(QStringLiteral("Disconnected from ttyACM0"));
    };
    zones.hand.atDisclaimer(acceptAtCommand);
    zones.hand.atEditor(acceptAtCommand);
    if (!older)
        expectConfirmation(zones.rig.robot);
    expectInvalidDevice(zones.rig.robot);
    zones.press();
    QTEST(zones.hand.titles(), "dialogs");
    QCOMPARE(options(zones.rig)->lTimeZoneOffset(), older ? 0 : 7200);
    QCOMPARE(differences(zones.rig, disconnected()), QString());
}

// The window finds out only with the next command; the choice is as good as any other change.
void TestMainWindowZoneEditorInterruptions::plugIsPulled()
{
    InterruptedRig interrupted(newerLogger(), Editor);
    ZoneRig& zones = interrupted.zones;
    expectConfirmation(zones.rig.robot);
    interrupted.run([&zones] { zones.rig.unplugAll(); });
    QCOMPARE(zones.rig.text("labelTimeZone"), zone);
    QVERIFY(zones.rig.isModified());
    QCOMPARE(zones.rig.robot.problems(), QString());
}

// A zone accepted for a device that was lost meanwhile is forgotten with it.
void TestMainWindowZoneEditorInterruptions::nextLoggerStartsAnew()
{
    InterruptedRig interrupted(singleUse(newerLogger()), DatesWarning);
    ZoneRig& zones = interrupted.zones;
    zones.askAgain(threeDays);
    expectConfirmation(zones.rig.robot);
    expectInvalidDevice(zones.rig.robot);
    expectDatesWarning(zones.rig.robot);
    interrupted.run([&zones] { zones.releaseUntil(QStringLiteral("Disconnected from ttyACM0")); });
    zones.rig.unplugAll();
    zones.rig.plugAndConnect(newerLogger());
    QCOMPARE(zones.rig.text("labelTimeZone"), QStringLiteral("GMT+2:00"));
    QCOMPARE(options(zones.rig)->lTimeZoneOffset(), 7200);
    QVERIFY(!zones.rig.isModified());
    QCOMPARE(zones.rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowZoneEditorInterruptions)
#include "tst_mainwindow_zoneeditorinterruptions.moc"
