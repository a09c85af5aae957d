#pragma once

#include <QFileDialog>
#include <QObject>
#include <QStringList>

/// Answers the toolkit's own file dialogs with @p path, or cancels them for an empty one, and keeps what the
/// last one was like.
class FileDialogHand : public QObject
{
    Q_OBJECT

public:
    explicit FileDialogHand(QString path);

    /// The next answers.
    void setPath(const QString& newPath) { path = newPath; }

    int showings = 0;
    QString title;
    QString directory;
    QStringList filters;
    QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;
    const QWidget* parent = nullptr;

signals:
    /// A dialog is open, just before it is answered; one that is gone by the end of this needs no answer.
    void sOpened(QFileDialog* dialog);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(QFileDialog* dialog);

    QString path;
};
