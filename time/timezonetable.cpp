// The time zones. Their labels are not translated; presets store them.

#include "time/timezonetable.h"

namespace {

struct Row
{
    const char* name;
    qint32 offset; // seconds east of UTC
};

// Not sorted by offset: "GMT" comes first, so that it wins against its neighbours on either side.
constexpr Row rows[] = {
    {"GMT", 0},           {"GMT+1:00", 3600},    {"GMT+2:00", 7200},
    {"GMT+3:00", 10800},  {"GMT+3:30", 12600},   {"GMT+4:00", 14400},
    {"GMT+5:00", 18000},  {"GMT+5:30", 19800},   {"GMT+6:00", 21600},
    {"GMT+7:00", 25200},  {"GMT+8:00", 28800},   {"GMT+9:00", 32400},
    {"GMT+9:30", 34200},  {"GMT+10:00", 36000},  {"GMT+11:00", 39600},
    {"GMT+12:00", 43200}, {"GMT-11:00", -39600}, {"GMT-10:00", -36000},
    {"GMT-9:00", -32400}, {"GMT-8:00", -28800},  {"GMT-7:00", -25200},
    {"GMT-6:00", -21600}, {"GMT-5:00", -18000},  {"GMT-4:00", -14400},
    {"GMT-3:30", -12600}, {"GMT-3:00", -10800},  {"GMT-1:00", -3600},
};

} // namespace

QList<TimeZoneMatch> timeZoneTable()
{
    QList<TimeZoneMatch> table;
    for (const Row& row : rows)
        table.append({QString::fromLatin1(row.name), QString(), row.offset, 0});
    return table;
}
