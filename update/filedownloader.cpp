// One HTTP GET.

#include "update/filedownloader.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

FileDownloader::FileDownloader(const QUrl& url, QObject* parent)
    : QObject(parent)
{
    connect(&networkManager, &QNetworkAccessManager::finished, this, &FileDownloader::fileDownloaded);
    QNetworkRequest request(url);
    request.setRawHeader("User-Agent", "Mozilla Firefox");
    // Deprecated in favour of a choice of policies; this stands for the one of no less safety.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    request.setAttribute(QNetworkRequest::FollowRedirectsAttribute, true);
    QT_WARNING_POP
    networkManager.get(request);
}

QByteArray FileDownloader::downloadedData() const
{
    return downloadedBytes;
}

// Neither error nor status is looked at.
void FileDownloader::fileDownloaded(QNetworkReply* pReply)
{
    downloadedBytes = pReply->readAll();
    pReply->deleteLater();
    emit downloaded();
}
