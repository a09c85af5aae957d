// The question for a newer version, asked of a real web server: one signal or none, and what is logged.

#include "network/webfolder.h"
#include "support/loglines.h"
#include "update/filedownloader.h"
#include "update/updatechecker.h"

#include <QDir>
#include <QLibraryInfo>
#include <QSignalSpy>
#include <QtTest>

namespace {

/// A checker of version 1.3.3 and the signals that it has emitted, as "available 1.4.0 URL".
struct Desk
{
    Desk()
    {
        QObject::connect(&checker, &UpdateChecker::sUpdateAvailable, &checker,
                         [this](const QString& ver, const QString& url) { note("available", ver, url); });
        QObject::connect(&checker, &UpdateChecker::sUpdateMandatory, &checker,
                         [this](const QString& ver, const QString& url) { note("mandatory", ver, url); });
    }

    void note(const char* what, const QString& ver, const QString& url)
    {
        signalsSeen << QStringLiteral("%1 %2 %3").arg(QLatin1String(what), ver, url);
    }

    /// Asks, and returns once the answer has been read.
    bool check()
    {
        checker.check();
        const auto* downloader = checker.findChild<FileDownloader*>();
        return downloader && QSignalSpy(downloader, &FileDownloader::downloaded).wait();
    }

    UpdateChecker checker{1, 3, 3, nullptr};
    QStringList signalsSeen;
};

} // namespace

class TestUpdateChecker : public QObject
{
    Q_OBJECT

private slots:
    void signalsAndLog_data();
    void signalsAndLog();
    void nothingThere();
    void errorPage();
    void errorPageThatReadsLikeTheFile();
    void redirected();
    void otherVersions_data();
    void otherVersions();
    void isQuietBeforeTheCheck();
    void downloaderLivesWithTheChecker();
    void loadsNoBearerPlugins();
    void goneInTheMiddle();
};

void TestUpdateChecker::signalsAndLog_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("signalsSeen");
    QTest::addColumn<QStringList>("log");
    const QString url = QStringLiteral("http://get.example:8080/1.4.0");
    const QString urlLine = QStringLiteral("info: Update URL:  \"%1\"").arg(url);
    const QString available = QStringLiteral("info: Update available to version  \"1.4.0\"");
    const QString mandatory = QStringLiteral("info: Mandatory update to version  \"1.4.0\"");
    const QByteArray newest = "1.4.0 win32:" + url.toLatin1() + '\n';

    QTest::newRow("newer") << newest << QStringList("available 1.4.0 " + url)
                           << QStringList({urlLine, available});
    QTest::newRow("newer without address")
        << QByteArray("1.4.0\n") << QStringList("available 1.4.0 ") << QStringList(available);
    QTest::newRow("newer with the address of another platform")
        << QByteArray("1.4.0 mac:x\n1.3.4 win32:x\n") << QStringList("available 1.4.0 ")
        << QStringList(available);
    QTest::newRow("mandatory on the way")
        << newest + "1.3.5 mandatory win32:old\n1.3.3\n"
        << QStringList("mandatory 1.4.0 " + url) << QStringList({urlLine, mandatory});
    QTest::newRow("mandatory without address")
        << QByteArray("1.4.0 mandatory\n") << QStringList("mandatory 1.4.0 ") << QStringList(mandatory);
    QTest::newRow("MANDATORY") << QByteArray("1.4.0 MANDATORY\n") << QStringList("available 1.4.0 ")
                               << QStringList(available);
    QTest::newRow("no newer one") << QByteArray("1.3.3\n1.4.0 mandatory win32:x\n") << QStringList()
                                  << QStringList();
    QTest::newRow("broken behind a newer one") << newest + "\n1.3.3\n" << QStringList() << QStringList();
    QTest::newRow("empty") << QByteArray() << QStringList() << QStringList();
}

void TestUpdateChecker::signalsAndLog()
{
    QFETCH(const QByteArray, file);
    const WebFolder web;
    web.put(versionFilePath, file);
    Desk desk;
    const LogLines log;
    QVERIFY(desk.check());
    QTEST(desk.signalsSeen, "signalsSeen");
    QTEST(log.all(), "log");
}

void TestUpdateChecker::nothingThere()
{
    const WebFolder web;
    Desk desk;
    const LogLines log;
    QVERIFY(desk.check());
    QCOMPARE(desk.signalsSeen, QStringList());
    QCOMPARE(log.all(), QStringList());
}

void TestUpdateChecker::errorPage()
{
    const WebFolder web;
    web.put(QStringLiteral("error-404.html"), "<html>\n1.4.0\n</html>\n");
    Desk desk;
    QVERIFY(desk.check());
    QCOMPARE(desk.signalsSeen, QStringList());
}

void TestUpdateChecker::errorPageThatReadsLikeTheFile()
{
    const WebFolder web;
    web.put(QStringLiteral("error-404.html"), "1.4.0\n");
    Desk desk;
    QVERIFY(desk.check());
    QCOMPARE(desk.signalsSeen, QStringList("available 1.4.0 "));
}

// To the folder's own address, which ends in a slash.
void TestUpdateChecker::redirected()
{
    const WebFolder web;
    web.put(versionFilePath + "/index", "1.4.0 mandatory win32:x\n");
    Desk desk;
    QVERIFY(desk.check());
    QCOMPARE(desk.signalsSeen, QStringList("mandatory 1.4.0 x"));
}

void TestUpdateChecker::otherVersions_data()
{
    QTest::addColumn<QList<int>>("own");
    QTest::addColumn<bool>("newer");
    QTest::newRow("patch") << QList<int>{1, 4, 1} << true;
    QTest::newRow("minor") << QList<int>{1, 3, 9} << true;
    QTest::newRow("major") << QList<int>{0, 9, 9} << true;
    QTest::newRow("the same") << QList<int>{1, 4, 2} << false;
    QTest::newRow("newer patch") << QList<int>{1, 4, 3} << false;
    QTest::newRow("newer minor") << QList<int>{1, 5, 0} << false;
    QTest::newRow("newer major") << QList<int>{2, 0, 0} << false;
}

void TestUpdateChecker::otherVersions()
{
    QFETCH(const QList<int>, own);
    QFETCH(const bool, newer);
    const WebFolder web;
    web.put(versionFilePath, "1.4.2\n");
    UpdateChecker checker(own.at(0), own.at(1), own.at(2), nullptr);
    QSignalSpy available(&checker, &UpdateChecker::sUpdateAvailable);
    checker.check();
    QVERIFY(QSignalSpy(checker.findChild<FileDownloader*>(), &FileDownloader::downloaded).wait());
    QCOMPARE(available.size(), newer ? 1 : 0);
}

void TestUpdateChecker::isQuietBeforeTheCheck()
{
    Desk desk;
    QVERIFY(!desk.checker.findChild<FileDownloader*>());
    desk.checker.lParseFile();
    desk.checker.check();
    desk.checker.lParseFile(); // nothing has come so far
    QCOMPARE(desk.signalsSeen, QStringList());
}

void TestUpdateChecker::downloaderLivesWithTheChecker()
{
    const WebFolder web;
    web.put(versionFilePath, "1.4.0\n");
    Desk desk;
    QVERIFY(desk.check());
    const auto* downloader = desk.checker.findChild<FileDownloader*>();
    QCOMPARE(downloader->parent(), &desk.checker);
    QCOMPARE(downloader->downloadedData(), QByteArray("1.4.0\n"));
}

void TestUpdateChecker::loadsNoBearerPlugins()
{
    QVERIFY(QDir(QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/bearer").exists());
    const QStringList paths = QCoreApplication::libraryPaths();
    QVERIFY(!paths.isEmpty());
    const WebFolder web;
    Desk desk;
    QVERIFY(desk.check());
    QFile mapped(QStringLiteral("/proc/self/maps"));
    QVERIFY(mapped.open(QIODevice::ReadOnly));
    QVERIFY(!mapped.readAll().contains("/bearer/"));
    QCOMPARE(QCoreApplication::libraryPaths(), paths);
}

void TestUpdateChecker::goneInTheMiddle()
{
    const WebFolder web;
    web.put(versionFilePath, "1.4.0\n");
    {
        Desk desk;
        desk.checker.check();
    }
    Desk next;
    QVERIFY(next.check());
    QCOMPARE(next.signalsSeen, QStringList("available 1.4.0 "));
}

QTEST_GUILESS_MAIN(TestUpdateChecker)
#include "tst_updatechecker.moc"
