// Files of the format, made and read without the product.

#include "presetfiles.h"

#include "presets/presetstorage.h"
#include "support/testclock.h"

#include <QFile>

using namespace ReferenceCipher;

namespace {

/// All of @p bytes, which the toolkit alone would cut at a zero byte and relieve of a byte order mark.
QString textOf(const QByteArray& bytes)
{
    const QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    return bytes.startsWith("\xEF\xBB\xBF") ? QChar(QChar::ByteOrderMark) + text : text;
}

} // namespace

QByteArray PresetFiles::enciphered(const QByteArray& body, const QString& digest)
{
    return "2.0\n" + encipher(fileKey, body, Checksum, 'a').toBase64() + '\n' +
           encipher(fileKey, digest.toUtf8(), Checksum, 'b').toBase64();
}

QByteArray PresetFiles::enciphered(const QByteArray& body)
{
    return enciphered(body, digestText(body));
}

QByteArrayList PresetFiles::deciphered(const QByteArray& file)
{
    QByteArrayList lines = file.split('\n');
    QByteArray body;
    QByteArray digest;
    if (lines.size() != 3 || !decipher(fileKey, QByteArray::fromBase64(lines.at(1)), &body) ||
        !decipher(fileKey, QByteArray::fromBase64(lines.at(2)), &digest))
        return {};
    return {lines.first(), body, digest};
}

PresetFiles::Table PresetFiles::entries(const QByteArray& body)
{
    Table table;
    for (const QByteArray& line : body.split('\n')) {
        const int separator = line.indexOf('=');
        if (separator >= 0)
            table.insert(textOf(line.left(separator)), textOf(line.mid(separator + 1)));
    }
    return table;
}

std::optional<PresetFiles::Table> PresetFiles::savedTable(const QString& path)
{
    const QByteArrayList lines = deciphered(read(path));
    if (lines.isEmpty() || lines.at(0) != "2.0" || lines.at(2) != digestText(lines.at(1)).toUtf8())
        return std::nullopt;
    return entries(lines.at(1));
}

PresetFiles::Table PresetFiles::contents(PresetStorage& storage)
{
    static const Folder folder; // one for all, as tests ask often
    const QString path = folder.path(QStringLiteral("contents"));
    QFile::remove(path);
    storage.save(path);
    return entries(deciphered(read(path)).value(1));
}

void PresetFiles::fill(PresetStorage* storage, const Table& table)
{
    for (auto entry = table.cbegin(); entry != table.cend(); ++entry)
        storage->setValue(entry.key(), entry.value());
}

void PresetFiles::setClock(const QDate& date, const QTime& time)
{
    TestClock::ignoreStalls();
    TestClock::set(QDateTime(date, time).toMSecsSinceEpoch());
}

PresetFiles::Table PresetFiles::throughAFile(const Table& table)
{
    const Folder folder;
    const QString path = folder.path(QStringLiteral("preset"));
    PresetStorage saved;
    fill(&saved, table);
    PresetStorage loaded;
    if (!saved.save(path) || !loaded.load(path))
        qFatal("the table didn't pass through its file");
    return contents(loaded);
}

QByteArray PresetFiles::read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool PresetFiles::write(const QString& path, const QByteArray& bytes)
{
    // Anew, as some file systems send a file that is overwritten to the disk at once.
    QFile::remove(path);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QString PresetFiles::Folder::file(const QByteArray& bytes) const
{
    const QString name = path(QStringLiteral("file"));
    return write(name, bytes) ? name : QString();
}
