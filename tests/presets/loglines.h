#pragma once

#include <QStringList>

/// What is logged while it lives, a line each: "debug: " or "warning: " and the text.
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
