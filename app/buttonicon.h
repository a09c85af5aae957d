#pragma once

#include <QIcon>
#include <QSize>

class QString;

/// The button image at @p path, cut down to @p size. The images are large; keeping them whole, as an icon
/// read from a file does, would cost the start time and megabytes.
QIcon buttonIcon(const QString& path, QSize size);
