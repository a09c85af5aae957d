#pragma once

class QWidget;

/// @p window comes back on the screen after it was minimised, which is told by an event of the window system
/// without a new opening.
void bringBack(QWidget& window);
