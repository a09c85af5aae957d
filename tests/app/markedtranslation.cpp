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
    Marker(QIODevice* from, QIODevice* to, const QString& context)
        : reader(from)
        , writer(to)
        , wanted(context)
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
        if (reader.name() == QLatin1String("name"))
            writer.writeTextElement(QStringLiteral("name"), context = reader.readElementText());
        else if (reader.name() == QLatin1String("source"))
            writer.writeTextElement(QStringLiteral("source"), source = reader.readElementText());
        else if (reader.name() == QLatin1String("translation"))
            writeTranslation();
        else
            return false;
        return true;
    }

    void writeTranslation()
    {
        reader.skipCurrentElement();
        const bool inScope = wanted.isEmpty() || context == wanted;
        writer.writeTextElement(QStringLiteral("translation"),
                                inScope ? MarkedTranslation::of(source) : source);
    }

    QXmlStreamReader reader;
    QXmlStreamWriter writer;
    QString wanted;
    QString context;
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

void MarkedTranslation::compile(const QString& file, const QString& context)
{
    const QTemporaryDir folder;
    QFile source(QStringLiteral(TRANSLATION_SOURCE));
    QFile marked(folder.filePath(QStringLiteral("marked.ts")));
    if (!source.open(QIODevice::ReadOnly) || !marked.open(QIODevice::WriteOnly))
        qFatal("no place for a translation");
    if (!Marker(&source, &marked, context).run())
        qFatal("the translation source is no XML");
    marked.close();
    if (QProcess::execute(QStringLiteral(LRELEASE_FILE),
                          {QStringLiteral("-silent"), marked.fileName(), QStringLiteral("-qm"), file}) != 0)
        qFatal("the translation doesn't compile");
}
