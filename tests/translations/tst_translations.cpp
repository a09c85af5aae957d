// The translation sources as they are, and the files that the build makes of them.

#include "translationcheck.h"

#include <QFile>
#include <QSet>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

struct Entry
{
    QString context;
    QString source;
    QString translation;
    bool finished;

    QString key() const { return context + QLatin1Char('/') + source; }
};

QString sourceFile(const QString& language)
{
    return QStringLiteral(TRANSLATION_SOURCES "/brumaloger-config-gui_%1.ts").arg(language);
}

/// All entries of a translation source; the test program ends if it can't be read.
QList<Entry> entries(const QString& language)
{
    QFile file(sourceFile(language));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no %s", qPrintable(file.fileName()));
    QXmlStreamReader reader(&file);
    QList<Entry> all;
    Entry entry;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == QLatin1String("name")) {
            entry.context = reader.readElementText();
        } else if (reader.name() == QLatin1String("source")) {
            entry.source = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            entry.finished = !reader.attributes().hasAttribute(QStringLiteral("type"));
            entry.translation = reader.readElementText();
            all << entry;
        }
    }
    if (reader.hasError())
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(reader.errorString()));
    return all;
}

/// The texts that @p language may have in common with English.
QStringList allowedEnglish(const QString& language)
{
    QFile file(QStringLiteral(ALLOWED_FILE));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("no %s", qPrintable(file.fileName()));
    QStringList allowed;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        const QString of = line.section(QLatin1Char('\t'), 0, 0);
        if (of == language || of == QStringLiteral("*"))
            allowed << line.section(QLatin1Char('\t'), 1);
    }
    return allowed;
}

bool isComplete(const QString& language)
{
    return QStringLiteral(COMPLETE_LANGUAGES).split(QLatin1Char(' ')).contains(language);
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void entriesAreInOrder_data();
    void entriesAreInOrder();
    void allHaveTheSameTexts_data();
    void allHaveTheSameTexts();
    void compiledFileHasTheToolkitsTexts_data();
    void compiledFileHasTheToolkitsTexts();
    void compiledFileHasTheFinishedTexts_data();
    void compiledFileHasTheFinishedTexts();

private:
    static void addLanguages();
};

void TestTranslations::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const char* language : {"it", "es", "ptbr", "fr", "de"})
        QTest::newRow(language) << language;
}

void TestTranslations::entriesAreInOrder_data()
{
    addLanguages();
}

// In a language that isn't complete yet only what is finished is looked at.
void TestTranslations::entriesAreInOrder()
{
    QFETCH(const QString, language);
    const QStringList allowed = allowedEnglish(language);
    const QList<Entry> all = entries(language);
    QVERIFY(all.size() > 200);
    QStringList complaints;
    for (const Entry& entry : all) {
        QString complaint;
        if (entry.finished)
            complaint = translationComplaint(entry.source, entry.translation, allowed);
        else if (isComplete(language))
            complaint = QStringLiteral("unfinished");
        if (!complaint.isEmpty())
            complaints << QStringLiteral("%1: %2").arg(entry.key(), complaint);
    }
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(QLatin1Char('\n'))));
}

void TestTranslations::allHaveTheSameTexts_data()
{
    addLanguages();
}

void TestTranslations::allHaveTheSameTexts()
{
    QFETCH(const QString, language);
    const auto keys = [](const QString& of) {
        QStringList all;
        for (const Entry& entry : entries(of))
            all << entry.key();
        all.sort();
        return all;
    };
    QCOMPARE(keys(language), keys(QStringLiteral("it")));
}

void TestTranslations::compiledFileHasTheToolkitsTexts_data()
{
    QTest::addColumn<QString>("cancel");
    QTest::newRow("it") << "Annulla";
    QTest::newRow("es") << "Cancelar";
    QTest::newRow("ptbr") << "Cancelar";
    QTest::newRow("fr") << "Annuler";
    QTest::newRow("de") << "Abbrechen";
}

void TestTranslations::compiledFileHasTheToolkitsTexts()
{
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(TRANSLATIONS "/brumaloger-config-gui_%1")
                                .arg(QLatin1String(QTest::currentDataTag()))));
    QTEST(translator.translate("QPlatformTheme", "Cancel"), "cancel");
    for (const char* button : {"OK", "&Yes", "&No"})
        QVERIFY2(!translator.translate("QPlatformTheme", button).isEmpty(), button);
}

void TestTranslations::compiledFileHasTheFinishedTexts_data()
{
    addLanguages();
}

void TestTranslations::compiledFileHasTheFinishedTexts()
{
    QFETCH(const QString, language);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(TRANSLATIONS "/brumaloger-config-gui_%1").arg(language)));
    for (const Entry& entry : entries(language)) {
        const QString compiled =
            translator.translate(entry.context.toUtf8().constData(), entry.source.toUtf8().constData());
        QCOMPARE(compiled, entry.translation);
    }
}

QTEST_APPLESS_MAIN(TestTranslations)
#include "tst_translations.moc"
