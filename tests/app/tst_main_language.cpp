// The program's own main function, run in this process, with a look at its window from its event loop: which
// language it starts in.

#include "markedtranslation.h"

#include "app/mainwindow.h"
#include "dialogs/settingsdialog.h"
#include "support/child.h"
#include "support/environmentvariable.h"
#include "support/loglines.h"
#include "support/nextchance.h"
#include "support/workfolder.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <functional>

int programMain(int argc, char** argv);

namespace {

using Look = std::function<void(MainWindow*)>;

Look& lookAtTheProgram()
{
    static Look look;
    return look;
}

MainWindow* shownWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<MainWindow*>(widget);
        if (window && window->isVisible())
            return window;
    }
    qFatal("the program shows no window");
    return nullptr;
}

// As soon as there is an application; the look waits for its event loop.
void arrangeLook()
{
    atNextChance(qApp, [] {
        MainWindow* window = shownWindow();
        lookAtTheProgram()(window);
        if (window->isVisible())
            window->close();
    });
}
Q_COREAPP_STARTUP_FUNCTION(arrangeLook)

/// Starts the program, lets @p look see its window and closes it. Returns the program's result.
int resultOf(const Look& look)
{
    lookAtTheProgram() = look;
    char name[] = "brumalogger-config-gui";
    char* arguments[] = {name, nullptr};
    return programMain(1, arguments);
}

/// The same, but returns the program's warnings, a line each.
QString run(const Look& look)
{
    const LogLines log;
    if (resultOf(look) != 0)
        return QStringLiteral("the program failed");
    QStringList warnings;
    for (const QString& line : log.all()) {
        if (line.startsWith(QLatin1String("warning: ")))
            warnings << line;
    }
    return warnings.join(QLatin1Char('\n'));
}

/// Two texts of the window: one of its form, and one that its constructor makes.
QStringList sampleTexts(MainWindow* window)
{
    return {child<QLabel>(*window, "label")->text(), child<QPushButton>(*window, "buttonConnect")->text()};
}

QStringList english()
{
    return {QStringLiteral("Device Name: "), QStringLiteral("Connect")};
}

/// A configuration that needs no network, with or without a language.
Settings settingsOf(const QString& language)
{
    Settings settings{{QStringLiteral("disabletime"), QStringLiteral("1")},
                      {QStringLiteral("useserverpool"), QStringLiteral("0")},
                      {QStringLiteral("fontsize"), QStringLiteral("9")}};
    if (!language.isNull())
        settings.insert(QStringLiteral("language"), language);
    return settings;
}

/// Every text on @p widget, its tool tip and its choices.
QStringList textsOf(const QWidget* widget)
{
    QStringList texts{widget->toolTip()};
    for (const char* property : {"text", "title", "placeholderText"})
        texts << widget->property(property).toString();
    if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
        for (int row = 0; row < combo->count(); ++row)
            texts << combo->itemText(row);
    }
    return texts;
}

/// The texts of the window, without its dialogs, that are not marked, apart from those without a letter.
QStringList unmarkedTexts(const MainWindow& window)
{
    QStringList texts;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!isInADialogOf(window, widget))
            texts << textsOf(widget);
    }
    for (const QAction* action : window.findChildren<QAction*>())
        texts << action->text();
    QStringList unmarked;
    for (const QString& text : qAsConst(texts)) {
        const bool hasLetter =
            std::any_of(text.cbegin(), text.cend(), [](QChar letter) { return letter.isLetter(); });
        if (hasLetter && !MarkedTranslation::isMarked(text))
            unmarked << text;
    }
    unmarked.removeDuplicates();
    return unmarked;
}

} // namespace

class TestMainLanguage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void firstStart();
    void withoutALanguage();
    void unreadableConfigurationIsEnglish();
    void everyLanguageLoadsItsFile_data();
    void everyLanguageLoadsItsFile();
    void allTextsOfTheWindowAreTranslated();
    void englishLoadsNothing();
    void unsupportedLanguage_data();
    void unsupportedLanguage();
    void missingTranslation_data();
    void missingTranslation();
    void damagedTranslation();
    void settingsOfferAllLanguages();
    void returnsTheResultOfItsEventLoop();

private:
    QTemporaryDir folder;
    // Without such a place the toolkit warns.
    const EnvironmentVariable runtimePlace{"XDG_RUNTIME_DIR", QFile::encodeName(folder.path())};
    QString marked;
};

void TestMainLanguage::initTestCase()
{
    marked = folder.filePath(QStringLiteral("marked.qm"));
    MarkedTranslation::compile(marked);
}

void TestMainLanguage::firstStart()
{
    const WorkFolder place{Settings()};
    QStringList texts;
    QCOMPARE(run([&](MainWindow* window) { texts = sampleTexts(window); }),
             QStringLiteral("warning: Unable to read configuration file."));
    QCOMPARE(texts, english());
}

void TestMainLanguage::withoutALanguage()
{
    const WorkFolder place(settingsOf({}));
    QVERIFY(QFile::copy(marked, QStringLiteral("en.qm")));
    QVERIFY(QFile::copy(marked, QStringLiteral(".qm")));
    QStringList texts;
    QCOMPARE(run([&](MainWindow* window) { texts = sampleTexts(window); }), QString());
    QCOMPARE(texts, english());
}

void TestMainLanguage::unreadableConfigurationIsEnglish()
{
    const WorkFolder place(settingsOf(QStringLiteral("it_ch")));
    QVERIFY(QFile::copy(marked, QStringLiteral("brumaloger-config-gui_it.qm")));
    QFile file(QStringLiteral("blconf"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QByteArray known = file.readAll();
    QVERIFY(file.resize(0));
    file.write("9.9" + known.mid(3)); // no known version
    file.close();
    QStringList texts;
    QCOMPARE(run([&](MainWindow* window) { texts = sampleTexts(window); }),
             QStringLiteral("warning: Unable to read configuration file."));
    QCOMPARE(texts, english());
}

void TestMainLanguage::everyLanguageLoadsItsFile_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("it_ch") << "brumaloger-config-gui_it.qm";
    QTest::newRow("es_es") << "brumaloger-config-gui_es.qm";
    QTest::newRow("pt_br") << "brumaloger-config-gui_ptbr.qm";
    QTest::newRow("fr_fr") << "brumaloger-config-gui_fr.qm";
    QTest::newRow("de_de") << "brumaloger-config-gui_de.qm";
}

void TestMainLanguage::everyLanguageLoadsItsFile()
{
    QFETCH(const QString, file);
    const WorkFolder place(settingsOf(QTest::currentDataTag()));
    QVERIFY(QFile::copy(marked, file));
    QStringList texts;
    QCOMPARE(run([&](MainWindow* window) { texts = sampleTexts(window); }), QString());
    QCOMPARE(texts, QStringList({MarkedTranslation::of(QStringLiteral("Device Name: ")),
                                 MarkedTranslation::of(QStringLiteral("Connect"))}));
}

// Also those that its constructor sets. The types of shipment are codes that the loggers keep.
void TestMainLanguage::allTextsOfTheWindowAreTranslated()
{
    const WorkFolder place(settingsOf(QStringLiteral("it_ch")));
    QVERIFY(QFile::copy(marked, QStringLiteral("brumaloger-config-gui_it.qm")));
    QStringList unmarked;
    QCOMPARE(run([&](MainWindow* window) { unmarked = unmarkedTexts(*window); }), QString());
    QCOMPARE(unmarked, QStringList({"Air", "Land", "Sea"}));
}

void TestMainLanguage::englishLoadsNothing()
{
    const WorkFolder place(settingsOf(QStringLiteral("en_us")));
    QVERIFY(QFile::copy(marked, QStringLiteral("en.qm")));
    QStringList texts;
    QCOMPARE(run([&](MainWindow* window) { texts = sampleTexts(window); }), QString());
    QCOMPARE(texts, english());
}

void TestMainLanguage::unsupportedLanguage_data()
{
    QTest::addColumn<QString>("warning");
    QTest::newRow("EN_US") << "warning: Unsupported language setting: \"EN_US\"";
    QTest::newRow("") << "warning: Unsupported language setting: \"\"";
    QTest::newRow("xx_yy") << "warning: Unsupported language setting: \"xx_yy\"";
    QTest::newRow("it") << "warning: Unsupported language setting: \"it\"";
}

void TestMainLanguage::unsupportedLanguage()
{
    QFETCH(const QString, warning);
    const WorkFolder place(settingsOf(QString::fromLatin1(QTest::currentDataTag())));
    for (const char* file : {"en.qm", "brumaloger-config-gui_it.qm", "it.qm"})
        QVERIFY(QFile::copy(marked, QLatin1String(file)));
    QStringList texts;
    QCOMPARE(run([&](MainWindow* window) { texts = sampleTexts(window); }), warning);
    QCOMPARE(texts, english());
}

void TestMainLanguage::missingTranslation_data()
{
    everyLanguageLoadsItsFile_data();
}

void TestMainLanguage::missingTranslation()
{
    QFETCH(const QString, file);
    const WorkFolder place(settingsOf(QTest::currentDataTag()));
    QStringList texts;
    QCOMPARE(run([&](MainWindow* window) { texts = sampleTexts(window); }),
             QStringLiteral("warning: Unable to load translation file \"%1\"").arg(file.chopped(3)));
    QCOMPARE(texts, english());
}

void TestMainLanguage::damagedTranslation()
{
    const WorkFolder place(settingsOf(QStringLiteral("it_ch")));
    QFile file(QStringLiteral("brumaloger-config-gui_it.qm"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("This is no translation.");
    file.close();
    QStringList texts;
    QCOMPARE(run([&](MainWindow* window) { texts = sampleTexts(window); }),
             QStringLiteral("warning: Unable to load translation file \"brumaloger-config-gui_it\""));
    QCOMPARE(texts, english());
}

void TestMainLanguage::settingsOfferAllLanguages()
{
    const WorkFolder place(settingsOf({}));
    QStringList rows;
    run([&](MainWindow* window) {
        const auto* combo = window->findChild<SettingsDialog*>()->findChild<QComboBox*>("comboLanguage");
        for (int row = 0; row < combo->count(); ++row)
            rows << combo->itemData(row).toString() + QStringLiteral(" = ") + combo->itemText(row);
    });
    QCOMPARE(rows, QStringList({"de_de = Deutsch (DE)", "en_us = English (US)", "es_es = Español (ES)",
                                "fr_fr = Français (FR)", "it_ch = Italiano (IT)", "pt_br = Português (BR)"}));
}

// The end of the last window ends the loop with 0, and the later word counts.
void TestMainLanguage::returnsTheResultOfItsEventLoop()
{
    const WorkFolder place(settingsOf({}));
    QCOMPARE(resultOf([](MainWindow* window) {
                 window->close();
                 QCoreApplication::exit(7);
             }),
             7);
    QCOMPARE(resultOf([](MainWindow*) {}), 0);
}

QTEST_APPLESS_MAIN(TestMainLanguage)
#include "tst_main_language.moc"
