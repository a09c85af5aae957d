// The question for a newer version, and its answer.

#include "update/updatechecker.h"

#include "update/filedownloader.h"
#include "update/makerweb.h"
#include "update/versionfile.h"

#include <QDebug>

UpdateChecker::UpdateChecker(int major, int minor, int patch, QObject* parent)
    : QObject(parent)
    , major(major)
    , minor(minor)
    , patch(patch)
    , versionNumber(static_cast<int>(versionNumberOf(this->major, this->minor, this->patch)))
{
}

void UpdateChecker::check()
{
    downloader = new FileDownloader(makerAddress("/redir/software/versions/brumaloggerconftool"), this);
    connect(downloader, &FileDownloader::downloaded, this, &UpdateChecker::lParseFile);
}

void UpdateChecker::lParseFile()
{
    if (!downloader)
        return;
    const VersionNews news = readVersionFile(downloader->downloadedData(), versionNumber);
    if (!news.url.isEmpty())
        qInfo() << "Update URL: " << news.url;
    if (news.mandatory) {
        qInfo() << "Mandatory update to version " << news.version;
        emit sUpdateMandatory(news.version, news.url);
    } else if (news.found) {
        qInfo() << "Update available to version " << news.version;
        emit sUpdateAvailable(news.version, news.url);
    }
}
