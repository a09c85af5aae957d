// The window beside a real web server: what stands in the version file comes to the operator.

#include "network/webfolder.h"
#include "procedurerig.h"
#include "support/browser.h"
#include "support/privatemember.h"
#include "update/filedownloader.h"
#include "update/updatechecker.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTest>

using namespace WindowWords;

// The answer may come while the window is still on its way to the screen, and no signal can be awaited then.
// What is under way hangs on the network manager.
struct NetworkManager
{
    using Member = QNetworkAccessManager FileDownloader::*;
    friend Member memberOf(NetworkManager);
};
template struct PrivateMember<NetworkManager, &FileDownloader::networkManager>;

namespace {

/// Returns once the window has read the version file, and done what comes of it.
bool checked(const ProcedureRig& rig)
{
    auto* downloader = rig.window.findChild<UpdateChecker*>()->findChild<FileDownloader*>();
    const QNetworkAccessManager& manager = downloader->*memberOf(NetworkManager());
    return QTest::qWaitFor([&manager] { return manager.findChildren<QNetworkReply*>().isEmpty(); });
}

} // namespace

class TestMainWindowUpdateCheck : public QObject
{
    Q_OBJECT

private slots:
    void nothingNewer_data();
    void nothingNewer();
    void newer();
    void newerBehindARedirect();
    void mandatory();
};

void TestMainWindowUpdateCheck::nothingNewer_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("no file") << QStringLiteral("other") << QByteArray("1.4.0\n");
    QTest::newRow("empty file") << versionFilePath << QByteArray();
    QTest::newRow("this version") << versionFilePath << QByteArray("1.3.3\n");
    QTest::newRow("error page") << QStringLiteral("error-404.html") << QByteArray("<html></html>\n");
}

void TestMainWindowUpdateCheck::nothingNewer()
{
    QFETCH(const QString, path);
    QFETCH(const QByteArray, body);
    const WebFolder web;
    web.put(path, body);
    ProcedureRig rig;
    QVERIFY(checked(rig));
    QCOMPARE(differences(rig, beforeAnyConnect()), QString());
}

void TestMainWindowUpdateCheck::newer()
{
    const WebFolder web;
    web.put(versionFilePath, "# newest first\n1.5.0 win32:http://get.example:81/1.5.0\n1.3.3\n");
    const Browser browser;
    ProcedureRig rig(quietSettings(), [](WindowRig& starting) {
        expectUpdate(starting.robot, QStringLiteral("1.5.0"), QMessageBox::Ok);
    });
    QVERIFY(checked(rig));
    QTRY_COMPARE(browser.opened, QList<QUrl>{QUrl(QStringLiteral("http://get.example:81/1.5.0"))});
    QCOMPARE(differences(rig, beforeAnyConnect()), QString());
}

void TestMainWindowUpdateCheck::newerBehindARedirect()
{
    const WebFolder web;
    web.put(versionFilePath + "/index", "1.5.0\n");
    const ProcedureRig rig(quietSettings(), [](WindowRig& starting) {
        expectUpdate(starting.robot, QStringLiteral("1.5.0"), QMessageBox::Cancel);
    });
    QVERIFY(checked(rig));
    QTRY_COMPARE(rig.robot.problems(), QString());
}

void TestMainWindowUpdateCheck::mandatory()
{
    const WebFolder web;
    web.put(versionFilePath, "1.5.0\n1.3.4 mandatory\n1.3.3\n");
    ProcedureRig rig(quietSettings(), [](WindowRig& starting) {
        expectMandatoryUpdate(starting.robot, QStringLiteral("1.5.0"), QMessageBox::Cancel);
    });
    rig.plug();
    QVERIFY(checked(rig));
    QTRY_VERIFY(!rig.window.isVisible());
    QCOMPARE(closedWindowRemains(rig), QString());
}

QTEST_MAIN(TestMainWindowUpdateCheck)
#include "tst_mainwindow_updatecheck.moc"
