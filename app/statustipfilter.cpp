// Status tips, kept away from the status bar.

#include "app/statustipfilter.h"

#include <QEvent>

bool StatusTipFilter::eventFilter(QObject* watched, QEvent* event)
{
    return event->type() == QEvent::StatusTip || QObject::eventFilter(watched, event);
}
