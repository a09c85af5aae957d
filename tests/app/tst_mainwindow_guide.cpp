// The Quickstart guide beside the window: opened from its menu, closed with it.

#include "procedurerig.h"
#include "windowwords.h"

#include "dialogs/guidedialog.h"
#include "dialogs/languagetable.h"
#include "dialogs/settingsdialog.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>

namespace {

/// The guide of the only window that there is.
GuideDialog* guide()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<GuideDialog*>(widget))
            return dialog;
    }
    qFatal("no guide");
    return nullptr;
}

QTextBrowser* browser()
{
    return guide()->findChild<QTextBrowser*>();
}

void openGuide(const WindowRig& rig)
{
    rig.find<QAction>("actionQuickstart")->trigger();
    if (!QTest::qWaitForWindowExposed(guide()))
        qFatal("the guide was never exposed");
}

} // namespace

class TestMainWindowGuide : public QObject
{
    Q_OBJECT

private slots:
    void isAWindowOfItsOwn();
    void windowStaysUsable();
    void closesWithTheWindow();
    void staysWhenTheWindowStays();
    void opensAmidAProcedure();
    void openingAgainBeginsAtTheTop();
    void languageChosenNowIsForTheNextStart();
};

void TestMainWindowGuide::isAWindowOfItsOwn()
{
    const WindowRig rig;
    QVERIFY(!guide()->isVisible());
    openGuide(rig);
    QCOMPARE(guide()->parent(), nullptr);
    QVERIFY(guide()->isWindow());
    QVERIFY(!guide()->isModal());
    QVERIFY(browser()->toPlainText().contains(QStringLiteral("Quickstart Guide")));
}

void TestMainWindowGuide::windowStaysUsable()
{
    ProcedureRig rig;
    openGuide(rig);
    rig.plugAndConnect();
    QVERIFY(rig.controlsEnabled());
    guide()->close();
    QVERIFY(rig.window.isVisible());
    QVERIFY(rig.controlsEnabled());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowGuide::closesWithTheWindow()
{
    WindowRig rig;
    openGuide(rig);
    QVERIFY(rig.window.close());
    QVERIFY(!guide()->isVisible());
}

void TestMainWindowGuide::staysWhenTheWindowStays()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    openGuide(rig);
    rig.find<QLineEdit>("lineSender")->setText(QStringLiteral("changed"));
    WindowWords::expectExit(rig.robot, QMessageBox::No);
    QVERIFY(!rig.window.close());
    QVERIFY(guide()->isVisible());
    WindowWords::expectExit(rig.robot, QMessageBox::Yes);
    QVERIFY(rig.window.close());
    QVERIFY(!guide()->isVisible());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowGuide::opensAmidAProcedure()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.atCommand(3, [&] { rig.find<QAction>("actionQuickstart")->trigger(); });
    rig.press("buttonRead");
    QVERIFY(guide()->isVisible());
    QCOMPARE(rig.status(), QStringLiteral("Read successful"));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowGuide::openingAgainBeginsAtTheTop()
{
    const WindowRig rig;
    openGuide(rig);
    QScrollBar* position = browser()->verticalScrollBar();
    position->setValue(position->maximum());
    openGuide(rig); // it is open already
    QCOMPARE(position->value(), position->maximum());
    guide()->close();
    openGuide(rig);
    QCOMPARE(position->value(), 0);
}

void TestMainWindowGuide::languageChosenNowIsForTheNextStart()
{
    WindowRig rig(quietSettingsWith({{QStringLiteral("language"), QStringLiteral("it_ch")}}));
    rig.window.lSetLanguages({{QStringLiteral("en_us"), {QStringLiteral("English (US)"), {}}},
                              {QStringLiteral("it_ch"), {QStringLiteral("Italiano (IT)"), {}}}});
    openGuide(rig);
    const QString italian = browser()->toPlainText();
    QVERIFY(italian.contains(QStringLiteral("Guida rapida")));

    auto* dialog = rig.window.findChild<SettingsDialog*>();
    dialog->open();
    rig.robot.expectInformation(
        QStringLiteral("Information"),
        QStringLiteral("Please click OK and restart the application for these settings to take effect."),
        "SettingsDialog");
    auto* combo = child<QComboBox>(*dialog, "comboLanguage");
    combo->setCurrentIndex(combo->findData(QStringLiteral("en_us")));
    dialog->accept();
    QCOMPARE(rig.robot.problems(), QString());
    QCOMPARE(WorkFolder::configuration().value(QStringLiteral("language")), QStringLiteral("en_us"));

    openGuide(rig);
    QCOMPARE(browser()->toPlainText(), italian);
    guide()->close();
    openGuide(rig);
    QCOMPARE(browser()->toPlainText(), italian);
}

QTEST_MAIN(TestMainWindowGuide)
#include "tst_mainwindow_guide.moc"
