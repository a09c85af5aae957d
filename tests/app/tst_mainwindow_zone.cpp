// A zone adopted by its name: the clock shows the reference time in it, and an older logger's report says so.

#include "procedurerig.h"
#include "support/testclock.h"
#include "zoneaccess.h"

#include <QLabel>
#include <QLocale>
#include <QTest>

namespace {

/// What the clock on display shows.
QDateTime shownTime(const ProcedureRig& rig)
{
    QDateTime time =
        QLocale::system().toDateTime(rig.text("labelDateTime"), QStringLiteral("hh:mm:ss dd/MMM/yyyy"));
    if (!time.isValid())
        qFatal("the clock on display can't be read: %s", qPrintable(rig.text("labelDateTime")));
    time.setTimeSpec(Qt::UTC);
    return time;
}

/// How many seconds the clock on display is ahead of the true time.
qint64 secondsAhead(const ProcedureRig& rig)
{
    return QDateTime::currentDateTimeUtc().secsTo(shownTime(rig));
}

const QString notice = QStringLiteral("ALL DATES/TIMES ARE GMT+2:00. IGNORE GMT REMARK BELOW.");
const QString bold = QStringLiteral("font: bold");

} // namespace

class TestMainWindowZone : public QObject
{
    Q_OBJECT

private slots:
    void clockShowsTheReferenceTimeInTheZone_data();
    void clockShowsTheReferenceTimeInTheZone();
    void clockRuns();
    void olderLoggersReportSaysTheZone();
    void reportSaysNothingOfTheDefaultZone();
    void reportOfNewerLoggersIsLeftAlone();
    void unknownZoneChangesNothing();
    void boldGoesWithTheNextRead();
};

void TestMainWindowZone::clockShowsTheReferenceTimeInTheZone_data()
{
    QTest::addColumn<int>("offset");
    QTest::newRow("GMT") << 0;
    QTest::newRow("GMT+12:00") << 43200;
    QTest::newRow("GMT+5:30") << 19800;
    QTest::newRow("GMT-11:00") << -39600;
}

void TestMainWindowZone::clockShowsTheReferenceTimeInTheZone()
{
    QFETCH(int, offset);
    ProcedureRig rig;
    rig.plugAndConnect();
    TestClock::reset();
    // The reference clock follows the computer's at its next tick.
    QVERIFY2(QTest::qWaitFor([&] {
                 setZone(rig.window, QString(QTest::currentDataTag()));
                 return qAbs(secondsAhead(rig) - offset) <= 2;
             }),
             qPrintable(rig.text("labelDateTime")));
    QCOMPARE(rig.find<QLabel>("labelDateTime")->styleSheet(), bold);
}

void TestMainWindowZone::clockRuns()
{
    ProcedureRig rig;
    TestClock::reset();
    setZone(rig.window, QStringLiteral("GMT+1:00"));
    const QString before = rig.text("labelDateTime");
    QVERIFY(QTest::qWaitFor([&] { return rig.text("labelDateTime") != before; }));
}

void TestMainWindowZone::olderLoggersReportSaysTheZone()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    setZone(rig.window, QStringLiteral("GMT+2:00"));
    QCOMPARE(rig.text("lineInfo"), notice);
    QVERIFY(rig.isModified());
    rig.press("buttonWrite");
    QCOMPARE(rig.logger->model().settings().texts[2], notice);
}

void TestMainWindowZone::reportSaysNothingOfTheDefaultZone()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    const QString before = rig.text("lineInfo");
    setZone(rig.window, QStringLiteral("GMT"));
    QCOMPARE(rig.text("lineInfo"), before);
    QVERIFY(!rig.isModified());
}

void TestMainWindowZone::reportOfNewerLoggersIsLeftAlone()
{
    ProcedureRig rig;
    rig.plugAndConnect(extendedLogger());
    const QString before = rig.text("lineInfo");
    setZone(rig.window, QStringLiteral("GMT+2:00"));
    QCOMPARE(rig.text("lineInfo"), before);
}

void TestMainWindowZone::unknownZoneChangesNothing()
{
    LoggerModel ahead = basicLogger();
    ahead.settings().clockOffset = 7200;
    ProcedureRig rig;
    rig.plugAndConnect(ahead);
    TestClock::reset();
    const QString info = rig.text("lineInfo");
    setZone(rig.window, QStringLiteral("gmt+2:00"));
    QCOMPARE(rig.text("lineInfo"), info);
    const QString shown = rig.text("labelDateTime");
    QVERIFY(QTest::qWaitFor([&] { return rig.text("labelDateTime") != shown; }));
    QVERIFY(qAbs(secondsAhead(rig) - 7200) <= 2);
    QCOMPARE(rig.find<QLabel>("labelDateTime")->styleSheet(), QString());
    QVERIFY(!rig.isModified());
}

void TestMainWindowZone::boldGoesWithTheNextRead()
{
    ProcedureRig rig;
    rig.plugAndConnect(extendedLogger());
    setZone(rig.window, QStringLiteral("GMT+2:00"));
    rig.press("buttonRead");
    QCOMPARE(rig.find<QLabel>("labelDateTime")->styleSheet(), QString());
}

QTEST_MAIN(TestMainWindowZone)
#include "tst_mainwindow_zone.moc"
