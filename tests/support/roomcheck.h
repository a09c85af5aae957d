#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

/// What an operator can't read or reach in a window that is on show, a line each: widgets with less room than
/// their texts take, widgets on top of each other or beyond the edge of what they are in, pages wider than
/// their view, a title wider than its window. A list has to have room for its longest entry. The lines name
/// widget, text, and the pixels wanted and given.
QStringList roomProblems(const QWidget& window);
