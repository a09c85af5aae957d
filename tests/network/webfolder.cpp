// What the tests' web server serves.

#include "network/webfolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

WebFolder::WebFolder()
    : root(qEnvironmentVariable("WEB_FOLDER"))
{
    if (root.isEmpty())
        qFatal("no web server; run this by tests/network/with-web-server");
    clear();
}

WebFolder::~WebFolder()
{
    clear();
}

void WebFolder::put(const QString& path, const QByteArray& body) const
{
    QFile file(root + QLatin1Char('/') + path);
    if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(body) != body.size())
        qFatal("%s could not be written", qPrintable(file.fileName()));
}

void WebFolder::clear() const
{
    if (!QDir(root).removeRecursively() || !QDir().mkpath(root))
        qFatal("%s could not be emptied", qPrintable(root));
}
