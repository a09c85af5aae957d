#pragma once

#include <QDateTime>
#include <QObject>
#include <QTimer>

/// A clock that runs at a fixed offset from the computer's clock and announces itself once a second.
///
/// A device's wall clock is held as a date-time of UTC spec whose fields are the figures on that clock, so a
/// device time taken with timeUtc() means those figures and not true UTC.
class TimeKeeper : public QObject
{
    Q_OBJECT

public:
    /// A running clock that now shows @p start.
    TimeKeeper(const QDateTime& start, QObject* parent);
    /// A running clock that shows the computer's time.
    explicit TimeKeeper(QObject* parent = nullptr);

    /// Makes the clock show @p time from now on. Always starts the tick, also of a stopped clock, and
    /// restarts its phase. An invalid @p time is not guarded against.
    void setTime(const QDateTime& time);
    /// Starts or stops the tick; a stopped clock keeps its last value.
    void setRunning(bool run);
    bool isRunning() const;

    /// The value of the last tick or setTime(), in whatever time spec it has.
    QDateTime time() const;
    /// The same instant in UTC.
    QDateTime timeUtc() const;

signals:
    /// Once a second while running, with the new value.
    void sUpdate(QDateTime time);

private slots:
    void plUpdate();

private:
    QTimer timer;
    QDateTime currentTime;
    qint64 offsetMsecs = 0;
};
