#pragma once

#include <QByteArray>
#include <QString>

/// The folder that the tests' web server serves, as with-web-server has told; empty when this begins and when
/// it ends.
///
/// A file "error-404.html" is what comes in place of a file that isn't there, and a file "index" is what
/// comes for the folder that it is in. Below "/moved" is what is below "/" again, by a redirect.
class WebFolder
{
public:
    WebFolder();
    ~WebFolder();
    WebFolder(const WebFolder&) = delete;
    WebFolder& operator=(const WebFolder&) = delete;

    /// Has the server answer with @p body at @p path, as "one/two".
    void put(const QString& path, const QByteArray& body) const;

private:
    void clear() const;

    QString root;
};

/// Where the program looks for the version file.
const QString versionFilePath = QStringLiteral("redir/software/versions/brumaloggerconftool");
