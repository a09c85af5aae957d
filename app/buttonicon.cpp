// The images of the buttons, each of which the program carries in two sizes.

#include "app/buttonicon.h"

#include <QPixmap>
#include <QString>

namespace {

constexpr int smallWidth = 48;

/// The image of smallWidth that goes with the one at @p path.
QString smallImage(const QString& path)
{
    const int suffix = path.lastIndexOf(QLatin1Char('.'));
    return path.left(suffix) + QLatin1Char('_') + QString::number(smallWidth) + path.mid(suffix);
}

} // namespace

QIcon buttonIcon(const QString& path, QSize size)
{
    const bool large = qMax(size.width(), size.height()) > smallWidth;
    // Naming the format spares the toolkit a look through its image plug-ins.
    return {QPixmap(large ? path : smallImage(path), "PNG")};
}
