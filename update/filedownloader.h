#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>

class QNetworkReply;
class QUrl;

/// Fetches one file over HTTP, following redirects unless they lead from HTTPS to HTTP.
///
/// Nothing goes wrong here: whatever body came is the file, also that of an error page or one cut off, and it
/// is empty if none came. There is no time-out; a server that never answers brings no signal.
class FileDownloader : public QObject
{
    Q_OBJECT

public:
    /// Sends the request at once; downloaded() comes from the event loop.
    FileDownloader(const QUrl& url, QObject* parent);

    /// The body; empty before downloaded().
    QByteArray downloadedData() const;

signals:
    /// The answer is there, or there will be none. Emitted once.
    void downloaded();

private slots:
    void fileDownloaded(QNetworkReply* pReply);

private:
    QNetworkAccessManager networkManager;
    QByteArray downloadedBytes;
};
