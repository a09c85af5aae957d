// The Time Zone Editor opened from the window, and what becomes of the zone chosen there.

#include "dialogs/advancedoptionsdialog.h"
#include "windowstate.h"
#include "zonerig.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

using namespace TimeWords;
using namespace WindowWords;
using namespace ZoneWords;

namespace {

WindowState accepted()
{
    return idle(updating, true);
}

WindowState untouched()
{
    return idle(QStringLiteral("Connected to device on ttyACM0"), false);
}

LoggerModel ahead(LoggerModel model, int seconds)
{
    model.settings().clockOffset = seconds;
    return model;
}

} // namespace

class TestMainWindowZoneEditor : public QObject
{
    Q_OBJECT

private slots:
    void olderLoggerTakesZone();
    void newerLoggerTakesZone();
    void defaultZoneLeavesTheReportAlone();
    void proposesTheZoneOnTheClock_data();
    void proposesTheZoneOnTheClock();
    void sameZoneIsAChange();
    void zoneOfTheDeviceGivesWayToTheClocks();
    void zoneOfTheDeviceIsBackAfterARead();
    void clockOfNoZoneIsGmt();
    void cancelChangesNothing();
    void confirmationCanBeDeclined();
    void declinedChoiceIsForgotten();
    void clockOfTheNextLogger();
    void nothingElseRunsMeanwhile();
    void notDuringAProcedure();
};

void TestMainWindowZoneEditor::olderLoggerTakesZone()
{
    ZoneRig zones(olderLogger());
    zones.fetchTime();
    zones.change(QStringLiteral("GMT+9:30"));
    QCOMPARE(zones.choice(),
             QStringList({"zone = GMT+9:30, label, button", "clock = font: bold",
                          "information = ALL DATES/TIMES ARE GMT+9:30. IGNORE GMT REMARK BELOW.",
                          "offset = 34200", "modified = 1"}));
    QVERIFY(qAbs(QDateTime::currentDateTimeUtc().addSecs(34200).secsTo(zones.shownTime())) <= 2);
    QCOMPARE(zones.rig.takeStatusLog(), QStringList({updating}));
    QCOMPARE(zones.rig.wire(), QList<QByteArray>());
    QCOMPARE(differences(zones.rig, accepted()), QString());
}

void TestMainWindowZoneEditor::newerLoggerTakesZone()
{
    ZoneRig zones(newerLogger());
    zones.fetchTime();
    zones.change(QStringLiteral("GMT-3:30"));
    QCOMPARE(zones.choice(), QStringList({"zone = GMT-3:30, label, button", "clock = font: bold",
                                          "information = Batch 7", "offset = -12600", "modified = 1"}));
    QVERIFY(qAbs(QDateTime::currentDateTimeUtc().addSecs(-12600).secsTo(zones.shownTime())) <= 2);
    QCOMPARE(zones.rig.wire(), QList<QByteArray>());
    QCOMPARE(differences(zones.rig, accepted()), QString());
}

void TestMainWindowZoneEditor::defaultZoneLeavesTheReportAlone()
{
    ZoneRig zones(ahead(olderLogger(), 3600));
    zones.change(QStringLiteral("GMT"));
    QCOMPARE(zones.choice(), QStringList({"zone = GMT, label, button", "clock = font: bold",
                                          "information = Batch 7", "offset = 0", "modified = 1"}));
    QCOMPARE(differences(zones.rig, accepted()), QString());
}

void TestMainWindowZoneEditor::proposesTheZoneOnTheClock_data()
{
    QTest::addColumn<bool>("newer");
    QTest::addColumn<int>("clock");
    QTest::addColumn<QString>("zone");
    QTest::newRow("older") << false << 19800 << "GMT+5:30";
    QTest::newRow("older, three days off") << false << 3 * 86400 << "GMT";
    // Its clock is taken at its word, not the zone that it stores.
    QTest::newRow("newer") << true << 0 << "GMT+2:00";
    QTest::newRow("newer, an hour off") << true << 3600 << "GMT+3:00";
    QTest::newRow("newer, three days off") << true << 3 * 86400 << "GMT";
}

void TestMainWindowZoneEditor::proposesTheZoneOnTheClock()
{
    QFETCH(const bool, newer);
    QFETCH(const int, clock);
    ZoneRig zones(ahead(newer ? newerLogger() : olderLogger(), clock));
    QString proposed;
    QString current;
    zones.hand.atEditor([&](QDialog* dialog) {
        proposed = ZoneRig::zoneIn(dialog);
        current = dialog->findChild<QLabel*>("labelDeviceTime")->text();
    });
    zones.press();
    QTEST(proposed, "zone");
    QCOMPARE(current.endsWith(QStringLiteral(" (Time Zone Unknown)")), clock > 86400);
    QCOMPARE(differences(zones.rig, untouched()), QString());
}

void TestMainWindowZoneEditor::sameZoneIsAChange()
{
    ZoneRig zones(newerLogger());
    zones.change();
    QCOMPARE(zones.choice(), QStringList({"zone = GMT+2:00, label, button", "clock = font: bold",
                                          "information = Batch 7", "offset = 7200", "modified = 1"}));
    QCOMPARE(differences(zones.rig, accepted()), QString());
}

// It stores GMT+2:00, but shows GMT+3:00. Once that is accepted, the stored zone counts no more.
void TestMainWindowZoneEditor::zoneOfTheDeviceGivesWayToTheClocks()
{
    ZoneRig zones(ahead(newerLogger(), 3600));
    QCOMPARE(zones.rig.text("labelTimeZone"), QStringLiteral("GMT+2:00"));
    zones.change();
    QCOMPARE(zones.rig.text("labelTimeZone"), QStringLiteral("GMT+3:00"));
    zones.rig.press("buttonAdvanced");
    QCOMPARE(options(zones.rig)->lTimeZoneName(), QStringLiteral("GMT+3:00"));
    QCOMPARE(options(zones.rig)->lTimeZoneOffset(), 3 * 3600);
    QCOMPARE(differences(zones.rig, accepted()), QString());
}

void TestMainWindowZoneEditor::zoneOfTheDeviceIsBackAfterARead()
{
    ZoneRig zones(ahead(newerLogger(), 3600));
    zones.change();
    expectReadQuestion(zones.rig.robot, Yes);
    zones.rig.press("buttonRead");
    zones.rig.press("buttonAdvanced");
    QCOMPARE(options(zones.rig)->lTimeZoneName(), QStringLiteral("GMT+2:00"));
    QCOMPARE(options(zones.rig)->lTimeZoneOffset(), 2 * 3600);
    QCOMPARE(differences(zones.rig, idle(QStringLiteral("Read successful"), false)), QString());
}

// A better reference time has come since, and by that one the clock is days off.
void TestMainWindowZoneEditor::clockOfNoZoneIsGmt()
{
    ZoneRig zones(newerLogger());
    zones.change(QStringLiteral("GMT+9:00"));
    zones.fetchTime(3 * 86400);
    zones.rig.press("buttonAdvanced");
    QCOMPARE(options(zones.rig)->lTimeZoneName(), QStringLiteral("GMT"));
    QCOMPARE(options(zones.rig)->lTimeZoneOffset(), 0);
    QCOMPARE(differences(zones.rig, idle(TimeWords::fetchedPool, true)), QString());
}

void TestMainWindowZoneEditor::cancelChangesNothing()
{
    ZoneRig zones(olderLogger());
    const QStringList before = zones.choice();
    zones.hand.atEditor([](QDialog* dialog) { ZoneRig::choose(dialog, QStringLiteral("GMT+9:00")); });
    zones.press();
    QCOMPARE(zones.hand.titles().last(), editor);
    QCOMPARE(zones.choice(), before);
    QCOMPARE(zones.rig.wire(), QList<QByteArray>());
    QCOMPARE(differences(zones.rig, untouched()), QString());
}

void TestMainWindowZoneEditor::confirmationCanBeDeclined()
{
    ZoneRig zones(newerLogger());
    const QStringList before = zones.choice();
    QString kept;
    zones.hand.atEditor([&](QDialog* dialog) {
        ZoneRig::choose(dialog, QStringLiteral("GMT+9:00"));
        dialog->accept();
        kept = dialog->isVisible() ? ZoneRig::zoneIn(dialog) : QString();
    });
    expectConfirmation(zones.rig.robot, QMessageBox::Cancel);
    zones.press();
    QCOMPARE(kept, QStringLiteral("GMT+9:00"));
    QCOMPARE(zones.choice(), before);
    QCOMPARE(differences(zones.rig, untouched()), QString());
}

void TestMainWindowZoneEditor::declinedChoiceIsForgotten()
{
    ZoneRig zones(newerLogger());
    QStringList proposed;
    zones.hand.atEditor([&](QDialog* dialog) {
        proposed << ZoneRig::zoneIn(dialog);
        ZoneRig::choose(dialog, QStringLiteral("GMT+9:00"));
    });
    zones.press();
    zones.press();
    QCOMPARE(proposed, QStringList({"GMT+2:00", "GMT+2:00"}));
}

// The editor is one and the same for all loggers.
void TestMainWindowZoneEditor::clockOfTheNextLogger()
{
    ZoneRig zones(newerLogger());
    zones.change(QStringLiteral("GMT+9:00"));
    expectDisconnecting(zones.rig.robot, Yes);
    zones.rig.press("buttonConnect");
    zones.rig.unplugAll();
    zones.rig.plugAndConnect(ahead(olderLogger(), -3600));
    QString proposed;
    zones.hand.atEditor([&](QDialog* dialog) { proposed = ZoneRig::zoneIn(dialog); });
    zones.press();
    QCOMPARE(proposed, QStringLiteral("GMT-1:00"));
    QCOMPARE(zones.hand.titles(), QStringList({editor, disclaimer, editor}));
    QCOMPARE(zones.rig.robot.problems(), QString());
}

void TestMainWindowZoneEditor::nothingElseRunsMeanwhile()
{
    ZoneRig zones(olderLogger());
    const auto clickAll = [&zones](QDialog*) {
        for (const char* button : {"buttonConnect", "buttonRead", "buttonWrite", "buttonStart",
                                   "buttonAdvanced", "buttonToolTimeZone"})
            zones.rig.find<QAbstractButton>(button)->click();
    };
    zones.hand.atDisclaimer(clickAll);
    zones.hand.atEditor(clickAll);
    zones.press();
    QCOMPARE(zones.hand.titles(), QStringList({disclaimer, editor}));
    QCOMPARE(zones.rig.wire(), QList<QByteArray>());
    QCOMPARE(differences(zones.rig, untouched()), QString());
}

void TestMainWindowZoneEditor::notDuringAProcedure()
{
    ZoneRig zones(newerLogger());
    bool called = false;
    zones.rig.atCommand(
        3, [&] { called = QMetaObject::invokeMethod(&zones.rig.window, "plProcessTimeZoneDialog"); });
    zones.rig.press("buttonRead");
    QVERIFY(called);
    QCOMPARE(zones.hand.titles(), QStringList());
    QCOMPARE(differences(zones.rig, idle(QStringLiteral("Read successful"), false)), QString());
}

QTEST_MAIN(TestMainWindowZoneEditor)
#include "tst_mainwindow_zoneeditor.moc"
