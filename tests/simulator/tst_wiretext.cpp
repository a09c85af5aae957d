// Bytes of the wire written for people.

#include "simulator/wiretext.h"

#include <QTest>

class TestWireText : public QObject
{
    Q_OBJECT

private slots:
    void goesThereAndBack_data();
    void goesThereAndBack();
    void refusesUnknownEscapes_data();
    void refusesUnknownEscapes();
};

void TestWireText::goesThereAndBack_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("plain") << QByteArray("Gt 1,2~") << "Gt 1,2~";
    QTest::newRow("line end") << QByteArray("ok\r\n") << "ok\\r\\n";
    QTest::newRow("backslash") << QByteArray("a\\x41") << "a\\\\x41";
    QTest::newRow("nul") << QByteArray("1\0002", 3) << "1\\x002";
    QTest::newRow("control") << QByteArray("\x07\x7f") << "\\x07\\x7f";
    QTest::newRow("utf-8") << QByteArray("\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80") << QString::fromUtf8("ä€😀");
    QTest::newRow("no utf-8") << QByteArray("\xff\xc3(") << "\\xff\\xc3(";
    QTest::newRow("cut utf-8") << QByteArray("a\xe2\x82") << "a\\xe2\\x82";
}

void TestWireText::goesThereAndBack()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(escapeWireText(bytes), text);
    QByteArray back("overwritten");
    QVERIFY(unescapeWireText(text, &back));
    QCOMPARE(back, bytes);
}

void TestWireText::refusesUnknownEscapes_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"\\", "\\q", "a\\x", "\\x4", "\\xg0", "\\0"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void TestWireText::refusesUnknownEscapes()
{
    QFETCH(QString, text);
    QByteArray bytes;
    QVERIFY(!unescapeWireText(text, &bytes));
}

QTEST_GUILESS_MAIN(TestWireText)
#include "tst_wiretext.moc"
