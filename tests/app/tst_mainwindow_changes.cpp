// What the operator has changed: the mark in the title, and the question before it is lost with the window.

#include "formrows.h"
#include "procedurerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

namespace {

const QString plainTitle = QStringLiteral("Brumalogger Configuration Tool");
const QString starredTitle = QStringLiteral("Brumalogger Configuration Tool*");

constexpr const char* spins[] = {"spinSampling", "spinDelay", "spindTempMin", "spindTempMax"};

/// Changes one control as an operator does; the step tells one change from the next.
void change(WindowRig& rig, const QString& name, int step)
{
    auto* widget = rig.find<QWidget>(qPrintable(name));
    if (auto* combo = qobject_cast<QComboBox*>(widget))
        combo->setCurrentIndex((combo->currentIndex() + 1) % combo->count());
    else if (auto* check = qobject_cast<QCheckBox*>(widget))
        check->click();
    else
        QTest::keyClick(widget, static_cast<char>('a' + step));
}

} // namespace

class TestMainWindowChanges : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void changesMarkTheTitle_data();
    void changesMarkTheTitle();
    void programChangesMarkTheTitle();
    void spinBoxesMarkNothing();
    void readAndDisconnectTakeTheMarkAway();
    void closesUnmodified();
    void noKeepsTheWindow();
    void yesClosesTheLink();
    void exitQuestionIsPlain();
};

// Windows are closed here, and that is no end of the tests.
void TestMainWindowChanges::initTestCase()
{
    QApplication::setQuitOnLastWindowClosed(false);
}

void TestMainWindowChanges::changesMarkTheTitle_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : lineNames)
        QTest::newRow(name) << name;
    for (const char* name : comboNames)
        QTest::newRow(name) << name;
    QTest::newRow("checkLock") << "checkLock";
}

void TestMainWindowChanges::changesMarkTheTitle()
{
    QFETCH(const QString, name);
    ProcedureRig rig;
    rig.plugAndConnect();
    QCOMPARE(rig.title(), plainTitle);
    for (int step = 0; step < 3; ++step) {
        change(rig, name, step);
        QCOMPARE(rig.title(), starredTitle);
    }
    WindowWords::expectExit(rig.robot, QMessageBox::Yes);
    QVERIFY(rig.window.close());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowChanges::programChangesMarkTheTitle()
{
    for (const char* name : lineNames) {
        ProcedureRig rig;
        rig.find<QLineEdit>(name)->setText(QStringLiteral("x"));
        QCOMPARE(rig.title(), starredTitle);
    }
    for (const char* name : comboNames) {
        ProcedureRig rig;
        rig.find<QComboBox>(name)->setCurrentIndex(1);
        QCOMPARE(rig.title(), starredTitle);
    }
    ProcedureRig rig;
    rig.find<QCheckBox>("checkLock")->setChecked(true);
    QCOMPARE(rig.title(), starredTitle);
}

void TestMainWindowChanges::spinBoxesMarkNothing()
{
    ProcedureRig rig;
    rig.plugAndConnect(customLogger());
    for (const char* name : spins) {
        QVERIFY2(rig.isEnabled(name), name);
        const double before = rig.value(name);
        QTest::keyClick(rig.find<QWidget>(name), Qt::Key_Up);
        QCOMPARE(rig.value(name), before + 1);
    }
    QCOMPARE(rig.title(), plainTitle);
    QVERIFY(rig.window.close());
    QVERIFY(!rig.window.isVisible());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowChanges::readAndDisconnectTakeTheMarkAway()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    change(rig, "lineInfo", 0);
    WindowWords::expectReadQuestion(rig.robot, QMessageBox::Yes);
    rig.press("buttonRead");
    QCOMPARE(rig.title(), plainTitle);
    QCOMPARE(rig.text("lineInfo"), QStringLiteral("Batch 7"));

    change(rig, "lineInfo", 0);
    WindowWords::expectDisconnecting(rig.robot, QMessageBox::Yes);
    rig.press("buttonConnect");
    QCOMPARE(rig.title(), plainTitle);
    QVERIFY(rig.window.close());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowChanges::closesUnmodified()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    QVERIFY(rig.window.close());
    QVERIFY(!rig.window.isVisible());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowChanges::noKeepsTheWindow()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    for (const char* name : lineNames)
        change(rig, name, 0);
    for (const char* name : comboNames)
        change(rig, name, 0);
    change(rig, "checkLock", 0);
    const QStringList before = panels(rig) + setupNumbers(rig);

    WindowWords::expectExit(rig.robot, QMessageBox::No);
    QVERIFY(!rig.window.close());
    QVERIFY(rig.window.isVisible());
    QCOMPARE(rig.title(), starredTitle);
    QCOMPARE(panels(rig) + setupNumbers(rig), before);
    QVERIFY(rig.controlsEnabled());
    QCOMPARE(rig.wire(), QList<QByteArray>());
    rig.press("buttonWrite"); // over the link, which is still open
    QCOMPARE(rig.status(), QStringLiteral("Write successful"));
    QCOMPARE(rig.robot.problems(), QString());
}

// A link that is open would now be closed, and no command would go out.
void TestMainWindowChanges::yesClosesTheLink()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    change(rig, "lineSender", 0);
    WindowWords::expectExit(rig.robot, QMessageBox::Yes);
    QVERIFY(rig.window.close());
    QVERIFY(!rig.window.isVisible());
    QCOMPARE(rig.wire(), QList<QByteArray>());

    rig.window.show();
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowChanges::exitQuestionIsPlain()
{
    ProcedureRig rig;
    rig.find<QLineEdit>("lineInfo")->setText(QStringLiteral("x"));
    const QMessageBox* box = nullptr;
    const QObject* parent = nullptr;
    const QPushButton* chosenBefore = nullptr;
    connect(&rig.robot, &DialogRobot::sBoxOpened, this, [&] {
        box = rig.window.findChild<QMessageBox*>();
        parent = box ? box->parent() : nullptr;
        chosenBefore = box ? box->defaultButton() : nullptr;
    });
    WindowWords::expectExit(rig.robot, QMessageBox::Yes);
    QVERIFY(rig.window.close());
    QVERIFY(box);
    QCOMPARE(parent, &rig.window);
    QVERIFY(!chosenBefore);
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowChanges)
#include "tst_mainwindow_changes.moc"
