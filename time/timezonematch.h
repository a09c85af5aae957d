#pragma once

#include <QString>

/// A row of the time-zone table, and the result of a look-up in it.
struct TimeZoneMatch
{
    QString name;        ///< the label; also what presets store
    QString description; ///< empty in every row
    qint32 offset = 0;   ///< seconds east of UTC
    qint32 id = -1;      ///< 0 in every row of the table; -1 when nothing was found
};
