#pragma once

#include "device/brumaloggerinterface.h"

// Every operation of the link exchanges with a wait of its own choice, so what an exchange makes of other
// waits can only be seen by calling it, which is private. An explicit instantiation may name private members:
// that is the one place where the language does not look at access. It defines the function that hands the
// member out, and the link needs neither a friend nor a public operation for the tests' sake.

using ExchangeMember = bool (BrumaloggerInterface::*)(const QString& command, int waitMs);

ExchangeMember exchangeMember();

template<ExchangeMember member>
struct ExchangeAccess
{
    friend ExchangeMember exchangeMember() { return member; }
};

template struct ExchangeAccess<&BrumaloggerInterface::plExchange>;

/// Sends @p command and waits @p waitMs for the reply.
inline bool exchange(BrumaloggerInterface& link, const QString& command, int waitMs)
{
    return (link.*exchangeMember())(command, waitMs);
}
