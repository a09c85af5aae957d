#pragma once

#include <QLatin1String>
#include <QWidget>

/// True if @p object is part of a dialog that belongs to @p window.
bool isInADialogOf(const QWidget& window, const QObject* object);

/// The object of that name in @p window, its dialogs apart; without one the test program ends.
template<typename Object>
Object* child(const QWidget& window, const char* name)
{
    for (auto* found : window.findChildren<Object*>(QLatin1String(name))) {
        if (!isInADialogOf(window, found))
            return found;
    }
    qFatal("nothing named %s", name);
    return nullptr;
}
