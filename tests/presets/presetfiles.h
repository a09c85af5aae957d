#pragma once

#include "referencecipher.h"

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

#include <optional>

class PresetStorage;

/// Files for a PresetStorage to read, made without its code, and a look into the files that it wrote.
namespace PresetFiles {

using Table = QMap<QString, QString>;

/// What is logged of a file whose digest is wrong, as LogLines has it.
const QString mismatch = QStringLiteral("warning: Checksum mismatch. Skipping file.");

using ReferenceCipher::digestText;

/// A file of version 2.0 with any body and digest.
QByteArray enciphered(const QByteArray& body, const QString& digest);
/// The same with the right digest.
QByteArray enciphered(const QByteArray& body);

/// The plain lines of a file of version 2.0: version, body and digest; empty if the file is not one.
QByteArrayList deciphered(const QByteArray& file);
/// The table of the file at @p path; none if it isn't of version 2.0 with the right digest. The conditions of
/// entries() hold.
std::optional<Table> savedTable(const QString& path);
/// The entries of a body that has no "=" and no line feed in a key, and no line feed in a value.
Table entries(const QByteArray& body);

/// Everything in @p storage, under the same conditions.
Table contents(PresetStorage& storage);
void fill(PresetStorage* storage, const Table& table);
/// Sets the test clock to the computer's local time, by default that of the format page's file; a test that
/// does so resets it.
void setClock(const QDate& date = QDate(2021, 3, 4), const QTime& time = QTime(17, 58, 9));

/// What a storage holds that has loaded what another one saved of @p table; the test program ends if either
/// fails.
Table throughAFile(const Table& table);

QByteArray read(const QString& path);
bool write(const QString& path, const QByteArray& bytes);

/// A folder of its own for each test.
class Folder
{
public:
    QString path(const QString& name) const { return folder.filePath(name); }
    /// A file with @p bytes.
    QString file(const QByteArray& bytes) const;

private:
    QTemporaryDir folder;
};

} // namespace PresetFiles
