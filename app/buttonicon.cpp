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
    const QImage coarse = QImage(path).scaled(kept * oversampling, Qt::KeepAspectRatio);
    return QIcon(QPixmap::fromImage(coarse.scaled(kept, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}
