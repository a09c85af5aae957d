// A prompt for a version that must be installed comes over a file dialog or a box that tells no news of a
// device: all of it goes with the window, and nothing is chosen.

#include "dialogs/settingsdialog.h"
#include "support/filedialoghand.h"
#include "support/nextchance.h"
#include "updaterig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QToolButton>

using namespace WindowWords;

namespace {

/// A window with a logger, and a hand that chooses a file once the prompt was answered.
struct PromptedRig : UpdateRig
{
    PromptedRig()
        : UpdateRig(mandatoryFile)
        , hand(QDir::current().filePath(QStringLiteral("new.bpr")))
        , settings(rig.window.findChild<SettingsDialog*>())
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        rig.plugAndConnect();
        rig.takeStatusLog();
        QObject::connect(&hand, &FileDialogHand::sOpened, &rig.window,
                         [this](QFileDialog* dialog) { promptOver(dialog); });
    }

    /// Lets the prompt come; `stayed` is whether @p open is there afterwards.
    void promptOver(QWidget* open)
    {
        const QPointer<QWidget> before = open;
        prompted = prompt() && QTest::qWaitFor([this] { return !rig.window.isVisible(); });
        stayed = before && before->isVisible();
    }

    /// Lets it come over the box with this title.
    void promptOverBox(const QString& title)
    {
        QObject::connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window,
                         [this, title](const QString& opened) {
                             if (opened == title)
                                 promptOver(QApplication::activeModalWidget());
                         });
    }

    /// Expects the prompt; what is told after this is below it, and so answered later.
    void expectPrompt() { expectMandatoryUpdate(rig.robot, QStringLiteral("1.4.0"), QMessageBox::Ok); }

    FileDialogHand hand;
    SettingsDialog* settings;
    bool stayed = true;
};

} // namespace

class TestMainWindowPromptFileDialogs : public QObject
{
    Q_OBJECT

private slots:
    void overAPresetsDialog_data();
    void overAPresetsDialog();
    void overTheAboutBox();
    void overTheSettingsFileDialog();
    void overTheLanguageNotice();
};

void TestMainWindowPromptFileDialogs::overAPresetsDialog_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("saving") << QByteArray("actionSave");
    QTest::newRow("loading") << QByteArray("actionLoad");
}

void TestMainWindowPromptFileDialogs::overAPresetsDialog()
{
    QFETCH(const QByteArray, action);
    PromptedRig update;
    update.expectPrompt();
    update.rig.find<QAction>(action)->trigger();
    QVERIFY(update.prompted);
    QVERIFY(!update.stayed);
    QVERIFY(!QFile::exists(QStringLiteral("new.bpr")));
    QCOMPARE(update.rig.takeStatusLog(), QStringList());
    QCOMPARE(closedWindowRemains(update.rig), QString());
}

void TestMainWindowPromptFileDialogs::overTheAboutBox()
{
    PromptedRig update;
    update.promptOverBox(QStringLiteral("About Brumalogger Configuration Tool"));
    update.expectPrompt();
    expectAbout(update.rig.robot);
    update.rig.find<QAction>("actionAbout")->trigger();
    QVERIFY(update.prompted);
    QVERIFY(!update.stayed);
    QCOMPARE(closedWindowRemains(update.rig), QString());
}

void TestMainWindowPromptFileDialogs::overTheSettingsFileDialog()
{
    PromptedRig update;
    atNextChance(update.settings, [&update] { child<QToolButton>(*update.settings, "buttonTool")->click(); });
    update.expectPrompt();
    update.rig.find<QAction>("actionSettings")->trigger();
    QCOMPARE(update.hand.parent, update.settings);
    QVERIFY(update.prompted);
    QVERIFY(!update.stayed);
    QCOMPARE(child<QLineEdit>(*update.settings, "lineFilename")->text(), QString());
    QCOMPARE(closedWindowRemains(update.rig), QString());
}

void TestMainWindowPromptFileDialogs::overTheLanguageNotice()
{
    PromptedRig update;
    update.rig.window.lSetLanguages({{QStringLiteral("de_de"), {QStringLiteral("Deutsch (DE)"), QString()}},
                                     {QStringLiteral("en_us"), {QStringLiteral("English (US)"), QString()}}});
    update.promptOverBox(QStringLiteral("Information"));
    update.expectPrompt();
    update.rig.robot.expectInformation(
        QStringLiteral("Information"),
        QStringLiteral("Please click OK and restart the application for these settings to take effect."),
        "SettingsDialog");
    atNextChance(update.settings,
                 [&update] { child<QComboBox>(*update.settings, "comboLanguage")->setCurrentIndex(1); });
    update.rig.find<QAction>("actionSettings")->trigger();
    QVERIFY(update.prompted);
    QVERIFY(!update.stayed);
    QCOMPARE(closedWindowRemains(update.rig), QString());
}

QTEST_MAIN(TestMainWindowPromptFileDialogs)
#include "tst_mainwindow_promptfiledialogs.moc"
