// The images of the buttons, cut down to what a button shows.

#include "app/buttonicon.h"

#include <QImage>
#include <QPixmap>

namespace {

constexpr int density = 2;
/// Coarse reduction first: averaging all of a large image costs more than unpacking it.
constexpr int oversampling = 3;

} // namespace

QIcon buttonIcon(const QString& path, QSize size)
{
    const QSize kept = size * density;
    // Naming the format spares the toolkit a look through its image plug-ins.
    const QImage coarse = QImage(path, "PNG").scaled(kept * oversampling, Qt::KeepAspectRatio);
    return {QPixmap::fromImage(coarse.scaled(kept, Qt::KeepAspectRatio, Qt::SmoothTransformation))};
}
