// A window that was minimised and comes back.

#include "support/minimised.h"

#include <QShowEvent>
#include <QTest>

void bringBack(QWidget& window)
{
    QShowEvent broughtBack;
    QSpontaneKeyEvent::setSpontaneous(&broughtBack);
    QCoreApplication::instance()->notify(&window, &broughtBack); // sending it would make it ours
}
