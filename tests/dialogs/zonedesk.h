#pragma once

#include "dialogs/timezonedialog.h"
#include "support/dialogrobot.h"
#include "time/timemanager.h"

#include <QComboBox>
#include <QDateTime>
#include <QSharedPointer>
#include <QString>
#include <QWidget>

/// The moment at which the clock of a ZoneDesk stands: 12:00:00 on the 25th of September 2024, UTC.
QDateTime deskTime();
/// As the dialog shows it.
QString shown(const QDateTime& time);

/// A test's data with the column "offset": a row for each zone, by its name.
void addZoneRows();

/// A Time Zone Editor over a window, the time manager that it looks at, and a robot for its boxes. The
/// computer's clock stands at deskTime(). Widgets go by their object names.
class ZoneDesk
{
public:
    ZoneDesk();

    template<typename Widget>
    Widget* find(const char* name) const
    {
        auto* widget = dialog.findChild<Widget*>(QLatin1String(name));
        if (!widget)
            qFatal("no widget named %s", name);
        return widget;
    }
    QString text(const char* labelName) const;
    QComboBox* combo() const { return find<QComboBox>("comboTimezone"); }

    /// A server tells that it is @p time.
    void tellTime(const QDateTime& time) const;
    /// The logger's clock shows deskTime() and @p seconds.
    void setDevice(int seconds) { dialog.setDeviceTime(deskTime().addSecs(seconds)); }
    /// Shows the dialog without waiting for its end.
    void open();
    /// The box that follows OK.
    void expectConfirmation(QMessageBox::StandardButton answer);

    struct Clock
    {
        Clock();
    };

    Clock clock;
    QSharedPointer<TimeManager> manager;
    QWidget window;
    TimeZoneDialog dialog;
    DialogRobot robot{"TimeZoneDialog"};
};
