// The widgets of a window, found as an operator finds them by their place.

#include "support/child.h"

#include <QDialog>

bool isInADialogOf(const QWidget& window, const QObject* object)
{
    for (; object && object != &window; object = object->parent()) {
        if (qobject_cast<const QDialog*>(object))
            return true;
    }
    return false;
}
