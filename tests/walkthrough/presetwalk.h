#pragma once

#include "walk.h"

/// A logger is set up and its setup saved to a preset file.
class SavingWalk : public Walk
{
protected:
    bool doJob() override;
};

/// A logger is prepared like the one before, from the preset file that its setup was saved to.
class ApplyingWalk : public Walk
{
protected:
    bool doJob() override;
};
