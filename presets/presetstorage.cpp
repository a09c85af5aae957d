// The table's file: version line, body and digest, in the versions that are read and in the one that is
// written.

#include "presets/presetstorage.h"

#include "presets/chaincipher.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDebug>
#include <QFile>
#include <QLocale>
#include <QTextStream>

namespace {

// The key of all preset and configuration files, in two halves that the constructor joins. Builds that are to
// share files must keep it: with another one, every file that users have is refused.
constexpr quint32 fileKeyLow = 0x5A3C96E1;
constexpr quint32 fileKeyHigh = 0xB7D2084F;

constexpr int majorWritten = 2;
constexpr int minorWritten = 0;

// A file may be one endless line; its parts fail the digest as well as the whole would, and fit into memory.
constexpr int longestLine = 1 << 29;
// All that is saved can be loaded: the body's and the digest's line are read together, and a character of the
// body takes up to three bytes of UTF-8, which are four characters of Base64. The rest is for what the cipher
// adds to a text, the line's end, and the digest with its 20 characters.
constexpr int restOfLine = 128;
constexpr int longestBody = (longestLine - restOfLine) / 4;

const QChar separator = QLatin1Char('=');
const QChar lineFeed = QLatin1Char('\n');

const QString dateMark = QStringLiteral("_gendate_:");
const QString dateFormat = QStringLiteral("mmhhssddMMyyyy");

/// Dated, so that two files of one table differ. Without a "=", so that readers pass it over.
QString dateLine()
{
    // In the C locale: some others have digits of their own.
    return dateMark + QLocale::c().toString(QDateTime::currentDateTime(), dateFormat);
}

/// Lossy, for the raw bytes of the hash are read as text: up to the first zero byte, as UTF-8. Files carry it
/// like that, so it is formed like that in both directions and compared as text.
QString digestText(const QString& body)
{
    const QByteArray hash = QCryptographicHash::hash(body.toUtf8(), QCryptographicHash::Sha1);
    return QString::fromUtf8(hash.constData(), static_cast<int>(qstrnlen(hash.constData(), hash.size())));
}

int endOfLine(const QString& text, int start)
{
    const int found = text.indexOf(lineFeed, start);
    return found < 0 ? text.size() : found;
}

} // namespace

PresetStorage::PresetStorage(QObject* parent)
    : QObject(parent)
    , cipherKey(quint64(fileKeyHigh) << 32 | fileKeyLow)
{
}

bool PresetStorage::contains(const QString& key) const
{
    return table.contains(key);
}

QString PresetStorage::value(const QString& key)
{
    return table.value(key);
}

void PresetStorage::setValue(const QString& key, const QString& value)
{
    table.insert(key, value);
}

bool PresetStorage::load(const QString& path)
{
    QFile device(path);
    if (!device.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    qDebug() << "READING = " << path;
    QTextStream file(&device);
    const QStringList version = file.readLine(longestLine).split(QLatin1Char('.'));
    if (version.size() != 2)
        return false;
    // What isn't a number counts as 0.
    const int major = version.first().toInt();
    const int minor = version.last().toInt();
    qDebug() << "File version " << major << "." << minor;
    if (major == 1 && minor == 0)
        return plLoadPlain(file);
    return major == 2 && minor == 0 && plLoadEnciphered(file);
}

bool PresetStorage::plLoadPlain(QTextStream& file)
{
    table.clear();
    while (!file.atEnd()) {
        const QString line = file.readLine(longestLine);
        plTakeLine(line);
    }
    return true;
}

bool PresetStorage::plLoadEnciphered(QTextStream& file)
{
    // The cipher passes over the carriage returns, which the stream would look for one by one.
    file.device()->setTextModeEnabled(false);
    // Both lines at once: the stream takes as long to look for the end of a line as the cipher does for the
    // line.
    QString lines = file.read(longestLine);
    const int bodyEnd = endOfLine(lines, 0);
    const int digestEnd = endOfLine(lines, bodyEnd + 1);
    const QString digestLine = lines.mid(bodyEnd + 1, digestEnd - bodyEnd - 1);
    lines.truncate(bodyEnd);

    ChainCipher cipher(cipherKey);
    const QString body = cipher.decipherToText(lines);
    const QString digest = cipher.decipherToText(digestLine);
    if (digestText(body) != digest) {
        qWarning() << "Checksum mismatch. Skipping file.";
        return false;
    }
    plTakeBody(body);
    return true;
}

void PresetStorage::plTakeBody(const QString& body)
{
    int start = 0;
    while (start <= body.size()) {
        const int end = endOfLine(body, start);
        plTakeLine(QStringView(body).mid(start, end - start));
        start = end + 1;
    }
}

void PresetStorage::plTakeLine(QStringView line)
{
    const qsizetype keyLength = line.indexOf(separator);
    if (keyLength < 0) {
        qDebug() << "Ignoring line: " << line.toString();
        return;
    }
    // The format has no escape for the separator: those in a value are lost.
    QString value = line.mid(keyLength + 1).toString().remove(separator);
    // Files are in the order of the table, so that nearly every entry belongs at its end.
    table.insert(table.constEnd(), line.left(keyLength).toString(), value);
}

bool PresetStorage::save(const QString& path)
{
    if (plBodyLength() > longestBody)
        return false;
    const QString body = plBody();
    QFile device(path);
    if (!device.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QTextStream file(&device);
    file << majorWritten << "." << minorWritten << lineFeed;
    ChainCipher cipher(cipherKey);
    file << cipher.encipherToText(body) << lineFeed << cipher.encipherToText(digestText(body));
    return true;
}

qint64 PresetStorage::plBodyLength() const
{
    qint64 length = dateMark.size() + dateFormat.size();
    for (auto entry = table.cbegin(); entry != table.cend(); ++entry)
        length += entry.key().size() + entry.value().size() + 2;
    return length;
}

QString PresetStorage::plBody() const
{
    QString body;
    body.reserve(static_cast<int>(plBodyLength()));
    for (auto entry = table.cbegin(); entry != table.cend(); ++entry)
        body.append(entry.key()).append(separator).append(entry.value()).append(lineFeed);
    return body.append(dateLine());
}
