// The zone of the computer that the tests run on.

#include "support/localzone.h"

#include <ctime>

LocalZone::LocalZone(const QByteArray& zone)
    : before(qgetenv("TZ"))
    , hadOne(qEnvironmentVariableIsSet("TZ"))
{
    qputenv("TZ", zone);
    tzset();
}

LocalZone::~LocalZone()
{
    if (hadOne)
        qputenv("TZ", before);
    else
        qunsetenv("TZ");
    tzset();
}
