#pragma once

#include "dialogs/settingsdialog.h"
#include "support/child.h"
#include "support/dialogrobot.h"
#include "support/workfolder.h"

#include <QString>
#include <QWidget>

/// A settings dialog over a window of 900 by 800 pixels, in a folder of its own, with a robot for its boxes.
/// Its widgets go by their object names.
class SettingsDesk
{
public:
    explicit SettingsDesk(const Settings& settings = {});

    template<typename Widget>
    Widget* find(const char* name) const
    {
        return child<Widget>(dialog, name);
    }
    bool isChecked(const char* box) const;
    bool isEnabled(const char* widget) const;
    void check(const char* box, bool checked = true) const;
    void choose(const char* combo, int row) const;
    /// All getters of the dialog in one line.
    QString summary() const;
    /// The same of a dialog that never read a file.
    QString defaults() const;
    /// Shows the dialog without waiting for its end.
    void open();

    WorkFolder folder;
    QWidget window;
    SettingsDialog dialog;
    DialogRobot robot{"SettingsDialog"};
};
