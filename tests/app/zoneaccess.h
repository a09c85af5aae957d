#pragma once

#include "app/mainwindow.h"

// Adopting a zone is private to the window, and so is the name of the adopted one. An explicit instantiation
// may name private members: that is the one place where the language does not look at access, and the window
// needs neither a friend nor a public operation for the tests' sake.

using SetZoneMember = void (MainWindow::*)(const QString& name);
using ZoneNameMember = QString MainWindow::*;

SetZoneMember setZoneMember();
ZoneNameMember zoneNameMember();

template<SetZoneMember setMember, ZoneNameMember nameMember>
struct ZoneAccess
{
    friend SetZoneMember setZoneMember() { return setMember; }
    friend ZoneNameMember zoneNameMember() { return nameMember; }
};

template struct ZoneAccess<&MainWindow::plSetTimeZone, &MainWindow::currentTimeZoneName>;

inline void setZone(MainWindow& window, const QString& name)
{
    (window.*setZoneMember())(name);
}

inline QString currentZone(const MainWindow& window)
{
    return window.*zoneNameMember();
}
