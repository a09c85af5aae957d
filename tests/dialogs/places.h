#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

// Where the widgets of a dialog that is on the screen stand. They go by their object names, in a line with
// blanks between.

/// The first of @p names that doesn't begin below the one before it; empty if all do.
QString firstNotBelow(const QWidget& dialog, const char* names);
/// The first of @p names that isn't to the right of the one before it, in the same row; empty if all are.
QString firstNotBeside(const QWidget& dialog, const char* names);
