#pragma once

#include "walk.h"

#include <QStringList>

class AdvancedOptionsDialog;

/// A locked logger with extended firmware is unlocked, its security and its automatic dates are edited, and
/// what was written comes back in a read.
class SecureWalk : public Walk
{
protected:
    bool doJob() override;

private:
    bool unlock();
    bool editOptions();
    void edit(AdvancedOptionsDialog* dialog);
    /// Chooses @p date in the picker behind @p button.
    void pick(AdvancedOptionsDialog* dialog, const char* button, const QDateTime& date);
    bool comparedAfterRead();
    /// "field: value" for all that a logger gives back.
    QStringList fields() const;
};
