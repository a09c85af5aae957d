#pragma once

#include <QByteArray>

/// Makes @p zone, as "EET-2" for two hours east of UTC, the computer's own while it lives.
class LocalZone
{
public:
    explicit LocalZone(const QByteArray& zone);
    ~LocalZone();
    LocalZone(const LocalZone&) = delete;
    LocalZone& operator=(const LocalZone&) = delete;

private:
    QByteArray before;
    bool hadOne;
};
