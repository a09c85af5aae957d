// What a reply becomes: lines and chunks joined, blanks and line ends cut off, and what passes for "ok".

#include "devicerig.h"

#include "support/testclock.h"

#include <QTest>

using Chunks = QList<QByteArray>;

namespace {

/// Replies in @p chunks, each of which the reader gets by itself.
Fault inChunks(const Chunks& chunks)
{
    Fault fault;
    fault.kind = Fault::Kind::Pieces;
    fault.pieces = chunks;
    return fault;
}

Fault ofKind(Fault::Kind kind)
{
    Fault fault;
    fault.kind = kind;
    return fault;
}

} // namespace

class TestBrumaloggerInterfaceReplies : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { rig = std::make_unique<DeviceRig>(); }
    void init() { rig->calm(); }
    void cleanupTestCase();

    void textAsItArrives_data();
    void textAsItArrives();
    void chunksAreJoined_data();
    void chunksAreJoined();
    void okOrNot_data();
    void okOrNot();
    void okInChunks_data();
    void okInChunks();
    void blankReplyIsEmpty_data();
    void blankReplyIsEmpty();
    void noReplyIsNoExchange();
    void overLongReplyArrivesWhole();
    void overLongOkFails();
    void lineNoiseIsText();
    void lineNoiseIsNoOk();

private:
    std::unique_ptr<DeviceRig> rig;
};

void TestBrumaloggerInterfaceReplies::cleanupTestCase()
{
    rig.reset();
    TestClock::reset();
}

void TestBrumaloggerInterfaceReplies::textAsItArrives_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("text");
    QTest::newRow("bare") << QByteArray("BL-0042") << "BL-0042";
    QTest::newRow("CR LF") << QByteArray("BL-0042\r\n") << "BL-0042";
    QTest::newRow("LF CR") << QByteArray("BL-0042\n\r") << "BL-0042";
    QTest::newRow("blanks around") << QByteArray("  BL-0042   ") << "BL-0042";
    QTest::newRow("tab, feeds and blanks around") << QByteArray("\t \v\f BL-0042 \f\v\t\r\n") << "BL-0042";
    QTest::newRow("blanks within") << QByteArray("BL  00 42") << "BL  00 42";
    QTest::newRow("two lines") << QByteArray("BL-\r\n0042\r\n") << "BL-0042";
    QTest::newRow("two lines, the last one open") << QByteArray("BL-\n0042") << "BL-0042";
    QTest::newRow("blanks around each line") << QByteArray(" BL- \n 00 \n 42 ") << "BL-0042";
    QTest::newRow("empty lines") << QByteArray("\n\nBL-\n\n0042\n\n") << "BL-0042";
    QTest::newRow("a CR within is no line end") << QByteArray("BL\r0042") << "BL\r0042";
    QTest::newRow("NUL ends it") << QByteArray("BL\0-0042", 8) << "BL";
    QTest::newRow("NUL ends its line only") << QByteArray("BL\0xx\n-0042", 11) << "BL-0042";
    QTest::newRow("NUL first") << QByteArray("\0BL-0042", 8) << "";
    QTest::newRow("NUL before the line end") << QByteArray("BL-0042\0\r\n", 10) << "BL-0042";
    QTest::newRow("a blank before NUL is no end of a line") << QByteArray("BL \0\r\n", 6) << "BL ";
    QTest::newRow("UTF-8") << QByteArray("Z\xc3\xbcrich \xe6\x9d\xb1")
                           << QStringLiteral("Z\u00fcrich \u6771");
    QTest::newRow("a blank beyond ASCII stays")
        << QByteArray("\xc2\xa0x\xc2\xa0") << QStringLiteral("\u00a0x\u00a0");
    QTest::newRow("8 bits, but no UTF-8") << QByteArray("Z\xfcrich") << QStringLiteral("Z\ufffdrich");
    QTest::newRow("control characters") << QByteArray("\x01\x02\x7f") << QStringLiteral("\u0001\u0002\u007f");
}

void TestBrumaloggerInterfaceReplies::textAsItArrives()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, text);
    rig->reply(reply);
    QString serial(QStringLiteral("none"));
    QVERIFY(rig->link.lGetSerial(&serial));
    QCOMPARE(serial, text);
}

void TestBrumaloggerInterfaceReplies::chunksAreJoined_data()
{
    QTest::addColumn<Chunks>("chunks");
    QTest::addColumn<QString>("text");
    QTest::newRow("two") << Chunks({"BL-", "0042"}) << "BL-0042";
    QTest::newRow("each character by itself") << Chunks({"B", "L", "-", "4", "2"}) << "BL-42";
    QTest::newRow("line end by itself") << Chunks({"BL-0042", "\r\n"}) << "BL-0042";
    QTest::newRow("line end in two") << Chunks({"BL-0042\r", "\n"}) << "BL-0042";
    QTest::newRow("blank before the split is lost") << Chunks({"North ", "Pole"}) << "NorthPole";
    QTest::newRow("blank behind the split is lost") << Chunks({"North", " Pole"}) << "NorthPole";
    QTest::newRow("blank by itself is lost") << Chunks({"North", " ", "Pole"}) << "NorthPole";
    QTest::newRow("blanks elsewhere stay") << Chunks({"North Po", "le Inn"}) << "North Pole Inn";
    QTest::newRow("NUL ends its chunk only") << Chunks({QByteArray("BL\0xx", 5), "-0042"}) << "BL-0042";
    QTest::newRow("split within a character")
        << Chunks({"Z\xc3", "\xbcrich"}) << QStringLiteral("Z\ufffd\ufffdrich");
}

void TestBrumaloggerInterfaceReplies::chunksAreJoined()
{
    QFETCH(Chunks, chunks);
    QFETCH(QString, text);
    rig->disturb(inChunks(chunks));
    QString serial;
    QVERIFY(rig->link.lGetSerial(&serial));
    QCOMPARE(serial, text);
}

void TestBrumaloggerInterfaceReplies::okOrNot_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("ok");
    QTest::newRow("ok") << QByteArray("ok") << true;
    QTest::newRow("CR LF") << QByteArray("ok\r\n") << true;
    QTest::newRow("blanks around") << QByteArray("  ok  ") << true;
    QTest::newRow("blanks and line ends around") << QByteArray("\r\n ok \r\n") << true;
    QTest::newRow("on two lines") << QByteArray("o\nk\n") << true;
    QTest::newRow("NUL behind") << QByteArray("ok\0!", 4) << true;
    QTest::newRow("upper case") << QByteArray("OK") << false;
    QTest::newRow("mixed case") << QByteArray("Ok") << false;
    QTest::newRow("more behind") << QByteArray("okay") << false;
    QTest::newRow("more before") << QByteArray("not ok") << false;
    QTest::newRow("twice") << QByteArray("ok\r\nok\r\n") << false;
    QTest::newRow("full stop") << QByteArray("ok.") << false;
    QTest::newRow("half") << QByteArray("o") << false;
    QTest::newRow("a blank within") << QByteArray("o k") << false;
    QTest::newRow("another text") << QByteArray("error") << false;
    QTest::newRow("a number") << QByteArray("1") << false;
    QTest::newRow("a line end only") << QByteArray("\r\n") << false;
}

void TestBrumaloggerInterfaceReplies::okOrNot()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, ok);
    rig->reply(reply);
    QCOMPARE(rig->link.lSendCommandK(), ok);
    QCOMPARE(rig->wire(), QList<QByteArray>({"k"}));
}

void TestBrumaloggerInterfaceReplies::okInChunks_data()
{
    QTest::addColumn<Chunks>("chunks");
    QTest::addColumn<bool>("ok");
    QTest::newRow("o and k") << Chunks({"o", "k"}) << true;
    QTest::newRow("o and k and the line end") << Chunks({"o", "k", "\r\n"}) << true;
    QTest::newRow("ok and more") << Chunks({"ok", "ay"}) << false;
    QTest::newRow("k and o") << Chunks({"k", "o"}) << false;
}

void TestBrumaloggerInterfaceReplies::okInChunks()
{
    QFETCH(Chunks, chunks);
    QFETCH(bool, ok);
    rig->disturb(inChunks(chunks));
    QCOMPARE(rig->link.lSendCommandK(), ok);
}

void TestBrumaloggerInterfaceReplies::blankReplyIsEmpty_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("one blank") << QByteArray(" ");
    QTest::newRow("line end") << QByteArray("\r\n");
    QTest::newRow("lines of white space") << QByteArray(" \t\r\n \v\f \n\n");
    QTest::newRow("NUL") << QByteArray("\0", 1);
}

// To an operation that takes an empty text it is one, and to one that needs a value it is a failure.
void TestBrumaloggerInterfaceReplies::blankReplyIsEmpty()
{
    QFETCH(QByteArray, reply);
    rig->reply(reply);
    QString serial(QStringLiteral("none"));
    QVERIFY(rig->link.lGetSerial(&serial));
    QCOMPARE(serial, QString());
    QVERIFY(!rig->link.lGetSamplingTime(nullptr));
}

void TestBrumaloggerInterfaceReplies::noReplyIsNoExchange()
{
    rig->silence();
    QString serial(QStringLiteral("none"));
    QVERIFY(!rig->link.lGetSerial(&serial));
    QCOMPARE(serial, QStringLiteral("none"));
    QCOMPARE(rig->wire(), QList<QByteArray>({"e"}));
}

void TestBrumaloggerInterfaceReplies::overLongReplyArrivesWhole()
{
    rig->disturb(ofKind(Fault::Kind::OverLong));
    QString serial;
    QVERIFY(rig->link.lGetSerial(&serial));
    QVERIFY(serial.size() > 1000);
    QCOMPARE(serial.toUtf8(), rig->logger->exchanges().constLast().reply);
}

void TestBrumaloggerInterfaceReplies::overLongOkFails()
{
    rig->disturb(ofKind(Fault::Kind::OverLong));
    QVERIFY(!rig->link.lSendCommandK());
    QVERIFY(rig->logger->exchanges().constLast().reply.startsWith("ok"));
}

void TestBrumaloggerInterfaceReplies::lineNoiseIsText()
{
    rig->reply("\x07\xfe%\x81&~Q\x1f\xc0");
    QString serial;
    QVERIFY(rig->link.lGetSerial(&serial));
    QCOMPARE(serial, QStringLiteral("\u0007\ufffd%\ufffd&~Q\u001f\ufffd"));
}

void TestBrumaloggerInterfaceReplies::lineNoiseIsNoOk()
{
    rig->disturb(ofKind(Fault::Kind::Garbage));
    QVERIFY(!rig->link.lSendCommandK());
    QVERIFY(!rig->link.lGetState(nullptr));
}

QTEST_MAIN(TestBrumaloggerInterfaceReplies)
#include "tst_brumaloggerinterface_replies.moc"
