#pragma once

#include <QLatin1String>
#include <QUrl>

/// The maker's web server.
constexpr auto makerHost = "www.polarridgeworks.example";

/// An address on it, over HTTP; @p path begins with a slash.
inline QUrl makerAddress(const char* path)
{
    return QUrl(QLatin1String("http://") + QLatin1String(makerHost) + QLatin1String(path));
}
