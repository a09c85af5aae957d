// Types a name into file dialogs as an operator would.

#include "support/filedialoghand.h"

#include "support/nextchance.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>

#include <utility>

FileDialogHand::FileDialogHand(QString path)
    : path(std::move(path))
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool FileDialogHand::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = qobject_cast<QFileDialog*>(watched);
    if (dialog && event->type() == QEvent::Show)
        atNextChance(dialog, [this, dialog] { answer(dialog); });
    return QObject::eventFilter(watched, event);
}

void FileDialogHand::answer(QFileDialog* dialog)
{
    ++showings;
    title = dialog->windowTitle();
    directory = dialog->directory().path();
    filters = dialog->nameFilters();
    mode = dialog->acceptMode();
    parent = dialog->parentWidget();
    emit sOpened(dialog);
    if (!dialog->isVisible())
        return;
    if (path.isEmpty()) {
        dialog->reject();
        return;
    }
    dialog->findChild<QLineEdit*>()->setText(path);
    QMetaObject::invokeMethod(dialog, "accept");
}
