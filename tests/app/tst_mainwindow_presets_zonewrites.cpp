// The zone of a preset on its way to the logger. A preset moves the figures on the window's clock; the zone
// that goes to newer loggers beside the time is that of the advanced options, which a preset leaves alone.

#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "presetrig.h"
#include "support/nextchance.h"
#include "windowstate.h"

#include <QDateTime>
#include <QTest>

using namespace TimeWords;

namespace {

constexpr int ownOffset = 7200; ///< the zone of secureLogger()
constexpr int clockError = 100000;
constexpr qint64 tolerance = 2; // seconds
const QString ownZone = QStringLiteral("GMT+2:00");
const QString written = QStringLiteral("Write successful");

/// All but the zone is as on the logger.
PresetTable presetOfZoneAlone(const QString& zone)
{
    return presetWithout(presetOfZone(zone), {QStringLiteral("policies"), QStringLiteral("password"),
                                              QStringLiteral("startdate_en"), QStringLiteral("stopdate_en")});
}

LoggerModel withWrongClock(LoggerModel model)
{
    model.settings().clockOffset = clockError;
    return model;
}

/// A connected logger with a wrong clock, and a reference time.
class ZoneWriteRig
{
public:
    explicit ZoneWriteRig(const LoggerModel& model)
        : servers(NtpAnswer::currentTime())
        , rig(timeAndPresets())
    {
        if (!rig.comesTo(fetchedServer))
            qFatal("the answer never came");
        rig.plugAndConnect(withWrongClock(model));
        fetchAnew();
    }

    /// Loads a preset of @p zone and writes it.
    void write(const QString& zone)
    {
        rig.apply(presetOfZoneAlone(zone));
        rig.press("buttonWrite");
    }

    /// How far the logger's clock is ahead of the true time, in seconds, apart from its zone.
    qint64 loggerAhead() const { return rig.logger->model().clockUtc() - QDateTime::currentSecsSinceEpoch(); }
    QList<QByteArray> wire() const { return withoutSeconds(rig.wire()); }

    Servers servers;
    PresetRig rig;

private:
    // The exchanges of a connect move the computer's clock on faster than the window's clocks tick.
    void fetchAnew()
    {
        rig.check("checkUsePool", true);
        QMetaObject::invokeMethod(&rig.window, "plSettingsAccepted");
        if (!rig.comesTo(fetchedPool))
            qFatal("the pool's answer never came");
        rig.logger->clearExchanges();
    }
};

QList<QByteArray> writeWithTime(const QByteArray& zone)
{
    QList<QByteArray> commands = extendedWriteCommands();
    commands.insert(1, zone);
    commands.insert(2, "u");
    return commands;
}

bool isAbout(qint64 seconds, qint64 expected)
{
    return qAbs(seconds - expected) <= tolerance;
}

} // namespace

class TestMainWindowPresetsZoneWrites : public QObject
{
    Q_OBJECT

private slots:
    void figuresOfTheZone_data();
    void figuresOfTheZone();
    void zoneByTheAdvancedOptions_data();
    void zoneByTheAdvancedOptions();
    void unknownZoneLeavesTheClock();
    void olderLogger();
    void noReferenceTime_data();
    void noReferenceTime();
    void timeSwitchedOffBehindTheLoad();
};

void TestMainWindowPresetsZoneWrites::figuresOfTheZone_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<int>("offset");
    QTest::addColumn<bool>("multiuse");
    for (const bool multiuse : {true, false}) {
        const char* use = multiuse ? "Multiuse" : "Single-use";
        QTest::addRow("%s, ahead", use) << "GMT+5:30" << 19800 << multiuse;
        QTest::addRow("%s, behind", use) << "GMT-11:00" << -39600 << multiuse;
        QTest::addRow("%s, default", use) << "GMT" << 0 << multiuse;
        QTest::addRow("%s, none", use) << "" << 0 << multiuse;
        QTest::addRow("%s, its own", use) << ownZone << ownOffset << multiuse;
    }
}

// On the logger's clock, whose own zone stays.
void TestMainWindowPresetsZoneWrites::figuresOfTheZone()
{
    QFETCH(const QString, zone);
    QFETCH(const int, offset);
    QFETCH(const bool, multiuse);
    ZoneWriteRig zones(secureLogger(multiuse));
    zones.write(zone);
    QCOMPARE(zones.wire(), writeWithTime("Sz00007200"));
    QVERIFY2(isAbout(zones.loggerAhead(), offset - ownOffset), QByteArray::number(zones.loggerAhead()));
    QCOMPARE(zones.rig.logger->model().settings().timeZoneOffset, ownOffset);
    zones.rig.press("buttonRead");
    QCOMPARE(zones.rig.text("labelTimeZone"), ownZone);
    QCOMPARE(differences(zones.rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowPresetsZoneWrites::zoneByTheAdvancedOptions_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<int>("offset");
    QTest::newRow("ahead") << "GMT+5:30" << QByteArray("Sz00019800") << 19800;
    QTest::newRow("behind") << "GMT-11:00" << QByteArray("Sz-0039600") << -39600;
}

// They find the zone by the window's clock, and have it written also when they are cancelled.
void TestMainWindowPresetsZoneWrites::zoneByTheAdvancedOptions()
{
    QFETCH(const QString, zone);
    QFETCH(const QByteArray, command);
    QFETCH(const int, offset);
    ZoneWriteRig zones(secureLogger());
    PresetRig& rig = zones.rig;
    rig.apply(presetOfZoneAlone(zone));
    atNextChance(&rig.window, [&rig] { rig.options()->reject(); });
    rig.press("buttonAdvanced");
    rig.logger->clearExchanges();
    rig.press("buttonWrite");
    QCOMPARE(zones.wire(), writeWithTime(command));
    QVERIFY2(isAbout(zones.loggerAhead(), 0), QByteArray::number(zones.loggerAhead()));
    QCOMPARE(rig.logger->model().settings().timeZoneOffset, offset);
    rig.press("buttonRead");
    QCOMPARE(rig.text("labelTimeZone"), zone);
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowPresetsZoneWrites::unknownZoneLeavesTheClock()
{
    ZoneWriteRig zones(secureLogger());
    const QString shown = zones.rig.text("labelDateTime");
    QTRY_VERIFY(zones.rig.text("labelDateTime") != shown); // the clock has caught up
    zones.write(QStringLiteral("Moon"));
    QCOMPARE(zones.wire(), writeWithTime("Sz00007200"));
    QVERIFY2(isAbout(zones.loggerAhead(), clockError), QByteArray::number(zones.loggerAhead()));
    QCOMPARE(differences(zones.rig, idle(written, false)), QString());
}

// It has no zone but the one of its figures, and a report that has to say so.
void TestMainWindowPresetsZoneWrites::olderLogger()
{
    LoggerModel model = basicLogger();
    model.settings().multiuse = true;
    ZoneWriteRig zones(model);
    zones.write(QStringLiteral("GMT+5:30"));
    QList<QByteArray> expected = writeCommandsOfBasicLogger();
    expected.insert(1, "u");
    for (QByteArray& command : expected) {
        if (command.startsWith("S2"))
            command = QByteArray("S2ALL DATES/TIMES ARE GMT+5:30. IGNORE GMT REMARK BELOW.")
                          .leftJustified(command.size());
    }
    QCOMPARE(zones.wire(), expected);
    QVERIFY2(isAbout(zones.loggerAhead(), 19800), QByteArray::number(zones.loggerAhead()));
    QCOMPARE(differences(zones.rig, idle(written, false)), QString());
}

void TestMainWindowPresetsZoneWrites::noReferenceTime_data()
{
    QTest::addColumn<bool>("timeEnabled");
    QTest::addColumn<bool>("multiuse");
    QTest::addColumn<QString>("reason");
    const QString silent = QStringLiteral("Time Server(s) cannot be reached for synchronization.");
    const QString off = QStringLiteral("Time Configuration is currently disabled.");
    QTest::newRow("servers silent, Multiuse") << true << true << silent;
    QTest::newRow("servers silent, Single-use") << true << false << silent;
    QTest::newRow("time configuration off, Multiuse") << false << true << off;
    QTest::newRow("time configuration off, Single-use") << false << false << off;
}

void TestMainWindowPresetsZoneWrites::noReferenceTime()
{
    QFETCH(const bool, timeEnabled);
    QFETCH(const bool, multiuse);
    QFETCH(const QString, reason);
    const Servers silent;
    PresetRig rig(timeEnabled ? timeAndPresets() : presetSettings());
    rig.plugAndConnect(withWrongClock(secureLogger(multiuse)));
    rig.robot.expectWarning(
        QStringLiteral("Warning"),
        QStringLiteral("Loaded preset sets a Time Zone (GMT+5:30) but %1\nTime Zone will be ignored.")
            .arg(reason));
    rig.apply(presetOfZoneAlone(QStringLiteral("GMT+5:30")));
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), extendedWriteCommands());
    QCOMPARE(rig.logger->model().settings().clockOffset, qint64(clockError));
    QCOMPARE(rig.logger->model().settings().timeZoneOffset, ownOffset);
    QCOMPARE(differences(rig, idle(written, false)), QString());
}

void TestMainWindowPresetsZoneWrites::timeSwitchedOffBehindTheLoad()
{
    ZoneWriteRig zones(secureLogger());
    PresetRig& rig = zones.rig;
    rig.apply(presetOfZoneAlone(QStringLiteral("GMT+5:30")));
    rig.check("checkDisableTime", true);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), extendedWriteCommands());
    QCOMPARE(rig.logger->model().settings().clockOffset, qint64(clockError));
    QCOMPARE(rig.logger->model().settings().timeZoneOffset, ownOffset);
    QCOMPARE(differences(rig, idle(written, false)), QString());
}

QTEST_MAIN(TestMainWindowPresetsZoneWrites)
#include "tst_mainwindow_presets_zonewrites.moc"
