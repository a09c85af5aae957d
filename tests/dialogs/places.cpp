// The order of a dialog's widgets on the screen.

#include "places.h"

#include "support/child.h"

#include <functional>

namespace {

using Rule = std::function<bool(const QRect& before, const QRect& place)>;

QRect placeOf(const QWidget& dialog, const QString& name)
{
    const auto* widget = child<QWidget>(dialog, qPrintable(name));
    return {widget->mapTo(&dialog, QPoint(0, 0)), widget->size()};
}

QString firstAgainst(const Rule& rule, const QWidget& dialog, const char* names)
{
    const QStringList all = QString::fromLatin1(names).split(QLatin1Char(' '));
    for (int i = 1; i < all.size(); i++) {
        if (!rule(placeOf(dialog, all.at(i - 1)), placeOf(dialog, all.at(i))))
            return all.at(i);
    }
    return {};
}

} // namespace

QString firstNotBelow(const QWidget& dialog, const char* names)
{
    const Rule below = [](const QRect& before, const QRect& place) { return place.top() > before.top(); };
    return firstAgainst(below, dialog, names);
}

QString firstNotBeside(const QWidget& dialog, const char* names)
{
    const Rule beside = [](const QRect& before, const QRect& place) {
        return place.left() > before.right() && qAbs(place.center().y() - before.center().y()) <= 1;
    };
    return firstAgainst(beside, dialog, names);
}
