// Files fetched from a real web server.

#include "network/webfolder.h"
#include "update/filedownloader.h"

#include <QSignalSpy>
#include <QUrl>
#include <QtTest>

namespace {

constexpr int largeSize = 64 * 1024 * 1024;

QUrl at(const QString& path)
{
    return QUrl(QStringLiteral("http://www.polarridgeworks.example/") + path);
}

/// The body that comes for a path, and how often it was told to be there.
struct Fetched
{
    explicit Fetched(const QString& path)
        : downloader(at(path), nullptr)
        , downloaded(&downloader, &FileDownloader::downloaded)
    {
        came = downloader.downloadedData().isEmpty() && downloaded.wait();
        body = downloader.downloadedData();
    }

    FileDownloader downloader;
    QSignalSpy downloaded;
    bool came;
    QByteArray body;
};

} // namespace

class TestFileDownloader : public QObject
{
    Q_OBJECT

private slots:
    void fetches_data();
    void fetches();
    void nothingThere();
    void errorPage();
    void redirects_data();
    void redirects();
    void redirectsWithoutEnd();
    void redirectsToWhereNothingIs();
    void twoAtOnce();
};

void TestFileDownloader::fetches_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("text") << QByteArray("1.4.0\n1.3.3\n");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zero bytes") << QByteArray("a\0b\0", 4);
    QTest::newRow("binary") << QByteArray::fromHex("00ff0d0a1a1b8080");
    QTest::newRow("large") << QByteArray(largeSize, 'x');
}

void TestFileDownloader::fetches()
{
    QFETCH(const QByteArray, body);
    const WebFolder web;
    web.put(QStringLiteral("file"), body);
    const Fetched fetched(QStringLiteral("file"));
    QVERIFY(fetched.came);
    QCOMPARE(fetched.downloaded.size(), 1);
    QVERIFY(fetched.body == body);
}

// The server's own words for it are as good as any other file.
void TestFileDownloader::nothingThere()
{
    const WebFolder web;
    const Fetched fetched(QStringLiteral("file"));
    QVERIFY(fetched.came);
    QVERIFY(fetched.body.contains("404 Not Found"));
}

void TestFileDownloader::errorPage()
{
    const WebFolder web;
    web.put(QStringLiteral("error-404.html"), "nothing here");
    const Fetched fetched(QStringLiteral("file"));
    QVERIFY(fetched.came);
    QCOMPARE(fetched.body, QByteArray("nothing here"));
}

void TestFileDownloader::redirects_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("once") << QStringLiteral("moved/file");
    QTest::newRow("three times") << QStringLiteral("moved/moved/moved/file");
    QTest::newRow("to another host") << QStringLiteral("elsewhere/file");
}

void TestFileDownloader::redirects()
{
    QFETCH(const QString, path);
    const WebFolder web;
    web.put(QStringLiteral("file"), "body");
    const Fetched fetched(path);
    QVERIFY(fetched.came);
    QCOMPARE(fetched.downloaded.size(), 1);
    QCOMPARE(fetched.body, QByteArray("body"));
}

void TestFileDownloader::redirectsWithoutEnd()
{
    const WebFolder web;
    const Fetched fetched(QStringLiteral("round"));
    QVERIFY(fetched.came);
    QCOMPARE(fetched.body, QByteArray());
}

void TestFileDownloader::redirectsToWhereNothingIs()
{
    const WebFolder web;
    const Fetched fetched(QStringLiteral("secure"));
    QVERIFY(fetched.came);
    QCOMPARE(fetched.body, QByteArray());
}

void TestFileDownloader::twoAtOnce()
{
    const WebFolder web;
    web.put(QStringLiteral("one"), "1");
    web.put(QStringLiteral("two"), "2");
    FileDownloader first(at(QStringLiteral("one")), nullptr);
    FileDownloader second(at(QStringLiteral("two")), nullptr);
    QTRY_COMPARE(first.downloadedData() + second.downloadedData(), QByteArray("12"));
}

QTEST_GUILESS_MAIN(TestFileDownloader)
#include "tst_filedownloader.moc"
