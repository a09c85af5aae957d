#pragma once

#include "walk.h"

#include <functional>

class QDialog;

/// Takes the pictures of the guide, in the language of the configuration.
class PictureWalk : public Walk
{
protected:
    bool doJob() override;

private:
    bool takePanels();
    bool takeSettings();
    bool takeZoneEditor();
    bool takeTexts();
    /// Does @p open, which opens @p dialog, and once that is on the screen @p take, and closes it.
    static bool takeDialog(QDialog* dialog, const std::function<void()>& open,
                           const std::function<bool()>& take);
};
