#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QProgressDialog;

/// Takes down every progress dialog that is shown while it lives: what it looks like and the values of its
/// bar.
class ProgressWatch : public QObject
{
    Q_OBJECT

public:
    struct Dialog
    {
        QString label;
        QString title;
        QString button;
        int minimum;
        int maximum;
        Qt::WindowModality modality;
        QList<int> values;
    };

    explicit ProgressWatch(QObject* parent = nullptr);

    /// The dialogs in the order of their showing.
    const QList<Dialog>& dialogs() const { return seen; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void note(const QProgressDialog* dialog);

    QList<Dialog> seen;
};
