// The prompts for a newer version, from the answer of the web server to the browser.

#include "update/filedownloader.h"
#include "updaterig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace WindowWords;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

constexpr int patience = 30000; // milliseconds
constexpr auto Ok = QMessageBox::Ok;
constexpr auto Cancel = QMessageBox::Cancel;
const QList<QUrl> productPage{QUrl(QStringLiteral("www.polarridgeworks.example/brumalogger"))};

/// The box now on show, or null.
QMessageBox* openBox()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (auto* box = qobject_cast<QMessageBox*>(window))
            return box;
    }
    return nullptr;
}

} // namespace

class TestMainWindowUpdates : public QObject
{
    Q_OBJECT

private slots:
    void asksOnceAtTheFirstShow();
    void nothingNewer();
    void newer_data();
    void newer();
    void mandatory_data();
    void mandatory();
    void mandatoryWithChanges_data();
    void mandatoryWithChanges();
    void boxHasNoParent();
    void oddVersions();
    void closedWindowStaysSilent_data();
    void closedWindowStaysSilent();
    void promptGoesWithTheWindow_data();
    void promptGoesWithTheWindow();
    void windowGoesBeforeTheAnswer();
};

void TestMainWindowUpdates::asksOnceAtTheFirstShow()
{
    UpdateRig update("1.3.3\n");
    QCOMPARE(update.server.requests().size(), 1);
    QVERIFY(update.server.requests().first().startsWith(
        "GET /redir/software/versions/brumaloggerconftool HTTP/1.1\r\n"));
    QVERIFY(update.release());
    update.rig.window.hide();
    update.rig.window.show();
    const MainWindow neverShown;
    const FileDownloader last(QUrl(QStringLiteral("http://www.polarridgeworks.example/last")), nullptr);
    QVERIFY(QSignalSpy(&last, &FileDownloader::downloaded).wait());
    QCOMPARE(update.server.requests().size(), 2);
    QVERIFY(update.server.requests().last().startsWith("GET /last "));
}

void TestMainWindowUpdates::nothingNewer()
{
    UpdateRig update("1.3.3\n1.4.0 mandatory\n");
    QVERIFY(update.release());
    QCOMPARE(update.browser.opened, QList<QUrl>());
    QCOMPARE(differences(update.rig, beforeAnyConnect()), QString());
}

void TestMainWindowUpdates::newer_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<QList<QUrl>>("opened");
    QTest::newRow("Ok") << newerFile << Ok << newerAddress;
    QTest::newRow("Cancel") << newerFile << Cancel << QList<QUrl>();
    QTest::newRow("Ok without address") << QByteArray("1.4.0\n") << Ok << productPage;
    QTest::newRow("Cancel without address") << QByteArray("1.4.0\n") << Cancel << QList<QUrl>();
}

void TestMainWindowUpdates::newer()
{
    QFETCH(const QByteArray, file);
    QFETCH(const QMessageBox::StandardButton, answer);
    UpdateRig update(file);
    expectUpdate(update.rig.robot, QStringLiteral("1.4.0"), answer);
    QVERIFY(update.prompt());
    QTRY_VERIFY(!openBox());
    QTEST(update.browser.opened, "opened");
    QVERIFY(update.rig.window.isVisible());
    QCOMPARE(differences(update.rig, beforeAnyConnect()), QString());
}

void TestMainWindowUpdates::mandatory_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<QList<QUrl>>("opened");
    QTest::newRow("Ok") << mandatoryFile << Ok << newerAddress;
    QTest::newRow("Cancel") << mandatoryFile << Cancel << QList<QUrl>();
    QTest::newRow("Ok without address") << QByteArray("1.4.0 mandatory\n") << Ok << productPage;
}

void TestMainWindowUpdates::mandatory()
{
    QFETCH(const QByteArray, file);
    QFETCH(const QMessageBox::StandardButton, answer);
    UpdateRig update(file);
    expectMandatoryUpdate(update.rig.robot, QStringLiteral("1.4.0"), answer);
    const QObject guard;
    QTimer::singleShot(patience, &guard, [] { QCoreApplication::exit(1); });
    update.server.release();
    QCOMPARE(QCoreApplication::exec(), 0); // which the last window ends
    QVERIFY(!update.rig.window.isVisible());
    QTEST(update.browser.opened, "opened");
    QCOMPARE(update.rig.robot.problems(), QString());
}

void TestMainWindowUpdates::mandatoryWithChanges_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<QMessageBox::StandardButton>("exitAnswer");
    QTest::newRow("Ok, No") << Ok << No;
    QTest::newRow("Ok, Yes") << Ok << Yes;
    QTest::newRow("Cancel, No") << Cancel << No;
    QTest::newRow("Cancel, Yes") << Cancel << Yes;
}

void TestMainWindowUpdates::mandatoryWithChanges()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    QFETCH(const QMessageBox::StandardButton, exitAnswer);
    UpdateRig update(mandatoryFile);
    ProcedureRig& rig = update.rig;
    rig.plugAndConnect();
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    expectMandatoryUpdate(rig.robot, QStringLiteral("1.4.0"), answer);
    expectExit(rig.robot, exitAnswer);
    QVERIFY(update.prompt());
    QTRY_COMPARE(rig.robot.problems(), QString());
    QTRY_VERIFY(!openBox());
    QCOMPARE(update.browser.opened, answer == Ok ? newerAddress : QList<QUrl>());
    if (exitAnswer == Yes) {
        QCOMPARE(closedWindowRemains(rig), QString());
    } else {
        QVERIFY(rig.window.isVisible());
        QCOMPARE(rig.text("lineInfo"), QStringLiteral("Batch 8"));
        QCOMPARE(differences(rig, idle(connected().status, true)), QString());
    }
}

void TestMainWindowUpdates::boxHasNoParent()
{
    UpdateRig update(newerFile);
    QMessageBox plain(QMessageBox::NoIcon, QString(), QString());
    bool asTold = false;
    connect(&update.rig.robot, &DialogRobot::sBoxOpened, &update.rig.window, [&] {
        const QWidget* box = QApplication::activeModalWidget();
        asTold = box && !box->parent() && box->windowFlags() == plain.windowFlags();
    });
    expectUpdate(update.rig.robot, QStringLiteral("1.4.0"), Cancel);
    QVERIFY(update.prompt());
    QVERIFY(asTold);
    QCOMPARE(update.rig.robot.problems(), QString());
}

// What looks like a place holder is the version's own, letter for letter.
void TestMainWindowUpdates::oddVersions()
{
    UpdateRig update("9.%2.%3 win32:%4\n");
    expectUpdate(update.rig.robot, QStringLiteral("9.%2.%3"), Cancel);
    QVERIFY(update.prompt());
    QCOMPARE(update.rig.robot.problems(), QString());
}

void TestMainWindowUpdates::closedWindowStaysSilent_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("newer") << newerFile;
    QTest::newRow("mandatory") << mandatoryFile;
}

void TestMainWindowUpdates::closedWindowStaysSilent()
{
    QFETCH(const QByteArray, file);
    UpdateRig update(file);
    update.rig.plug();
    update.rig.type("lineInfo", QStringLiteral("Batch 8"));
    expectExit(update.rig.robot, Yes);
    update.rig.window.close();
    QVERIFY(update.release());
    QCOMPARE(closedWindowRemains(update.rig), QString());
    QCOMPARE(update.browser.opened, QList<QUrl>());
}

// As it may when the session ends: no second question, and nothing to be seen.
void TestMainWindowUpdates::promptGoesWithTheWindow_data()
{
    closedWindowStaysSilent_data();
}

void TestMainWindowUpdates::promptGoesWithTheWindow()
{
    QFETCH(const QByteArray, file);
    UpdateRig update(file);
    ProcedureRig& rig = update.rig;
    rig.plug();
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    auto* once = new QObject(&rig.robot);
    connect(&rig.robot, &DialogRobot::sBoxOpened, once, [&rig, once] {
        delete once;
        rig.window.close();
    });
    expectExit(rig.robot, Yes); // the box on top is answered first
    if (file == newerFile)
        expectUpdate(rig.robot, QStringLiteral("1.4.0"), Ok);
    else
        expectMandatoryUpdate(rig.robot, QStringLiteral("1.4.0"), Ok);
    QVERIFY(update.prompt());
    QTRY_VERIFY(!openBox());
    QCOMPARE(closedWindowRemains(rig), QString());
    QCOMPARE(update.browser.opened, QList<QUrl>());
}

void TestMainWindowUpdates::windowGoesBeforeTheAnswer()
{
    HttpResponder server;
    {
        const ProcedureRig rig;
        QTRY_COMPARE(server.requests().size(), 1);
    }
    const ProcedureRig next;
    QTRY_COMPARE(server.requests().size(), 2);
    QCOMPARE(next.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowUpdates)
#include "tst_mainwindow_updates.moc"
