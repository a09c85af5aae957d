// A dialog of advanced options and the hands that use it.

#include "advanceddesk.h"

#include "support/nextchance.h"
#include "support/testclock.h"

#include <QCoreApplication>
#include <QEvent>
#include <QRegularExpression>
#include <QTest>

#include <utility>

AdvancedDesk::AdvancedDesk()
    : dialog(&window)
{
    window.resize(900, 800);
}

QDateTime AdvancedDesk::startDate() const
{
    bool enabled = false;
    QDateTime date;
    dialog.lStartDate(&enabled, &date);
    return date;
}

QDateTime AdvancedDesk::stopDate() const
{
    bool enabled = false;
    QDateTime date;
    dialog.lStopDate(&enabled, &date);
    return date;
}

void AdvancedDesk::open()
{
    dialog.open();
    if (!QTest::qWaitForWindowExposed(&dialog))
        qFatal("the dialog was never exposed");
}

bool AdvancedDesk::accept()
{
    dialog.accept();
    return !dialog.isVisible();
}

void AdvancedDesk::openAndAccept()
{
    open();
    if (!accept())
        qFatal("the dialog refused what it showed");
}

DialogHand::DialogHand(std::function<void(QDialog*)> action)
    : action(std::move(action))
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool DialogHand::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog && event->type() == QEvent::Show && !qobject_cast<QMessageBox*>(watched)) {
        seen++;
        atNextChance(dialog, [this, dialog] {
            action(dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
    }
    return QObject::eventFilter(watched, event);
}

void holdClock(const QDateTime& moment)
{
    TestClock::ignoreStalls();
    TestClock::set(moment.toMSecsSinceEpoch());
}

QStringList programLines(const LogLines& log)
{
    return log.all().filter(QRegularExpression(QStringLiteral("^debug: ")));
}

QStringList cutWidgets(const QWidget& window)
{
    QStringList cut;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const QSize least = widget->minimumSizeHint();
        const int height =
            widget->hasHeightForWidth() ? widget->heightForWidth(widget->width()) : least.height();
        if (widget->isVisibleTo(&window) &&
            ((!widget->hasHeightForWidth() && widget->width() < least.width()) || widget->height() < height))
            cut << widget->metaObject()->className() + QStringLiteral(" ") + widget->objectName();
    }
    return cut;
}
