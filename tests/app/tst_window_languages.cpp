// The window and everything that it opens, in every language and in small and large type: all texts have
// room.

#include "dialogs/advancedoptionsdialog.h"
#include "dialogs/guidedialog.h"
#include "dialogs/passworddialog.h"
#include "dialogs/settingsdialog.h"
#include "dialogs/timezonedialog.h"

#include "app/languages.h"
#include "extendedrig.h"
#include "presets/presetstorage.h"
#include "timerig.h"
#include "windowinspector.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QScopedPointer>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

namespace {

constexpr const char* languages[] = {"en_us", "it_ch", "es_es", "pt_br", "fr_fr", "de_de"};
constexpr int fontSizes[] = {8, 11, 20};

/// A window with a reference time, in a language and a size of type, and an eye on all that it opens.
struct Place
{
    Place(const QString& language, int fontSize);
    void trigger(const char* action) const { rig.find<QAction>(action)->trigger(); }
    void editZone() const { QTest::mouseClick(rig.find<QToolButton>("buttonToolTimeZone"), Qt::LeftButton); }
    void inspectWindow() { inspector.inspectGrown(&rig.window); }
    /// The longest message that stays in the status bar.
    void inspectStatus();

    Servers servers;
    TimeRig rig;
    WindowInspector inspector;
};

Settings settingsOf(const QString& language, int fontSize)
{
    Settings settings = timeSettings(true);
    settings.insert(QStringLiteral("language"), language);
    settings.insert(QStringLiteral("fontsize"), QString::number(fontSize));
    return settings;
}

Place::Place(const QString& language, int fontSize)
    : servers(NtpAnswer::currentTime())
    , rig(settingsOf(language, fontSize))
{
    rig.window.lSetLanguages(languageTable());
    if (!rig.comesTo(
            MainWindow::tr("Successfully fetched time and date from %1.").arg(MainWindow::tr("server pool"))))
        qFatal("the answer never came");
}

void Place::inspectStatus()
{
    rig.window.statusBar()->showMessage(
        MainWindow::tr("Unable to fetch date and time from %1. Check your connections or try another server.")
            .arg(QStringLiteral("0.cn.pool.ntp.org")));
    inspectWindow();
    rig.window.statusBar()->clearMessage();
}

/// Everything on it that can be longer than usual: a zone, a reset, an empty battery.
LoggerModel newestLogger()
{
    LoggerModel model = secureLogger();
    model.settings().firmware = QStringLiteral("1.2.1");
    model.settings().lowBattery = true;
    return model;
}

LoggerModel oldSingleUseLogger()
{
    LoggerModel model = basicLogger();
    model.settings().multiuse = false;
    return model;
}

void press(const QWidget* window, const char* button)
{
    child<QAbstractButton>(*window, button)->click();
}

/// Opens both pickers, has a password demanded and shown, and accepts.
void useOptions(WindowInspector& inspector, QDialog* dialog)
{
    for (const char* button : {"toolStartDate", "toolStopDate", "checkConfigPassw", "radioPasswAlways",
                               "radioResetDone", "buttonShow"})
        press(dialog, button);
    child<QLineEdit>(*dialog, "linePassw")->setText(rightPassword);
    QCoreApplication::processEvents();
    inspector.inspect(*dialog);
    dialog->accept();
}

void chooseOtherZone(QDialog* dialog)
{
    auto* combo = child<QComboBox>(*dialog, "comboTimezone");
    combo->setCurrentIndex(combo->count() - 1);
    dialog->accept();
}

/// What is not among the @p seen titles.
QStringList missing(const QStringList& expected, const QStringList& seen)
{
    QStringList left = expected;
    for (const QString& title : seen)
        left.removeOne(title);
    return left;
}

} // namespace

class TestWindowLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void newestLogger_data() { eachLanguageAndSize(); }
    void newestLogger();
    void lockedLogger_data() { eachLanguageAndSize(); }
    void lockedLogger();
    void oldLogger_data() { eachLanguageAndSize(); }
    void oldLogger();
    void withoutLogger_data() { eachLanguageAndSize(); }
    void withoutLogger();

private:
    static void eachLanguageAndSize();
    static Place* newPlace();

    QScopedPointer<QTranslator> translator;
};

void TestWindowLanguages::initTestCase()
{
    QVERIFY(QDir::setCurrent(QStringLiteral(TRANSLATIONS)));
}

void TestWindowLanguages::eachLanguageAndSize()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("fontSize");
    for (const QString language : languages) {
        for (const int size : fontSizes)
            QTest::addRow("%s %d", qPrintable(language), size) << language << size;
    }
}

void TestWindowLanguages::init()
{
    QFETCH(const QString, language);
    translator.reset(new QTranslator);
    PresetStorage configuration(nullptr);
    configuration.setValue(QStringLiteral("language"), language);
    selectLanguage(&configuration, languageTable(), translator.data());
    QCOMPARE(translator->isEmpty(), language == QStringLiteral("en_us"));
}

void TestWindowLanguages::cleanup()
{
    translator.reset();
}

Place* TestWindowLanguages::newPlace()
{
    const QString language = *static_cast<QString*>(QTest::qData("language", QMetaType::QString));
    const int fontSize = *static_cast<int*>(QTest::qData("fontSize", QMetaType::Int));
    return new Place(language, fontSize);
}

void TestWindowLanguages::newestLogger()
{
    const QScopedPointer<Place> place(newPlace());
    WindowInspector& inspector = place->inspector;
    inspector.at(AdvancedOptionsDialog::tr("Advanced Options"),
                 [&inspector](QDialog* dialog) { useOptions(inspector, dialog); });
    inspector.at(TimeZoneDialog::tr("Time Zone Editor"), &chooseOtherZone);
    place->rig.plugAndConnect(::newestLogger());
    QVERIFY(place->rig.controlsEnabled());
    place->inspectWindow();
    place->rig.press("buttonAdvanced");
    place->editZone();
    place->rig.press("buttonWrite");
    place->rig.press("buttonStart");
    place->inspectWindow();
    const QStringList expected{
        AdvancedOptionsDialog::tr("Advanced Options"),
        AdvancedOptionsDialog::tr("Select a START Date and Time"),
        AdvancedOptionsDialog::tr("Select a STOP Date and Time"),
        AdvancedOptionsDialog::tr("Attention"),
        AdvancedOptionsDialog::tr("Attention"),
        AdvancedOptionsDialog::tr("Attention"),
        TimeZoneDialog::tr("Time Zone Editor"),
        TimeZoneDialog::tr("Attention"),
        MainWindow::tr("Changing Time Zone setting"),
        MainWindow::tr("Confirm"),
    };
    QCOMPARE(missing(expected, inspector.titles()), QStringList());
    QVERIFY2(inspector.problems().isEmpty(), qPrintable(inspector.problems()));
}

void TestWindowLanguages::lockedLogger()
{
    const QScopedPointer<Place> place(newPlace());
    WindowInspector& inspector = place->inspector;
    const QString title = PasswordDialog::tr("Password protected device");
    QString sender;
    inspector.at(title, [&](QDialog* dialog) {
        press(dialog, "buttonToggleInfo");
        QCoreApplication::processEvents();
        sender = child<QLabel>(*dialog, "labelSender")->text();
        inspector.inspect(*dialog);
        dialog->reject();
    });
    place->rig.plugAndConnect(::lockedLogger());
    QCOMPARE(sender, QStringLiteral("Northern Pharma"));
    QCOMPARE(missing({title, title}, inspector.titles()), QStringList());
    QVERIFY2(inspector.problems().isEmpty(), qPrintable(inspector.problems()));
}

void TestWindowLanguages::oldLogger()
{
    const QScopedPointer<Place> place(newPlace());
    WindowInspector& inspector = place->inspector;
    inspector.at(QStringLiteral("Disclaimer"), [](QDialog* dialog) { dialog->accept(); });
    place->rig.plugAndConnect(oldSingleUseLogger());
    QVERIFY(place->rig.controlsEnabled());
    place->inspectWindow();
    place->editZone();
    place->rig.type("lineSender", QStringLiteral("changed"));
    place->rig.disturb(QByteArray("Ss"), Fault::Kind::Silence);
    place->rig.press("buttonWrite");
    place->rig.disturb(QByteArray("Gs"), Fault::Kind::Silence);
    place->rig.press("buttonRead");
    place->inspectWindow();
    const QStringList expected{QStringLiteral("Disclaimer"), TimeZoneDialog::tr("Time Zone Editor"),
                               MainWindow::tr("Warning"), MainWindow::tr("Warning")};
    QCOMPARE(missing(expected, inspector.titles()), QStringList());
    QVERIFY2(inspector.problems().isEmpty(), qPrintable(inspector.problems()));
}

void TestWindowLanguages::withoutLogger()
{
    const QScopedPointer<Place> place(newPlace());
    WindowInspector& inspector = place->inspector;
    const QString version = QStringLiteral("10.20.30");
    place->inspectWindow();
    if (place->rig.window.font().pointSize() <= 11)
        place->inspectStatus();
    place->rig.press("buttonConnect");
    for (const char* action : {"actionSettings", "actionAbout", "actionQuickstart"})
        place->trigger(action);
    const QString guide = GuideDialog::tr("Quickstart Guide");
    QTRY_VERIFY(inspector.titles().contains(guide));
    place->rig.window.lUpdateAvailable(version, QStringLiteral("none:"));
    place->rig.window.lUpdateMandatory(version, QStringLiteral("none:"));
    const QStringList expected{MainWindow::tr("Notice"), SettingsDialog::tr("Settings"),
                               MainWindow::tr("About Brumalogger Configuration Tool"),
                               MainWindow::tr("Update Available"), MainWindow::tr("Update Required")};
    QCOMPARE(missing(expected, inspector.titles()), QStringList());
    QVERIFY2(inspector.problems().isEmpty(), qPrintable(inspector.problems()));
}

QTEST_MAIN(TestWindowLanguages)
#include "tst_window_languages.moc"
