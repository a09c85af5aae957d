// Looks at whatever dialog opens.

#include "windowinspector.h"

#include "support/nextchance.h"
#include "support/roomcheck.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QMessageBox>
#include <QProgressDialog>
#include <QScreen>
#include <QWindow>

namespace {

constexpr QSize smallScreen(1366, 768);

/// The form's own height is more than a small screen has; what counts is what the window can be made.
QSize leastSize(const QWidget& window)
{
    return qobject_cast<const QDialog*>(&window) ? window.size() : window.minimumSizeHint();
}

void agree(QMessageBox* box)
{
    for (const QMessageBox::StandardButton answer : {QMessageBox::Ok, QMessageBox::Yes}) {
        if (box->button(answer))
            box->button(answer)->click();
    }
}

} // namespace

WindowInspector::WindowInspector()
{
    QCoreApplication::instance()->installEventFilter(this);
}

void WindowInspector::inspect(const QWidget& window)
{
    const QString name = QStringLiteral("%1 \"%2\": ")
                             .arg(QLatin1String(window.metaObject()->className()), window.windowTitle());
    seen << window.windowTitle();
    for (const QString& problem : roomProblems(window))
        found << name + problem;
    const QSize least = leastSize(window);
    if (window.font().pointSize() <= 11 &&
        (least.width() > smallScreen.width() || least.height() > smallScreen.height()))
        found << name + QStringLiteral("takes %1x%2").arg(least.width()).arg(least.height());
}

void WindowInspector::inspectGrown(QWidget* window)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const QSize needed = window->minimumSizeHint();
    const QSize possible = needed.boundedTo(window->screen()->availableSize());
    if (window->size() != window->size().expandedTo(possible))
        found << QStringLiteral("%1 stayed at %2x%3 and needs %4x%5")
                     .arg(window->windowTitle())
                     .arg(window->width())
                     .arg(window->height())
                     .arg(needed.width())
                     .arg(needed.height());
    const QSize size = window->size();
    window->resize(size.expandedTo(needed));
    QCoreApplication::processEvents();
    inspect(*window);
    window->resize(size);
}

bool WindowInspector::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog && event->type() == QEvent::Show)
        atNextChance(dialog, [this, dialog] { visit(dialog); });
    return QObject::eventFilter(watched, event);
}

// A dialog that asks the device first is on the screen only when it has its values. Boxes and the progress
// dialog may be gone by then, and have all their texts before.
void WindowInspector::visit(QDialog* dialog)
{
    const bool isProgress = qobject_cast<QProgressDialog*>(dialog);
    auto* box = qobject_cast<QMessageBox*>(dialog);
    if (!dialog->isVisible())
        return;
    if (!box && !isProgress && !dialog->windowHandle()->isExposed()) {
        atNextChance(dialog, [this, dialog] { visit(dialog); });
        return;
    }
    inspect(*dialog);
    if (isProgress)
        return;
    if (actions.contains(dialog->windowTitle()))
        actions.value(dialog->windowTitle())(dialog);
    else if (box)
        agree(box);
    else
        dialog->reject();
}
