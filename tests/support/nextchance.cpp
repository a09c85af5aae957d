// Puts off what has to wait for an event loop that isn't running yet.

#include "support/nextchance.h"

#include <QTimer>

void atNextChance(QObject* context, const std::function<void()>& action)
{
    auto* timer = new QTimer(context);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, timer, action);
    timer->start(0);
}
