#pragma once

#include <functional>

class QObject;

/// Does @p action once the event loop runs again, unless @p context is gone by then.
void atNextChance(QObject* context, const std::function<void()>& action);
