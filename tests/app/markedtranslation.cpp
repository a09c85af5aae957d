// From the translation sources, which have all texts, by way of the toolkit's compiler.

#include "markedtranslation.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

const QChar opening(0x2039);
const QChar closing(0x203A);

/// Copies the sources, with the marked source in place of each translation.
class Marker
{
public:
    Marker(QIODevice* from, QIODevice* to)
        : reader(from)
        , writer(to)
    {
    }

    bool run()
    {
        while (!reader.atEnd()) {
            reader.readNext();
            if (!reader.isStartElement() || !copyText())
                writer.writeCurrentToken(reader);
        }
        return !reader.hasError();
    }

private:
    /// True if the element had a text that is of interest here; it has been copied then.
    bool copyText()
    {
        if (reader.name() == QLatin1String("source"))
            writer.writeTextElement(QStringLiteral("source"), source = reader.readElementText());
        else if (reader.name() == QLatin1String("translation"))
            writer.writeTextElement(QStringLiteral("translation"), translation());
        else
            return false;
        return true;
    }

    QString translation()
    {
        reader.skipCurrentElement();
        return MarkedTranslation::of(source);
    }

    QXmlStreamReader reader;
    QXmlStreamWriter writer;
    QString source;
};

} // namespace

QString MarkedTranslation::of(const QString& source)
{
    return opening + source + closing;
}

bool MarkedTranslation::isMarked(const QString& text)
{
    return text.contains(opening) && text.contains(closing);
}

void MarkedTranslation::compile(const QString& file)
{
    const QTemporaryDir folder;
    QFile source(QStringLiteral(TRANSLATION_SOURCE));
    QFile marked(folder.filePath(QStringLiteral("marked.ts")));
    if (!source.open(QIODevice::ReadOnly) || !marked.open(QIODevice::WriteOnly))
        qFatal("no place for a translation");
    if (!Marker(&source, &marked).run())
        qFatal("the translation source is no XML");
    marked.close();
    if (QProcess::execute(QStringLiteral(LRELEASE_FILE),
                          {QStringLiteral("-silent"), marked.fileName(), QStringLiteral("-qm"), file}) != 0)
        qFatal("the translation doesn't compile");
}
