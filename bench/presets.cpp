// Saving and loading a table of about SIZE bytes, or parts of that on the same data: compression, checksum,
// Base64 and hash alone (bare), and these with the file read line by line as text, the log lines and the
// filling of a map (plain).
//
//   bench_presets save|load|bare-save|bare-load|plain-load SIZE ENTRY-SIZE
//
// Only measuredWork() counts: run it under callgrind with --toggle-collect=measuredWork.

#include "presets/presetstorage.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QDebug>
#include <QFile>
#include <QMap>
#include <QRandomGenerator>
#include <QStringList>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

constexpr int mostLetters = 10;

// What the bare work gives, so that no part of it is left out as useless.
int keep = 0;

std::function<void(PresetStorage*)> work;

QString word(QRandomGenerator* random)
{
    QString letters;
    for (int length = random->bounded(1, mostLetters); length > 0; --length)
        letters.append(QLatin1Char(static_cast<char>('a' + random->bounded(26) * random->bounded(26) / 26)));
    return letters;
}

using Table = QMap<QString, QString>;

/// Some @p size bytes of entries, all of them of @p entrySize or a little more; and their body.
QByteArray fill(PresetStorage* storage, Table* table, int size, int entrySize)
{
    QRandomGenerator random(1);
    QByteArray body;
    for (int number = 0; body.size() < size; ++number) {
        const QString key = QStringLiteral("entry%1").arg(number, 6, 10, QLatin1Char('0'));
        QStringList words;
        for (int length = key.size(); length < entrySize; length += words.last().size() + 1)
            words.append(word(&random));
        const QString value = words.join(QLatin1Char(' '));
        storage->setValue(key, value);
        table->insert(key, value);
        body.append((key + QLatin1Char('=') + value + QLatin1Char('\n')).toUtf8());
    }
    return body;
}

quint16 checksum(const QByteArray& data)
{
    return qChecksum(data.constData(), static_cast<uint>(data.size()));
}

QByteArray hash(const QByteArray& data)
{
    return QCryptographicHash::hash(data, QCryptographicHash::Sha1);
}

/// What a file needs of the toolkit for one of its lines.
QByteArray bareEncipher(const QByteArray& plain)
{
    const QByteArray data = qCompress(plain, 9);
    keep += checksum(data);
    return data.toBase64();
}

QByteArray bareDecipher(const QByteArray& text)
{
    const QByteArray data = QByteArray::fromBase64(text);
    keep += checksum(data);
    return qUncompress(data);
}

/// Reads the file's lines as text, and logs what a load does.
void readLines(const QString& path)
{
    QFile device(path);
    keep += device.open(QIODevice::ReadOnly | QIODevice::Text);
    qDebug() << "READING = " << path;
    QTextStream file(&device);
    const QString version = file.readLine();
    qDebug() << "File version " << version.size() << "." << version.size();
    keep += file.readLine().size() + file.readLine().size();
    qDebug() << "Ignoring line: " << version;
}

/// Fills a table with texts of its own.
void copy(const Table& table)
{
    Table copied;
    for (auto entry = table.cbegin(); entry != table.cend(); ++entry)
        copied.insert(copied.cend(), QString(entry.key().constData(), entry.key().size()),
                      QString(entry.value().constData(), entry.value().size()));
    keep += copied.size();
}

} // namespace

/// Has a name that callgrind can be told.
extern "C" __attribute__((noinline)) void measuredWork(PresetStorage* storage)
{
    work(storage);
}

int main(int argc, char** argv)
{
    if (argc < 4)
        return 2;
    const QByteArray what = argv[1];
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("preset"));
    PresetStorage full;
    Table table;
    const QByteArray body = fill(&full, &table, std::atoi(argv[2]), std::atoi(argv[3]));
    const QByteArray digest = hash(body);
    const QByteArray bodyText = bareEncipher(body);
    const QByteArray digestText = bareEncipher(digest);
    keep += full.save(path);

    if (what == "save")
        work = [&](PresetStorage*) { keep += full.save(path); };
    else if (what == "load")
        work = [&](PresetStorage* storage) { keep += storage->load(path); };
    else if (what == "bare-save")
        work = [&](PresetStorage*) {
            keep += bareEncipher(body).size() + bareEncipher(digest).size() + hash(body).size();
        };
    else if (what == "bare-load" || what == "plain-load")
        work = [&](PresetStorage*) {
            keep += hash(bareDecipher(bodyText)).size() + bareDecipher(digestText).size();
            if (what == "bare-load")
                return;
            readLines(path);
            copy(table);
        };
    else
        return 2;
    // Once beforehand, for what the toolkit does but once in a program's life.
    PresetStorage first;
    PresetStorage second;
    work(&first);
    measuredWork(&second);
    std::fprintf(stderr, "%s: %d bytes, %d in the file, %d\n", what.constData(), body.size(), bodyText.size(),
                 keep);
    return 0;
}
