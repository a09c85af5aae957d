#pragma once

#include <QMap>
#include <QObject>
#include <QString>

class QTextStream;

/// A table of text keys and text values, and the file that holds one: preset files and the program's
/// configuration. docs/preset-format.md describes the format.
///
/// Version 2.0, the only one written, is enciphered and carries a digest; version 1.0, plain text, is read.
/// The format has no escapes: a "=" in a value is lost, a line feed splits its line.
class PresetStorage : public QObject
{
    Q_OBJECT

public:
    explicit PresetStorage(QObject* parent = nullptr);

    bool contains(const QString& key) const;
    /// The value, empty also for a key that the table doesn't have; contains() tells the two apart.
    QString value(const QString& key);
    /// Inserts or replaces.
    void setValue(const QString& key, const QString& value);

    /// Reads a file into the table. A version 2.0 file is merged into it, and one that is refused leaves the
    /// table alone; a version 1.0 file replaces it.
    bool load(const QString& path);
    /// Writes the whole table as version 2.0. False, and the file left as it was, if it can't be opened or
    /// the table is larger than what load() reads; whether the writing succeeds isn't looked at.
    bool save(const QString& path);

private:
    bool plLoadPlain(QTextStream& file);
    bool plLoadEnciphered(QTextStream& file);
    void plTakeBody(const QString& body);
    void plTakeLine(QStringView line);
    qint64 plBodyLength() const;
    QString plBody() const;

    quint64 cipherKey;
    QMap<QString, QString> table;
};
