// A Time Zone Editor, the time that it shows, and the operator's hands.

#include "zonedesk.h"

#include "advanceddesk.h"
#include "time/timezonetable.h"

#include <QTest>

QDateTime deskTime()
{
    return {QDate(2024, 9, 25), QTime(12, 0), Qt::UTC};
}

QString shown(const QDateTime& time)
{
    return time.toString(QStringLiteral("hh:mm:ss dd/MMMM/yyyy"));
}

void addZoneRows()
{
    QTest::addColumn<int>("offset");
    for (const TimeZoneMatch& zone : timeZoneTable())
        QTest::newRow(qPrintable(zone.name)) << zone.offset;
}

ZoneDesk::Clock::Clock()
{
    holdClock(deskTime());
}

ZoneDesk::ZoneDesk()
    : manager(new TimeManager(nullptr))
    , dialog(&window)
{
    window.resize(900, 800);
    dialog.setTimeManager(manager);
    setDevice(0);
}

QString ZoneDesk::text(const char* name) const
{
    return find<QWidget>(name)->property("text").toString();
}

void ZoneDesk::tellTime(const QDateTime& time) const
{
    if (!QMetaObject::invokeMethod(manager.data(), "plOnSingleWorkerReply", Q_ARG(QDateTime, time)))
        qFatal("the manager doesn't listen");
}

void ZoneDesk::open()
{
    dialog.open();
    if (!QTest::qWaitForWindowExposed(&dialog))
        qFatal("the dialog was never exposed");
}

void ZoneDesk::expectConfirmation(QMessageBox::StandardButton answer)
{
    robot.expectChoice(QStringLiteral("Attention"),
                       QStringLiteral("Are you sure you want to change the device's time setting?"), answer);
}
