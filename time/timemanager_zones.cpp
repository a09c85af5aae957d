// The look-ups in the time-zone table.

#include "time/timemanager.h"

#include <QDebug>

#include <cstdlib>

namespace {

constexpr qint64 halfADay = 43200;

/// The row with the smallest absolute @p difference in seconds, less than half a day; of equals the first.
template<typename Difference>
TimeZoneMatch nearest(const QList<TimeZoneMatch>& zones, Difference difference)
{
    TimeZoneMatch match;
    qint64 best = halfADay;
    for (const TimeZoneMatch& zone : zones) {
        const qint64 distance = std::abs(difference(zone));
        if (distance < best) {
            match = zone;
            best = distance;
        }
    }
    return match;
}

} // namespace

const QList<TimeZoneMatch>& TimeManager::timeZones() const
{
    return zones;
}

TimeZoneMatch TimeManager::matchTimeZoneByOffset(int offset) const
{
    TimeZoneMatch match =
        nearest(zones, [offset](const TimeZoneMatch& zone) { return qint64(offset) - zone.offset; });
    if (match.id == -1)
        qDebug() << "Unable to match Timezone for offset" << offset;
    return match;
}

TimeZoneMatch TimeManager::matchTimeZoneByDateTime(const QDate& date, const QTime& time) const
{
    const QDateTime now = currentTimeUtc();
    const QDateTime reference(now.date(), now.time(), Qt::UTC);
    const QDateTime device(date, time, Qt::UTC);
    qDebug() << "Matching:" << date << " " << time;
    qDebug() << "Matching:" << device;
    qDebug() << "Ref(UTC):" << now;

    TimeZoneMatch match = nearest(
        zones, [&](const TimeZoneMatch& zone) { return device.secsTo(reference.addSecs(zone.offset)); });
    if (match.id == -1)
        qDebug() << "Unable to match Timezone for date " << date << " " << time;
    return match;
}

TimeZoneMatch TimeManager::timeZoneByName(const QString& name) const
{
    for (const TimeZoneMatch& zone : zones) {
        if (zone.name == name)
            return zone;
    }
    return {};
}
