#pragma once

#include "device/brumaloggerinterface.h"
#include "support/privatemember.h"

// The link keeps what it read also where no operation hands it out again.

struct Policies
{
    using Member = int BrumaloggerInterface::*;
    friend Member memberOf(Policies);
};
template struct PrivateMember<Policies, &BrumaloggerInterface::policies>;

struct SerialNumber
{
    using Member = QString BrumaloggerInterface::*;
    friend Member memberOf(SerialNumber);
};
template struct PrivateMember<SerialNumber, &BrumaloggerInterface::serialNumber>;

struct Texts
{
    using Member = QHash<unsigned int, QString> BrumaloggerInterface::*;
    friend Member memberOf(Texts);
};
template struct PrivateMember<Texts, &BrumaloggerInterface::texts>;
