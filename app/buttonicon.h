#pragma once

#include <QIcon>
#include <QSize>

class QString;

/// The button image at @p path, kept at twice @p size, which is sharp on dense screens too. The images are
/// large; keeping them whole, as an icon read from a file does, would cost the start time and megabytes.
QIcon buttonIcon(const QString& path, QSize size);
