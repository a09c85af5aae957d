// Looks at progress dialogs as they appear.

#include "progresswatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>

ProgressWatch::ProgressWatch(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool ProgressWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        if (const auto* dialog = qobject_cast<QProgressDialog*>(watched))
            note(dialog);
    }
    return QObject::eventFilter(watched, event);
}

void ProgressWatch::note(const QProgressDialog* dialog)
{
    const int index = seen.size();
    seen.append({dialog->labelText(),
                 dialog->windowTitle(),
                 dialog->findChild<QPushButton*>()->text(),
                 dialog->minimum(),
                 dialog->maximum(),
                 dialog->windowModality(),
                 {}});
    connect(dialog->findChild<QProgressBar*>(), &QProgressBar::valueChanged, this,
            [this, index](int value) { seen[index].values << value; });
}
