#pragma once

#include "app/mainwindow.h"
#include "support/privatemember.h"

// Adopting a zone is private to the window, and so is the name of the adopted one.

struct SetTimeZone
{
    using Member = void (MainWindow::*)(const QString& name);
    friend Member memberOf(SetTimeZone);
};
template struct PrivateMember<SetTimeZone, &MainWindow::plSetTimeZone>;

struct CurrentTimeZoneName
{
    using Member = QString MainWindow::*;
    friend Member memberOf(CurrentTimeZoneName);
};
template struct PrivateMember<CurrentTimeZoneName, &MainWindow::currentTimeZoneName>;

inline void setZone(MainWindow& window, const QString& name)
{
    (window.*memberOf(SetTimeZone()))(name);
}

inline QString currentZone(const MainWindow& window)
{
    return window.*memberOf(CurrentTimeZoneName());
}
