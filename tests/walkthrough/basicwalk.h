#pragma once

#include "walk.h"

/// The main job: a logger is set up for a shipment and started.
class BasicWalk : public Walk
{
protected:
    bool doJob() override;

private:
    void edit();
    void setValue(const char* spinBox, const QString& value);
};
