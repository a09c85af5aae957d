#pragma once

#include "device/brumaloggerinterface.h"
#include "support/privatemember.h"

// Every operation of the link exchanges with a wait of its own choice, so what an exchange makes of other
// waits can only be seen by calling it, which is private.

struct Exchange
{
    using Member = bool (BrumaloggerInterface::*)(const QString& command, int waitMs);
    friend Member memberOf(Exchange);
};
template struct PrivateMember<Exchange, &BrumaloggerInterface::plExchange>;

/// Sends @p command and waits @p waitMs for the reply.
inline bool exchange(BrumaloggerInterface& link, const QString& command, int waitMs)
{
    return (link.*memberOf(Exchange()))(command, waitMs);
}
