#pragma once

#include "dialogs/advancedoptionsdialog.h"
#include "support/child.h"
#include "support/dialogrobot.h"
#include "support/loglines.h"

#include <QAbstractButton>
#include <QDateTime>
#include <QLineEdit>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>

/// A dialog of advanced options over a window, with a robot for its boxes. Its widgets go by their object
/// names.
class AdvancedDesk
{
public:
    AdvancedDesk();

    template<typename Widget>
    Widget* find(const char* name) const
    {
        return child<Widget>(dialog, name);
    }
    QAbstractButton* button(const char* name) const { return find<QAbstractButton>(name); }
    bool isChecked(const char* name) const { return button(name)->isChecked(); }
    bool isEnabled(const char* name) const { return find<QWidget>(name)->isEnabled(); }
    void check(const char* name, bool checked = true) const { button(name)->setChecked(checked); }
    QLineEdit* passwordField() const { return find<QLineEdit>("linePassw"); }

    /// The dialog's own stored dates, or an invalid one when they are off.
    QDateTime startDate() const;
    QDateTime stopDate() const;

    /// Shows the dialog without waiting for its end.
    void open();
    /// True if accepting closed the open dialog.
    bool accept();
    /// Opens the dialog and accepts what it shows, which has to succeed.
    void openAndAccept();

    QWidget window;
    AdvancedOptionsDialog dialog;
    DialogRobot robot{"AdvancedOptionsDialog"};
};

/// Does @p action with a plain dialog that opens, once it is open. A dialog that is still open then is
/// cancelled, so that nothing hangs.
class DialogHand : public QObject
{
    Q_OBJECT

public:
    explicit DialogHand(std::function<void(QDialog*)> action);
    int dialogsSeen() const { return seen; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void(QDialog*)> action;
    int seen = 0;
};

/// Sets the computer's clock to @p moment, from where it runs slowly: a few milliseconds within a test.
void holdClock(const QDateTime& moment);

/// What the program logged; the platform without a screen has something to say, too.
QStringList programLines(const LogLines& log);

/// The visible widgets in @p window that have less room than they need.
QStringList cutWidgets(const QWidget& window);
