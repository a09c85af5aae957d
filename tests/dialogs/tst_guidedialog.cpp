// The Quickstart guide: its form, its page in each language, what links do.

#include "dialogs/guidedialog.h"
#include "presets/presetstorage.h"
#include "support/minimised.h"
#include "support/workfolder.h"

#include <QDesktopServices>
#include <QFile>
#include <QLayout>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>

namespace {

const QString italianPage = QStringLiteral(":/pages/guide/it/guide.html");
const QString englishPage = QStringLiteral(":/pages/guide/en/guide.html");

QTextBrowser* browserOf(const GuideDialog& dialog)
{
    return dialog.findChild<QTextBrowser*>(QStringLiteral("textBrowser"));
}

/// What a browser shows of @p page.
QString textOf(const QString& page)
{
    QFile file(page);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no page %s", qPrintable(page));
    QTextDocument document;
    document.setHtml(QString::fromUtf8(file.readAll()));
    return document.toPlainText();
}

Settings settingsOf(const char* language)
{
    return {{QStringLiteral("language"), QLatin1String(language)}};
}

void show(GuideDialog* dialog)
{
    dialog->show();
    if (!QTest::qWaitForWindowExposed(dialog))
        qFatal("the guide was never exposed");
}

/// Where the first link to @p target begins.
QTextCursor linkTo(const QTextBrowser& browser, const QString& target)
{
    QTextCursor cursor(browser.document());
    for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().anchorHref() != target)
                continue;
            cursor.setPosition(part.fragment().position() + 1);
            return cursor;
        }
    }
    qFatal("no link to %s", qPrintable(target));
    return cursor;
}

void click(QTextBrowser* browser, const QString& target)
{
    const QTextCursor link = linkTo(*browser, target);
    browser->setTextCursor(link);
    browser->ensureCursorVisible();
    QTest::mouseClick(browser->viewport(), Qt::LeftButton, {}, browser->cursorRect(link).center());
}

bool write(const QString& name, const QByteArray& bytes)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

/// Takes the links that would open in the system's browser.
class BrowserStandIn : public QObject
{
    Q_OBJECT

public:
    BrowserStandIn()
    {
        // The toolkit calls its handlers by name.
        QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "open");
    }
    ~BrowserStandIn() override { QDesktopServices::unsetUrlHandler(QStringLiteral("http")); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl& url) { opened << url; }
};

class TestGuideDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void form();
    void page_data();
    void page();
    void pageWithoutConfiguration();
    void picturesAreShown();
    void languageIsThatOfTheStart();
    void openingAgainGoesToTheTop();
    void placeOutlivesMinimising();
    void externalLinkLeavesThePage();
    void indexLeadsToItsSection();
    void indexLeadsThereAgain();
    void missingFileEmptiesTheBrowser();
    void folderIsNoFile();
    void emptyFile();
    void textEndsAtItsFirstNul();
    void textIsUtf8AndHtml();
};

void TestGuideDialog::initTestCase()
{
    Q_INIT_RESOURCE(pages);
}

void TestGuideDialog::form()
{
    const WorkFolder folder{Settings()};
    const GuideDialog dialog(nullptr);
    QCOMPARE(dialog.objectName(), QStringLiteral("GuideDialog"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Quickstart Guide"));
    QCOMPARE(dialog.size(), QSize(800, 600));
    QCOMPARE(dialog.minimumSize(), QSize(800, 600));
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QVERIFY(!dialog.isModal());
    QCOMPARE(dialog.layout()->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(dialog.layout()->itemAt(0)->widget(), browserOf(dialog));
    QVERIFY(browserOf(dialog)->openExternalLinks());
    QCOMPARE(browserOf(dialog)->toPlainText(), QString());
}

void TestGuideDialog::page_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("it_ch") << italianPage;
    QTest::newRow("pt_br") << ":/pages/guide/pt_br/guide.html";
    QTest::newRow("es_es") << ":/pages/guide/es/guide.html";
    QTest::newRow("de_de") << englishPage;
    QTest::newRow("fr_fr") << englishPage;
    QTest::newRow("en_us") << englishPage;
    QTest::newRow("IT_CH") << englishPage;
    QTest::newRow("xx_yy") << englishPage;
    QTest::newRow("") << englishPage;
}

void TestGuideDialog::page()
{
    QFETCH(const QString, file);
    const WorkFolder folder(settingsOf(QTest::currentDataTag()));
    GuideDialog dialog(nullptr);
    show(&dialog);
    QVERIFY(textOf(file).size() > 1000);
    QCOMPARE(browserOf(dialog)->toPlainText(), textOf(file));
}

void TestGuideDialog::pageWithoutConfiguration()
{
    const WorkFolder folder{Settings()};
    GuideDialog dialog(nullptr);
    show(&dialog);
    QCOMPARE(browserOf(dialog)->toPlainText(), textOf(englishPage));
}

// The page is no wider than its window with them.
void TestGuideDialog::picturesAreShown()
{
    const WorkFolder folder{Settings()};
    GuideDialog dialog(nullptr);
    show(&dialog);
    const QTextBrowser* browser = browserOf(dialog);
    const QVariant picture = browser->document()->resource(
        QTextDocument::ImageResource, QUrl(QStringLiteral("qrc:/images/en/guide/en/optionalinfo.PNG")));
    QVERIFY(picture.isValid());
    QVERIFY(browser->document()->idealWidth() > 600);
    QCOMPARE(browser->horizontalScrollBar()->maximum(), 0);
}

void TestGuideDialog::languageIsThatOfTheStart()
{
    const WorkFolder folder(settingsOf("it_ch"));
    GuideDialog dialog(nullptr);
    show(&dialog);
    PresetStorage configuration;
    configuration.setValue(QStringLiteral("language"), QStringLiteral("en_us"));
    QVERIFY(configuration.save(QStringLiteral("blconf")));
    dialog.close();
    show(&dialog);
    QCOMPARE(browserOf(dialog)->toPlainText(), textOf(italianPage));
}

void TestGuideDialog::openingAgainGoesToTheTop()
{
    const WorkFolder folder{Settings()};
    GuideDialog dialog(nullptr);
    show(&dialog);
    QScrollBar* position = browserOf(dialog)->verticalScrollBar();
    position->setValue(position->maximum());
    QVERIFY(position->value() > 1000);
    dialog.close();
    show(&dialog);
    QCOMPARE(position->value(), 0);
    QCOMPARE(browserOf(dialog)->toPlainText(), textOf(englishPage));
}

void TestGuideDialog::placeOutlivesMinimising()
{
    const WorkFolder folder{Settings()};
    GuideDialog dialog(nullptr);
    show(&dialog);
    QScrollBar* position = browserOf(dialog)->verticalScrollBar();
    position->setValue(1000);
    bringBack(dialog);
    QCOMPARE(position->value(), 1000);
}

void TestGuideDialog::externalLinkLeavesThePage()
{
    const WorkFolder folder{Settings()};
    const BrowserStandIn standIn;
    GuideDialog dialog(nullptr);
    show(&dialog);
    const QString link = QStringLiteral("http://www.polarridgeworks.example/redir/guide/brumaloggerconftool");
    click(browserOf(dialog), link);
    QCOMPARE(standIn.opened, QList<QUrl>{QUrl(link)});
    QCOMPARE(browserOf(dialog)->toPlainText(), textOf(englishPage));
    QVERIFY(dialog.isVisible());
}

void TestGuideDialog::indexLeadsToItsSection()
{
    const WorkFolder folder{Settings()};
    const BrowserStandIn standIn;
    GuideDialog dialog(nullptr);
    show(&dialog);
    QTextBrowser* browser = browserOf(dialog);
    click(browser, QStringLiteral("#timezone"));
    QVERIFY(browser->verticalScrollBar()->value() > 1000);
    QCOMPARE(browser->toPlainText(), textOf(englishPage));
    QCOMPARE(standIn.opened, QList<QUrl>());
}

void TestGuideDialog::indexLeadsThereAgain()
{
    const WorkFolder folder{Settings()};
    GuideDialog dialog(nullptr);
    for (int showing = 0; showing < 2; ++showing) {
        show(&dialog);
        QTextBrowser* browser = browserOf(dialog);
        QCOMPARE(browser->verticalScrollBar()->value(), 0);
        click(browser, QStringLiteral("#timezone"));
        QVERIFY(browser->verticalScrollBar()->value() > 1000);
        dialog.close();
    }
}

void TestGuideDialog::missingFileEmptiesTheBrowser()
{
    const WorkFolder folder{Settings()};
    GuideDialog dialog(nullptr);
    dialog.lReadTextFromFile(englishPage);
    QVERIFY(!browserOf(dialog)->toPlainText().isEmpty());
    dialog.lReadTextFromFile(QStringLiteral(":/pages/guide/de/guide.html"));
    QCOMPARE(browserOf(dialog)->toPlainText(), QString());
}

void TestGuideDialog::folderIsNoFile()
{
    const WorkFolder folder{Settings()};
    GuideDialog dialog(nullptr);
    dialog.lReadTextFromFile(englishPage);
    dialog.lReadTextFromFile(QStringLiteral("."));
    QCOMPARE(browserOf(dialog)->toPlainText(), QString());
}

void TestGuideDialog::emptyFile()
{
    const WorkFolder folder{Settings()};
    GuideDialog dialog(nullptr);
    dialog.lReadTextFromFile(englishPage);
    QVERIFY(write(QStringLiteral("page"), {}));
    dialog.lReadTextFromFile(QStringLiteral("page"));
    QCOMPARE(browserOf(dialog)->toPlainText(), QString());
}

void TestGuideDialog::textEndsAtItsFirstNul()
{
    const WorkFolder folder{Settings()};
    GuideDialog dialog(nullptr);
    QVERIFY(write(QStringLiteral("page"), QByteArray("<p>one\0two</p>", 14)));
    dialog.lReadTextFromFile(QStringLiteral("page"));
    QCOMPARE(browserOf(dialog)->toPlainText(), QStringLiteral("one"));
    QVERIFY(write(QStringLiteral("page"), QByteArray("\0<p>one</p>", 11)));
    dialog.lReadTextFromFile(QStringLiteral("page"));
    QCOMPARE(browserOf(dialog)->toPlainText(), QString());
}

void TestGuideDialog::textIsUtf8AndHtml()
{
    const WorkFolder folder{Settings()};
    GuideDialog dialog(nullptr);
    QVERIFY(write(QStringLiteral("page"), "<p>Größe: <b>½</b></p>\r\n<p>日本</p>"));
    dialog.lReadTextFromFile(QStringLiteral("page"));
    QCOMPARE(browserOf(dialog)->toPlainText(), QStringLiteral("Größe: ½\n日本"));
}

QTEST_MAIN(TestGuideDialog)
#include "tst_guidedialog.moc"
