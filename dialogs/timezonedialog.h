#pragma once

#include "time/timekeeper.h"

#include <QDialog>
#include <QSharedPointer>
#include <QString>
#include <QTimer>

class TimeManager;
struct TimeZoneMatch;

namespace Ui {
class TimeZoneDialog;
}

/// The choice of a time zone for the logger's clock, beside the reference time, the computer's zone and what
/// the logger's clock shows now and would show in that zone.
///
/// Each showing preselects the zone of the logger's clock. The dialog sends nothing to the logger: after an
/// exec() that was accepted, take chosenName() and chosenOffset().
class TimeZoneDialog : public QDialog
{
    Q_OBJECT

public:
    explicit TimeZoneDialog(QWidget* parent);
    ~TimeZoneDialog() override;

    /// Offers the zones of @p manager and follows its time from now on. Without a manager the dialog shows
    /// and offers nothing.
    void setTimeManager(QSharedPointer<TimeManager> manager);
    /// What the logger's clock shows, as its figures in UTC; it runs on from there.
    void setDeviceTime(const QDateTime& time);
    /// The time against which the computer's zone is guessed.
    void setReferenceTime(const QDateTime& time);

    /// Of the chosen zone; seconds east of UTC.
    int chosenOffset() const;
    /// Of the chosen zone, as TimeManager::timeZones() calls it.
    QString chosenName() const;

    /// Accepting asks for a confirmation first, and without it the dialog stays open.
    void done(int result) override;

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void plUpdateDisplay();
    void plOnComboChange(int index);

private:
    void plShowSource();
    void plGuessComputerZone();
    void plGuessDeviceZone();
    void plFitSize();
    bool plConfirm();
    TimeZoneMatch plChosenZone() const;

    Ui::TimeZoneDialog* ui;
    QTimer displayTimer;
    TimeKeeper referenceClock;
    TimeKeeper deviceClock;
    TimeKeeper newDeviceClock;
    bool serverSource = true; ///< the reference time comes from a server, or is meant to
    QString serverName;
    QString displayFormat = QStringLiteral("hh:mm:ss dd/MMMM/yyyy");
    QString localZoneSuffix;
    QString deviceZoneSuffix;
    QSharedPointer<TimeManager> timeManager;
    int chosenOffsetSecs = 0;
};
