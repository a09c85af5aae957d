#pragma once

#include <QStringList>

/// What is logged while it lives, a line each: its level, as "debug: " or "warning: ", and the text. One at a
/// time.
///
/// The program's own lines carry no category, file, line or function; one that does begins with "with a
/// context, ".
class LogLines
{
public:
    LogLines();
    ~LogLines();
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    QStringList all() const;
    QString last() const;
    void clear();
};
