// The question for a newer version, and its answer.

#include "update/updatechecker.h"

#include "update/filedownloader.h"
#include "update/makerweb.h"
#include "update/versionfile.h"

#include <QCoreApplication>
#include <QDebug>

namespace {

/// As long as it lives the toolkit finds no further plug-ins.
class WithoutPlugins
{
public:
    WithoutPlugins() { QCoreApplication::setLibraryPaths({}); }
    ~WithoutPlugins() { QCoreApplication::setLibraryPaths(paths); }
    Q_DISABLE_COPY_MOVE(WithoutPlugins)

private:
    const QStringList paths = QCoreApplication::libraryPaths();
};

} // namespace

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
    // The first network access manager would load bearer plug-ins, which list this computer's networks, also
    // over the system bus. One file needs none of that, and the window's first showing waits for it.
    const WithoutPlugins bearerless;
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
