// The images of the buttons, cut down to what a button shows.

#include "app/buttonicon.h"

#include <QImage>
#include <QPixmap>

namespace {

/// The images are first thinned out to this many times the size: averaging all of their pixels would cost as
/// much as unpacking them.
constexpr int oversampling = 6;

} // namespace

QIcon buttonIcon(const QString& path, QSize size)
{
    // Naming the format spares the toolkit a look through its image plug-ins.
    const QImage image(path, "PNG");
    const QImage coarse = image.scaled((size * oversampling).boundedTo(image.size()), Qt::KeepAspectRatio);
    return {QPixmap::fromImage(coarse.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation))};
}
