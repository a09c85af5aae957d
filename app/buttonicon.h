#pragma once

#include <QIcon>
#include <QSize>

class QString;

/// The button image at @p path for buttons that show it in @p size. The image is large; unpacking it where
/// the small one beside it will do would cost the start time and memory.
QIcon buttonIcon(const QString& path, QSize size);
