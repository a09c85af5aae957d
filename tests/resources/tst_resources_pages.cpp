// The pages that the program carries: where their pictures and links lead, and their common form.

#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QUrl>

namespace {

constexpr const char* languages[] = {"en", "es", "it", "pt_br"};

QString read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString page(const QString& language)
{
    return read(QStringLiteral(":/pages/guide/%1/guide.html").arg(language));
}

/// What the first group of @p pattern captures, at each match in @p text.
QStringList all(const QString& text, const char* pattern)
{
    QStringList found;
    auto match = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (match.hasNext())
        found << match.next().captured(1);
    return found;
}

/// The numbers of the headings, as "1" or "2.1".
QStringList sections(const QString& text)
{
    return all(text, "<h[23]>(?:<a[^>]*>)?([0-9](?:[.][0-9])?)");
}

} // namespace

class TestResourcesPages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void disclaimer();
    void copyOfTheEnglishPage();
    void pictures_data();
    void pictures();
    void linksWithinThePage_data();
    void linksWithinThePage();
    void plainLinks_data();
    void plainLinks();
    void form_data();
    void form();
    void isUtf8_data();
    void isUtf8();

private:
    static void addLanguages();
};

void TestResourcesPages::initTestCase()
{
    Q_INIT_RESOURCE(pages);
}

void TestResourcesPages::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const char* language : languages)
        QTest::newRow(language) << language;
}

void TestResourcesPages::disclaimer()
{
    QVERIFY(read(QStringLiteral(":/docs/doc/tz_disclaimer_en.html")).contains(QStringLiteral("</html>")));
}

void TestResourcesPages::copyOfTheEnglishPage()
{
    const QString original = page(QStringLiteral("en"));
    QVERIFY(!original.isEmpty());
    QCOMPARE(read(QStringLiteral(":/images/en/guide/en/guide.html")), original);
}

void TestResourcesPages::pictures_data()
{
    addLanguages();
}

// Italian has pictures of its own; the other pages share the English ones.
void TestResourcesPages::pictures()
{
    QFETCH(const QString, language);
    const QString set = language == QStringLiteral("it") ? language : QStringLiteral("en");
    QStringList expected;
    for (const char* name :
         {"devinfo", "devinfo_timetool", "devsetup", "optionalinfo", "settings", "settings_time", "tzeditor"})
        expected << QStringLiteral(":/images/%1/guide/%1/%2.PNG").arg(set, QLatin1String(name));
    QStringList found = all(page(language), "<img[^>]* src=\"([^\"]*)\"");
    for (const QString& path : qAsConst(found))
        QVERIFY2(QFile::exists(path), qPrintable(path));
    found.sort();
    QCOMPARE(found, expected);
}

void TestResourcesPages::linksWithinThePage_data()
{
    addLanguages();
}

void TestResourcesPages::linksWithinThePage()
{
    QFETCH(const QString, language);
    const QString text = page(language);
    const QStringList names = all(text, "<a name=\"([^\"]*)\"");
    const QStringList targets = all(text, "href=\"#([^\"]*)\"");
    QVERIFY(targets.size() >= sections(text).size());
    for (const QString& target : targets)
        QVERIFY2(names.contains(target), qPrintable(target));
}

void TestResourcesPages::plainLinks_data()
{
    addLanguages();
}

// To the online guide, the driver's how-to and the download, all on the maker's server.
void TestResourcesPages::plainLinks()
{
    QFETCH(const QString, language);
    QStringList links = all(page(language), "href=\"([^#\"][^\"]*)\"");
    for (const QString& link : qAsConst(links)) {
        QVERIFY2(QUrl(link, QUrl::StrictMode).isValid(), qPrintable(link));
        QCOMPARE(QUrl(link).host(), QStringLiteral("www.polarridgeworks.example"));
    }
    links.sort();
    links.removeDuplicates();
    QStringList english = all(page(QStringLiteral("en")), "href=\"([^#\"][^\"]*)\"");
    english.sort();
    english.removeDuplicates();
    QCOMPARE(links.size(), 3);
    QCOMPARE(links, english);
}

void TestResourcesPages::form_data()
{
    addLanguages();
}

void TestResourcesPages::form()
{
    QFETCH(const QString, language);
    const QString text = page(language);
    QCOMPARE(all(text, "<h1 align=\"center\">([^<]*)</h1>"), QStringList("Brumalogger Configuration Tool"));
    QCOMPARE(all(text, "class=\"subtitle\" align=\"center\">([^<]*)</p>").size(), 1);
    QVERIFY(text.contains(QStringLiteral("<hr/>")));
    QCOMPARE(sections(text), QStringList({"1", "2", "2.1", "2.2", "2.3", "2.4", "3", "3.1", "3.2", "3.3", "4",
                                          "4.1", "4.2", "4.3"}));
}

void TestResourcesPages::isUtf8_data()
{
    addLanguages();
}

// Without a byte that is none, and without a NUL, where the guide would end.
void TestResourcesPages::isUtf8()
{
    QFETCH(const QString, language);
    const QString text = page(language);
    QVERIFY(!text.contains(QChar::ReplacementCharacter));
    QVERIFY(!text.contains(QChar::Null));
    QVERIFY(text.trimmed().endsWith(QStringLiteral("</html>")));
}

QTEST_APPLESS_MAIN(TestResourcesPages)
#include "tst_resources_pages.moc"
