#pragma once

#include "device/brumaloggerinterface.h"

// The link keeps what it read also where no operation hands it out again. As in exchangeaccess.h, an explicit
// instantiation leads to these fields.

using PoliciesField = int BrumaloggerInterface::*;
using SerialNumberField = QString BrumaloggerInterface::*;
using TextsField = QHash<unsigned int, QString> BrumaloggerInterface::*;

PoliciesField policiesField();
SerialNumberField serialNumberField();
TextsField textsField();

template<PoliciesField policies, SerialNumberField serialNumber, TextsField texts>
struct StoredFields
{
    friend PoliciesField policiesField() { return policies; }
    friend SerialNumberField serialNumberField() { return serialNumber; }
    friend TextsField textsField() { return texts; }
};

template struct StoredFields<&BrumaloggerInterface::policies, &BrumaloggerInterface::serialNumber,
                             &BrumaloggerInterface::texts>;
