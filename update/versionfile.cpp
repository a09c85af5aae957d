// The maker's list of versions. It comes from a network, so it can be anything at all.

#include "update/versionfile.h"

#include <QStringList>
#include <QTextStream>

namespace {

const QLatin1String platform("win32");
constexpr int partsOfVersion = 3;

/// The last address for this platform. An address has colons of its own.
QString addressIn(const QStringList& tokens)
{
    QString url;
    for (const QString& token : tokens) {
        QStringList parts = token.split(QLatin1Char(':'));
        if (parts.size() > 1 && parts.takeFirst() == platform)
            url = parts.join(QLatin1Char(':'));
    }
    return url;
}

/// Number and address come from the newest version; those below it can only make the update mandatory.
void take(const QStringList& tokens, VersionNews* news)
{
    if (!news->found) {
        news->version = tokens.constFirst();
        if (tokens.size() > 1)
            news->url = addressIn(tokens);
    }
    news->found = true;
    news->mandatory |= tokens.contains(QLatin1String("mandatory"));
}

} // namespace

qint64 versionNumberOf(qint64 major, qint64 minor, qint64 patch)
{
    return major * 1000000 + minor * 1000 + patch;
}

VersionNews readVersionFile(const QByteArray& file, qint64 versionNumber)
{
    VersionNews news;
    QTextStream stream(file);
    while (!stream.atEnd()) {
        const QStringList tokens = stream.readLine().split(QLatin1Char(' '));
        if (tokens.constFirst().contains(QLatin1Char('#')))
            continue;
        const QStringList parts = tokens.constFirst().split(QLatin1Char('.'));
        if (parts.size() != partsOfVersion)
            return {};
        // In 64 bits, where no file can make it overflow.
        if (versionNumberOf(parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt()) <= versionNumber)
            break;
        take(tokens, &news);
    }
    return news;
}
