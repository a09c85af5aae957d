#pragma once

#include "app/mainwindow.h"

// Adopting a zone is private to the window. An explicit instantiation may name private members: that is the
// one place where the language does not look at access, and the window needs neither a friend nor a public
// operation for the tests' sake.

using SetZoneMember = void (MainWindow::*)(const QString& name);

SetZoneMember setZoneMember();

template<SetZoneMember member>
struct ZoneAccess
{
    friend SetZoneMember setZoneMember() { return member; }
};

template struct ZoneAccess<&MainWindow::plSetTimeZone>;

inline void setZone(MainWindow& window, const QString& name)
{
    (window.*setZoneMember())(name);
}
