// What is asked of a web server, letter for letter, and answers that no real one would give.

#include "network/httpresponder.h"
#include "network/webfolder.h"
#include "support/loglines.h"
#include "update/filedownloader.h"
#include "update/updatechecker.h"

#include <QSignalSpy>
#include <QUrl>
#include <QtTest>

class TestFileDownloaderRequests : public QObject
{
    Q_OBJECT

private slots:
    void request();
    void answers_data();
    void answers();
    void silence();
    void noServer_data();
    void noServer();
};

void TestFileDownloaderRequests::request()
{
    HttpResponder server;
    server.setAnswer(httpAnswer("1.3.3\n"));
    UpdateChecker checker(1, 3, 3, nullptr);
    checker.check();
    QVERIFY(QSignalSpy(checker.findChild<FileDownloader*>(), &FileDownloader::downloaded).wait());
    QCOMPARE(server.requests().size(), 1);
    const QList<QByteArray> lines = server.requests().first().split('\n');
    QCOMPARE(lines.first(), QByteArray("GET /redir/software/versions/brumaloggerconftool HTTP/1.1\r"));
    QVERIFY(lines.contains("User-Agent: Mozilla Firefox\r"));
    QVERIFY(lines.contains("Host: www.polarridgeworks.example\r"));
}

void TestFileDownloaderRequests::answers_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QByteArray>("body");
    const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n";
    const QByteArray chunks = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n6\r\n1.4.0\n\r\n";
    QTest::newRow("whole") << httpAnswer("1.4.0") << QByteArray("1.4.0");
    QTest::newRow("cut off") << head + "1.4.0\n1." << QByteArray("1.4.0\n1.");
    QTest::newRow("cut off behind the head") << head << QByteArray();
    QTest::newRow("cut off in the head") << head.left(20) << QByteArray();
    QTest::newRow("chunks") << chunks + "0\r\n\r\n" << QByteArray("1.4.0\n");
    QTest::newRow("chunks cut off") << chunks << QByteArray("1.4.0\n");
    QTest::newRow("without a length") << QByteArray("HTTP/1.0 200 OK\r\n\r\n1.4.0") << QByteArray("1.4.0");
    QTest::newRow("more than told") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\n1.4.0")
                                    << QByteArray("1.4");
    QTest::newRow("server error") << QByteArray("HTTP/1.1 500 Out of order\r\nContent-Length: 5\r\n\r\n1.4.0")
                                  << QByteArray("1.4.0");
    QTest::newRow("no content") << QByteArray("HTTP/1.1 204 Nothing\r\n\r\n") << QByteArray();
    QTest::newRow("redirect to no address")
        << QByteArray("HTTP/1.1 302 Found\r\nContent-Length: 0\r\n\r\n") << QByteArray();
    QTest::newRow("redirect to a file") << QByteArray("HTTP/1.1 302 Found\r\nLocation: file:///etc/passwd\r\n"
                                                      "Content-Length: 0\r\n\r\n")
                                        << QByteArray();
    QTest::newRow("no HTTP") << QByteArray("1.4.0\n1.3.3\n") << QByteArray();
    QTest::newRow("zeros") << QByteArray(1000, '\0') << QByteArray();
}

void TestFileDownloaderRequests::answers()
{
    QFETCH(const QByteArray, answer);
    HttpResponder server;
    server.setAnswer(answer);
    const FileDownloader downloader(QUrl(QStringLiteral("http://www.polarridgeworks.example/file")), nullptr);
    QSignalSpy downloaded(&downloader, &FileDownloader::downloaded);
    QVERIFY(downloaded.wait());
    QTEST(downloader.downloadedData(), "body");
    QCOMPARE(downloaded.size(), 1);
}

// Nothing is told, and the checker can go at any time.
void TestFileDownloaderRequests::silence()
{
    HttpResponder server;
    const LogLines log;
    {
        UpdateChecker checker(1, 3, 3, nullptr);
        checker.check();
        QSignalSpy downloaded(checker.findChild<FileDownloader*>(), &FileDownloader::downloaded);
        QTRY_COMPARE(server.requests().size(), 1);
        QVERIFY(!downloaded.wait(300));
    }
    QCOMPARE(log.all(), QStringList());
}

void TestFileDownloaderRequests::noServer_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::newRow("refused") << QUrl(QStringLiteral("http://refusing.test/file"));
    QTest::newRow("unknown host") << QUrl(QStringLiteral("http://unknown.test/file"));
    QTest::newRow("no host") << QUrl(QStringLiteral("http:///file"));
    QTest::newRow("nothing") << QUrl();
}

void TestFileDownloaderRequests::noServer()
{
    QFETCH(const QUrl, url);
    const LogLines log;
    const FileDownloader downloader(url, nullptr);
    QSignalSpy downloaded(&downloader, &FileDownloader::downloaded);
    QVERIFY(downloaded.wait());
    QCOMPARE(downloader.downloadedData(), QByteArray());
    QCOMPARE(log.all(), QStringList());
}

QTEST_GUILESS_MAIN(TestFileDownloaderRequests)
#include "tst_filedownloader_requests.moc"
