#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

/// Stands in for the system's browser while it lives. It takes addresses over HTTP and those without a
/// scheme.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser();
    ~Browser() override;
    QList<QUrl> opened;

public slots:
    void open(const QUrl& url) { opened << url; }
};
