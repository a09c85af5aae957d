#pragma once

#include "app/mainwindow.h"
#include "time/timemanager.h"

// The ten seconds that a pool has to answer can't be waited for at every exchange of a test. As in
// zoneaccess.h, an explicit instantiation leads to the timers.

using TimeManagerMember = QSharedPointer<TimeManager> MainWindow::*;
using PoolWorkersMember = QList<TimePoolWorker*> TimeManager::*;
using TimeoutTimerMember = QTimer TimePoolWorker::*;

TimeManagerMember timeManagerMember();
PoolWorkersMember poolWorkersMember();
TimeoutTimerMember timeoutTimerMember();

template<TimeManagerMember managerMember, PoolWorkersMember workersMember, TimeoutTimerMember timerMember>
struct PoolAccess
{
    friend TimeManagerMember timeManagerMember() { return managerMember; }
    friend PoolWorkersMember poolWorkersMember() { return workersMember; }
    friend TimeoutTimerMember timeoutTimerMember() { return timerMember; }
};

template struct PoolAccess<&MainWindow::timeManager, &TimeManager::poolWorkers,
                           &TimePoolWorker::timeoutTimer>;

/// The time of each server of the pool that has not answered yet is over at the next turn of the event loop.
inline void endPoolPatience(MainWindow& window)
{
    const QSharedPointer<TimeManager>& manager = window.*timeManagerMember();
    for (TimePoolWorker* worker : (*manager).*poolWorkersMember()) {
        QTimer& timer = worker->*timeoutTimerMember();
        if (timer.isActive())
            timer.start(0);
    }
}
