// What a version file says to version 1.3.3, however odd the file is.

#include "update/versionfile.h"

#include <QtTest>

#include <limits>

namespace {

const QString site = QStringLiteral("http://get.example/1.4.0");
constexpr qint64 own = 1003003;
constexpr int manyLines = 20000;
constexpr int hugeSize = 32 * 1024 * 1024;

/// What is found, in one line: "1.4.0 must URL".
QString inWords(const VersionNews& news)
{
    return QStringLiteral("%1 %2 %3")
        .arg(news.version,
             news.found ? (news.mandatory ? QStringLiteral("must") : QStringLiteral("may")) : QString(),
             news.url)
        .trimmed();
}

QString newsOf(const QByteArray& file)
{
    return inWords(readVersionFile(file, own));
}

} // namespace

class TestVersionFile : public QObject
{
    Q_OBJECT

private slots:
    void numbers_data();
    void numbers();
    void news_data();
    void news();
    void brokenFiles_data();
    void brokenFiles();
    void limitsOfNumbers_data();
    void limitsOfNumbers();
    void manyNewerLines();
    void endlessLines_data();
    void endlessLines();
};

void TestVersionFile::numbers_data()
{
    QTest::addColumn<qint64>("number");
    QTest::addColumn<QList<int>>("parts");
    QTest::newRow("1.3.3") << own << QList<int>{1, 3, 3};
    QTest::newRow("1.2000.0") << qint64(3000000) << QList<int>{1, 2000, 0};
    QTest::newRow("0.0.1") << qint64(1) << QList<int>{0, 0, 1};
    QTest::newRow("-1.0.0") << qint64(-1000000) << QList<int>{-1, 0, 0};
}

void TestVersionFile::numbers()
{
    QFETCH(const QList<int>, parts);
    QTEST(versionNumberOf(parts.at(0), parts.at(1), parts.at(2)), "number");
}

void TestVersionFile::news_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* file, const char* expected) {
        QTest::newRow(name) << QByteArray(file) << QString::fromLatin1(expected);
    };
    row("the sample", "1.4.0 mandatory win32:http://get.example/1.4.0\n",
        "1.4.0 must http://get.example/1.4.0");
    row("without an end of line", "1.4.0", "1.4.0 may");
    row("address in place of a version", "win32:x.2000.0\n", "win32:x.2000.0 may");
    row("DOS ends of lines", "1.4.0 win32:here\r\n1.3.3\r\n", "1.4.0 may here");
    row("comment", "# versions\n1.4.0\n", "1.4.0 may");
    row("comment behind a version", "1.5.0#\n1.4.0\n1.3.3\n", "1.4.0 may");
    row("hash behind the first token", "1.4.0 #\n", "1.4.0 may");
    row("comment amid newer versions", "1.5.0\n#\n1.4.0 mandatory\n1.3.3\n", "1.5.0 must");
    row("mandatory on the way", "1.4.0 win32:a\n1.3.5 mandatory win32:b\n1.3.3\n", "1.4.0 must a");
    row("mandatory below the running version", "1.4.0\n1.3.3 mandatory\n1.3.2 mandatory\n", "1.4.0 may");
    row("MANDATORY", "1.4.0 MANDATORY\n", "1.4.0 may");
    row("mandatory with something behind it", "1.4.0 mandatory,\n", "1.4.0 may");
    row("mandatory behind the address", "1.4.0 win32:a mandatory\n", "1.4.0 must a");
    row("running version first", "1.3.3\n1.4.0\n", "");
    row("older version first", "1.3.2\n1.4.0\n", "");
    row("running version ends the walk", "1.4.0\n1.3.3\n1.3.4 mandatory\nrubbish\n", "1.4.0 may");
    row("one patch newer", "1.3.4\n", "1.3.4 may");
    row("two blanks", "1.4.0  win32:a\n1.3.3\n", "1.4.0 may a");
    row("blank at the end", "1.4.0 win32:a \n", "1.4.0 may a");
    row("other platform", "1.4.0 linux:a\n", "1.4.0 may");
    row("platform in capitals", "1.4.0 WIN32:a\n", "1.4.0 may");
    row("platform as part of a word", "1.4.0 xwin32:a win32x:b\n", "1.4.0 may");
    row("platform among others", "1.4.0 mac:a win32:b linux:c\n", "1.4.0 may b");
    row("two addresses", "1.4.0 win32:a win32:b\n", "1.4.0 may b");
    row("address and none", "1.4.0 win32:a win32:\n", "1.4.0 may");
    row("platform without colon", "1.4.0 win32\n", "1.4.0 may");
    row("address and platform without colon", "1.4.0 win32:a win32\n", "1.4.0 may a");
    row("address with a port", "1.4.0 win32:http://get.example:8080/a:b\n",
        "1.4.0 may http://get.example:8080/a:b");
    row("address on an older line only", "1.4.0\n1.3.5 win32:b\n", "1.4.0 may");
    row("large part", "1.2000.0\n", "1.2000.0 may");
    row("parts that are no numbers", "1.x.y\n1.4.0\n", "");
    row("letters behind a number", "2a.4.0\n", "");
    row("leading zeros", "01.04.00\n", "01.04.00 may");
    row("sign", "+1.+4.+0\n", "+1.+4.+0 may");
    row("place holders", "9.%1.%2 win32:%3\n", "9.%1.%2 may %3");
}

void TestVersionFile::news()
{
    QFETCH(const QByteArray, file);
    QTEST(newsOf(file), "expected");
}

// Even behind a newer version with all that belongs to it.
void TestVersionFile::brokenFiles_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("empty line") << QByteArray("\n");
    QTest::newRow("blank") << QByteArray(" \n");
    QTest::newRow("blank before the version") << QByteArray(" 1.3.4\n");
    QTest::newRow("two parts") << QByteArray("1.4\n");
    QTest::newRow("four parts") << QByteArray("1.4.0.0\n");
    QTest::newRow("point at the end") << QByteArray("1.4.0.\n");
    QTest::newRow("word") << QByteArray("mandatory\n");
    QTest::newRow("page") << QByteArray("<!DOCTYPE html>\n<html>\n");
    QTest::newRow("zeros") << QByteArray(1000, '\0');
    QTest::newRow("binary") << QByteArray::fromHex("ff00fe89504e470d0a1a0a") + '\n';
    QTest::newRow("byte order mark of another encoding") << QByteArray::fromHex("efbbbf") + '\n';
}

void TestVersionFile::brokenFiles()
{
    QFETCH(const QByteArray, line);
    QCOMPARE(newsOf(line), QString());
    QCOMPARE(newsOf("1.4.0 mandatory win32:a\n" + line), QString());
    QCOMPARE(newsOf("1.4.0 mandatory win32:a\n1.3.3\n" + line), QStringLiteral("1.4.0 must a"));
}

void TestVersionFile::limitsOfNumbers_data()
{
    QTest::addColumn<bool>("newer");
    QTest::newRow("2147483647.2147483647.2147483647") << true;
    QTest::newRow("3000.0.0") << true;
    QTest::newRow("0.2147483647.0") << true;
    QTest::newRow("-2147483648.2147483647.2147483647") << false;
    QTest::newRow("-1.-4.-0") << false;
    QTest::newRow("2.-1000.0") << false;
    QTest::newRow("2147483648.0.0") << false; // no int any more, which reads as 0
    QTest::newRow("99999999999999999999.9.9") << false;
}

void TestVersionFile::limitsOfNumbers()
{
    QFETCH(const bool, newer);
    const QByteArray version = QTest::currentDataTag();
    QCOMPARE(newsOf(version + '\n'), newer ? QString::fromLatin1(version) + " may" : QString());
    QVERIFY(!readVersionFile(version, std::numeric_limits<qint64>::max()).found);
}

void TestVersionFile::manyNewerLines()
{
    QByteArray file;
    for (int patch = manyLines; patch > 0; --patch)
        file += "1.4." + QByteArray::number(patch) + " win32:" + QByteArray::number(patch) + '\n';
    QCOMPARE(newsOf(file), QStringLiteral("1.4.20000 may 20000"));
    QCOMPARE(newsOf(file + "1.3.4 mandatory\n"), QStringLiteral("1.4.20000 must 20000"));
}

void TestVersionFile::endlessLines_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("expected");
    QTest::newRow("digits") << QByteArray(hugeSize, '1') << QString();
    QTest::newRow("long version") << "1.4." + QByteArray(hugeSize, '0')
                                  << "1.4." + QString(hugeSize, '0') + " may";
    QTest::newRow("comment") << '#' + QByteArray(hugeSize, 'x') + "\n1.4.0" << QStringLiteral("1.4.0 may");
    QTest::newRow("points") << QByteArray(hugeSize / 16, '.') << QString();
    QTest::newRow("blanks") << "1.4.0" + QByteArray(hugeSize / 16, ' ') + "mandatory"
                            << QStringLiteral("1.4.0 must");
    QTest::newRow("colons") << "1.4.0 win32" + QByteArray(hugeSize / 16, ':')
                            << "1.4.0 may " + QString(hugeSize / 16 - 1, ':');
}

void TestVersionFile::endlessLines()
{
    QFETCH(const QByteArray, file);
    QFETCH(const QString, expected);
    QVERIFY(newsOf(file) == expected); // too long to be printed
}

QTEST_GUILESS_MAIN(TestVersionFile)
#include "tst_versionfile.moc"
