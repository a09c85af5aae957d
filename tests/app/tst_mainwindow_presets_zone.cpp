// The zone of a preset: adopted along with the reference time, or a warning that it is ignored.

#include "extendedrig.h"
#include "presetrig.h"
#include "windowstate.h"

#include <QDateTime>
#include <QLabel>
#include <QLocale>
#include <QTest>

using namespace TimeWords;

namespace {

constexpr auto zoneKey = "timezone";
const QString loaded = QStringLiteral("Loaded default.bpr");
const QString notice = QStringLiteral("ALL DATES/TIMES ARE GMT+2:00. IGNORE GMT REMARK BELOW.");

void expectUnreachable(DialogRobot& robot, const QString& zone)
{
    robot.expectWarning(QStringLiteral("Warning"),
                        QStringLiteral("Loaded preset sets a Time Zone (%1) but Time Server(s) cannot be "
                                       "reached for synchronization.\nTime Zone will be ignored.")
                            .arg(zone));
}

void expectDisabled(DialogRobot& robot, const QString& zone)
{
    robot.expectWarning(QStringLiteral("Warning"),
                        QStringLiteral("Loaded preset sets a Time Zone (%1) but Time Configuration is "
                                       "currently disabled.\nTime Zone will be ignored.")
                            .arg(zone));
}

/// A window with a reference time.
struct SynchronisedPresetRig
{
    explicit SynchronisedPresetRig(const LoggerModel& model)
        : servers(NtpAnswer::currentTime())
        , rig(timeAndPresets())
    {
        if (!rig.comesTo(fetchedServer))
            qFatal("the answer never came");
        rig.plugAndConnect(model);
    }

    Servers servers;
    PresetRig rig;
};

bool isBold(const PresetRig& rig)
{
    return rig.find<QLabel>("labelDateTime")->styleSheet() == QLatin1String("font: bold");
}

/// How many seconds the clock on display is ahead of the computer's, as the window sees it.
qint64 secondsAhead(const PresetRig& rig)
{
    QDateTime time =
        QLocale::system().toDateTime(rig.text("labelDateTime"), QStringLiteral("hh:mm:ss dd/MMM/yyyy"));
    time.setTimeSpec(Qt::UTC);
    return QDateTime::currentDateTimeUtc().secsTo(time);
}

/// Basic firmware, and for many uses: its clock may be off.
LoggerModel aheadLogger(qint64 seconds)
{
    LoggerModel model = basicLogger();
    model.settings().multiuse = true;
    model.settings().clockOffset = seconds;
    return model;
}

} // namespace

class TestMainWindowPresetsZone : public QObject
{
    Q_OBJECT

private slots:
    void adopted_data();
    void adopted();
    void readTakesTheMarkAway();
    void unknownIsTheDefault();
    void reportOfOlderLoggersSaysIt();
    void zoneOfTheDeviceIsNotInForceAnyMore_data();
    void zoneOfTheDeviceIsNotInForceAnyMore();
    void adoptedZoneIsSaved();
    void unreachable_data();
    void unreachable();
    void disabled_data();
    void disabled();
    void missingZone();
    void referenceTimeOfOtherDays();
};

void TestMainWindowPresetsZone::adopted_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<int>("offset");
    QTest::newRow("ahead") << "GMT+5:30" << 19800;
    QTest::newRow("behind") << "GMT-11:00" << -39600;
    QTest::newRow("default") << "GMT" << 0;
    QTest::newRow("none") << "" << 0;
}

void TestMainWindowPresetsZone::adopted()
{
    QFETCH(const QString, zone);
    QFETCH(const int, offset);
    SynchronisedPresetRig synchronised(secureLogger());
    PresetRig& rig = synchronised.rig;
    rig.apply(presetOfZone(zone));
    QCOMPARE(rig.text("labelTimeZone"), zone.isEmpty() ? QStringLiteral("GMT") : zone);
    QVERIFY2(qAbs(secondsAhead(rig) - offset) <= 2, qPrintable(rig.text("labelDateTime")));
    QVERIFY(isBold(rig));
    QCOMPARE(rig.text("lineInfo"), QStringLiteral("Batch 7"));
    // All else of this preset is on the logger.
    QCOMPARE(differences(rig, idle(loaded, false)), QString());
}

// Not only at its end: from its first step on.
void TestMainWindowPresetsZone::readTakesTheMarkAway()
{
    SynchronisedPresetRig synchronised(secureLogger());
    PresetRig& rig = synchronised.rig;
    rig.apply(presetOfZone(QStringLiteral("GMT+5:30")));
    QList<bool> bold;
    for (const char* command : {"i", "e"})
        rig.atCommand(extendedReadCommands().indexOf(command) + 1, [&] { bold << isBold(rig); });
    rig.press("buttonRead");
    QCOMPARE(bold, QList<bool>({true, false}));
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowPresetsZone::unknownIsTheDefault()
{
    SynchronisedPresetRig synchronised(secureLogger());
    PresetRig& rig = synchronised.rig;
    const QString shown = rig.text("labelTimeZone");
    rig.apply(presetOfZone(QStringLiteral("gmt+2:00")));
    QCOMPARE(rig.text("labelTimeZone"), shown);
    QVERIFY(!isBold(rig));
    rig.save(rig.document(QStringLiteral("own")));
    QCOMPARE(presetIn(rig.document(QStringLiteral("own.bpr"))).value(QLatin1String(zoneKey)),
             QStringLiteral("GMT"));
    QCOMPARE(rig.robot.problems(), QString());
}

// In place of the preset's own information.
void TestMainWindowPresetsZone::reportOfOlderLoggersSaysIt()
{
    SynchronisedPresetRig synchronised(basicLogger());
    PresetRig& rig = synchronised.rig;
    rig.apply(presetOfZone(QStringLiteral("GMT")));
    QCOMPARE(rig.text("lineInfo"), QStringLiteral("Batch 7"));
    QVERIFY(!rig.isModified());
    rig.apply(presetOfZone(QStringLiteral("GMT+2:00")));
    QCOMPARE(rig.text("lineInfo"), notice);
    QCOMPARE(rig.text("labelTimeZone"), QStringLiteral("GMT+2:00"));
    QCOMPARE(differences(rig, idle(loaded, true)), QString());
}

void TestMainWindowPresetsZone::zoneOfTheDeviceIsNotInForceAnyMore_data()
{
    QTest::addColumn<bool>("timeEnabled");
    QTest::newRow("time configuration on") << true;
    QTest::newRow("time configuration off") << false;
}

// With time configuration off, only a zone from the device would still be shown.
void TestMainWindowPresetsZone::zoneOfTheDeviceIsNotInForceAnyMore()
{
    QFETCH(const bool, timeEnabled);
    SynchronisedPresetRig synchronised(secureLogger());
    PresetRig& rig = synchronised.rig;
    rig.check("checkDisableTime", true);
    QMetaObject::invokeMethod(&rig.window, "plSettingsAccepted");
    QVERIFY(rig.zone().startsWith(QStringLiteral("GMT+2:00, label")));
    rig.check("checkDisableTime", !timeEnabled);
    if (!timeEnabled)
        expectDisabled(rig.robot, QStringLiteral("GMT+3:00"));
    rig.apply(presetOfZone(QStringLiteral("GMT+3:00")));
    rig.check("checkDisableTime", true);
    QMetaObject::invokeMethod(&rig.window, "plSettingsAccepted");
    QVERIFY2(!rig.zone().contains(QStringLiteral("label")), qPrintable(rig.zone()));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowPresetsZone::adoptedZoneIsSaved()
{
    SynchronisedPresetRig synchronised(secureLogger());
    PresetRig& rig = synchronised.rig;
    rig.apply(presetOfZone(QStringLiteral("GMT-3:30")));
    rig.save(rig.document(QStringLiteral("own")));
    QCOMPARE(presetIn(rig.document(QStringLiteral("own.bpr"))).value(QLatin1String(zoneKey)),
             QStringLiteral("GMT-3:30"));
}

void TestMainWindowPresetsZone::unreachable_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("named");
    QTest::newRow("another") << "GMT+5:30"
                             << "GMT+5:30";
    QTest::newRow("default") << "GMT"
                             << "GMT";
    QTest::newRow("none") << ""
                          << "GMT";
    QTest::newRow("unknown") << "Moon %1"
                             << "Moon %1";
}

void TestMainWindowPresetsZone::unreachable()
{
    QFETCH(const QString, zone);
    QFETCH(const QString, named);
    const Servers silent;
    PresetRig rig(timeAndPresets());
    rig.plugAndConnect(aheadLogger(7200));
    const QString info = rig.text("lineInfo");
    rig.takeStatusLog();
    expectUnreachable(rig.robot, named);
    rig.apply(presetOfZone(zone));
    QCOMPARE(rig.takeStatusLog(), QStringList(loaded));
    QCOMPARE(rig.text("lineInfo"), info);
    QVERIFY(qAbs(secondsAhead(rig) - 7200) <= 2);
    QVERIFY(!isBold(rig));
    QCOMPARE(differences(rig, idle(loaded, false)), QString());
}

void TestMainWindowPresetsZone::disabled_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<bool>("warned");
    QTest::newRow("another") << "GMT+5:30" << true;
    QTest::newRow("unknown") << "Moon" << true;
    QTest::newRow("default") << "GMT" << false;
    QTest::newRow("none") << "" << false;
}

// There is a reference time from before the configuration was switched off.
void TestMainWindowPresetsZone::disabled()
{
    QFETCH(const QString, zone);
    QFETCH(const bool, warned);
    SynchronisedPresetRig synchronised(aheadLogger(7200));
    PresetRig& rig = synchronised.rig;
    rig.check("checkDisableTime", true);
    rig.takeStatusLog();
    if (warned)
        expectDisabled(rig.robot, zone);
    rig.apply(presetOfZone(zone));
    QCOMPARE(rig.takeStatusLog(), QStringList(loaded));
    QVERIFY(qAbs(secondsAhead(rig) - 7200) <= 2);
    QVERIFY(!isBold(rig));
    QCOMPARE(differences(rig, idle(loaded, false)), QString());
}

void TestMainWindowPresetsZone::missingZone()
{
    const Servers silent;
    PresetRig rig(timeAndPresets());
    rig.plugAndConnect();
    expectUnreachable(rig.robot, QStringLiteral("GMT"));
    rig.apply(presetWithout(presetOfBasicLogger(), {QLatin1String(zoneKey)}));
    QCOMPARE(differences(rig, idle(loaded, false)), QString());
}

// A query that fails after one that didn't takes the reference time away.
void TestMainWindowPresetsZone::referenceTimeOfOtherDays()
{
    SynchronisedPresetRig synchronised(secureLogger());
    PresetRig& rig = synchronised.rig;
    synchronised.servers.answer(NtpAnswer::silence());
    rig.check("checkUsePool", true);
    QMetaObject::invokeMethod(&rig.window, "plSettingsAccepted");
    QVERIFY(rig.comesTo(failedPool));
    expectUnreachable(rig.robot, QStringLiteral("GMT"));
    rig.apply(presetOfZone(QStringLiteral("GMT")));
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowPresetsZone)
#include "tst_mainwindow_presets_zone.moc"
