// A dialog's width by its title.

#include "dialogs/titleroom.h"

#include <QApplication>
#include <QDialog>
#include <QFontMetrics>

#include <algorithm>

namespace {

constexpr int frameAndButtons = 50; // pixels, as in the toolkit's own message boxes

} // namespace

// A smallest width that is set stands instead of that of the layout, which therefore is part of it.
void makeRoomForTitle(QDialog* dialog)
{
    dialog->ensurePolished();
    const QFontMetrics font(QApplication::font("QMdiSubWindowTitleBar"));
    const int title = font.horizontalAdvance(dialog->windowTitle()) + frameAndButtons;
    dialog->setMinimumWidth(std::max(title, dialog->minimumSizeHint().width()));
}
