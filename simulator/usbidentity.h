#pragma once

#include <QString>

/// What a logger tells about itself at USB level.
struct UsbIdentity
{
    QString manufacturer = QStringLiteral("Polar Ridge Works"); ///< empty: it gives none
    QString description = QStringLiteral("Brumalogger USB");    ///< empty: it gives none
    int vendor = 0x03EB;                                        ///< negative: it gives none
    int product = 0x8015;                                       ///< negative: it gives none
};
