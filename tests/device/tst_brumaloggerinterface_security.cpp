// Text slots, the password lock and the password, the logger's state and its battery.

#include "devicerig.h"
#include "storedfields.h"

#include "support/loglines.h"
#include "support/testclock.h"

#include <QTest>

namespace {

const QString truncating(QStringLiteral("debug: Truncating password!"));

QString repeated(const QString& text, int times)
{
    return text.repeated(times);
}

} // namespace

class TestBrumaloggerInterfaceSecurity : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { rig = std::make_unique<DeviceRig>(distinctLogger()); }
    void init() { rig->calm(); }
    void cleanupTestCase();

    void readText_data();
    void readText();
    void readTextWithoutPointer();
    void readTextStaysOnSilence();
    void refusedSlotTouchesNothing();
    void writtenText_data();
    void writtenText();
    void passwordLock_data();
    void passwordLock();
    void passwordLockFails_data();
    void passwordLockFails();
    void triedPassword_data();
    void triedPassword();
    void triedPasswordWithoutAnswer_data();
    void triedPasswordWithoutAnswer();
    void passwordLength_data();
    void passwordLength();
    void state_data();
    void state();
    void lowBattery_data();
    void lowBattery();

private:
    std::unique_ptr<DeviceRig> rig;
};

void TestBrumaloggerInterfaceSecurity::cleanupTestCase()
{
    rig.reset();
    TestClock::reset();
}

void TestBrumaloggerInterfaceSecurity::readText_data()
{
    const QString longText = repeated(QStringLiteral("Long text "), 30).trimmed();
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("text");
    QTest::newRow("a text") << QByteArray("Northern Pharma\r\n") << "Northern Pharma";
    QTest::newRow("padded") << QByteArray("B1234     \r\n") << "B1234";
    QTest::newRow("beyond ASCII") << QByteArray("Z\xc3\xbcrich") << QStringLiteral("Z\u00fcrich");
    QTest::newRow("with commas") << QByteArray("a,b,c") << "a,b,c";
    QTest::newRow("long") << longText.toUtf8() << longText;
    QTest::newRow("empty") << QByteArray("\r\n") << "";
    QTest::newRow("blanks only") << QByteArray("          ") << "";
}

void TestBrumaloggerInterfaceSecurity::readText()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, text);
    rig->reply(reply);
    QString read(QStringLiteral("before"));
    QVERIFY(rig->link.lGetText(2, &read));
    QCOMPARE(read, text);
    QCOMPARE((rig->link.*memberOf(Texts())).value(2, QStringLiteral("not stored")), text);
}

void TestBrumaloggerInterfaceSecurity::readTextWithoutPointer()
{
    rig->reply("B1234");
    QVERIFY(rig->link.lGetText(4, nullptr));
    QCOMPARE(rig->wire(), QList<QByteArray>({"G4"}));
    QCOMPARE((rig->link.*memberOf(Texts())).value(4), QStringLiteral("B1234"));
}

void TestBrumaloggerInterfaceSecurity::readTextStaysOnSilence()
{
    rig->silence();
    QString read(QStringLiteral("before"));
    QVERIFY(!rig->link.lGetText(0, &read));
    QCOMPARE(read, QStringLiteral("before"));
    QVERIFY(!(rig->link.*memberOf(Texts())).contains(0));
}

void TestBrumaloggerInterfaceSecurity::refusedSlotTouchesNothing()
{
    QString read(QStringLiteral("before"));
    QVERIFY(!rig->link.lGetText(5, &read));
    QCOMPARE(read, QStringLiteral("before"));
    QVERIFY(!(rig->link.*memberOf(Texts())).contains(5));
    QCOMPARE(rig->wire(), QList<QByteArray>());
}

void TestBrumaloggerInterfaceSecurity::writtenText_data()
{
    const QString x = QStringLiteral("x");
    QTest::addColumn<int>("slot");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* name, int slot, const QString& text, int width, const QByteArray& bytes) {
        QTest::newRow(name) << slot << text << width << bytes;
    };
    row("padded barcode", 4, QStringLiteral("ABC"), 10, "S4ABC     ");
    row("barcode of the width", 4, QStringLiteral("12345678"), 10, "S412345678");
    row("barcode beyond the width", 4, QStringLiteral("1234567890"), 10, "S41234567890");
    row("unpadded", 3, QStringLiteral("Air"), -1, "S3Air");
    row("width of zero", 3, QStringLiteral("Air"), 0, "S3Air");
    row("blank unpadded", 3, QStringLiteral(" "), -1, "S3 ");
    row("empty", 0, {}, 60, "S0" + QByteArray(58, ' '));
    row("empty unpadded", 0, {}, -1, "S0");
    row("sender of 10", 0, repeated(x, 10), 60, "S0" + QByteArray(10, 'x') + QByteArray(48, ' '));
    row("recipient of 57", 1, repeated(x, 57), 60, "S1" + QByteArray(57, 'x') + " ");
    row("recipient of 58", 1, repeated(x, 58), 60, "S1" + QByteArray(58, 'x'));
    row("information of 60", 2, repeated(x, 60), 60, "S2" + QByteArray(60, 'x'));
    row("longer than any slot", 2, repeated(x, 200), 60, "S2" + QByteArray(200, 'x'));
    row("characters count, not bytes", 4, QStringLiteral("Z\u00fcrich"), 10, "S4Z\xc3\xbcrich  ");
    row("blanks around stay", 3, QStringLiteral(" a "), 6, "S3 a  ");
    row("slot beyond the last", 7, x, -1, "S7x");
    row("slot of two digits", 12, x, 6, "S12x  ");
}

void TestBrumaloggerInterfaceSecurity::writtenText()
{
    QFETCH(int, slot);
    QFETCH(QString, text);
    QFETCH(int, width);
    QFETCH(QByteArray, bytes);
    rig->reply("ok");
    QVERIFY(rig->link.lSetText(slot, text, width));
    QCOMPARE(rig->wire(), QList<QByteArray>({bytes}));
}

void TestBrumaloggerInterfaceSecurity::passwordLock_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("locked");
    QTest::newRow("1") << QByteArray("1\r\n") << true;
    QTest::newRow("0") << QByteArray("0\r\n") << false;
    QTest::newRow("another number") << QByteArray("16") << true;
    QTest::newRow("below zero") << QByteArray("-1") << true;
    QTest::newRow("zeros") << QByteArray("000") << false;
}

void TestBrumaloggerInterfaceSecurity::passwordLock()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, locked);
    rig->reply(reply);
    const LogLines log;
    bool told = !locked;
    QVERIFY(rig->link.lGetLocked(&told));
    QCOMPARE(told, locked);
    QCOMPARE(log.all(), QStringList({locked ? QStringLiteral("debug: Device is locked.")
                                            : QStringLiteral("debug: Device is unlocked.")}));
}

void TestBrumaloggerInterfaceSecurity::passwordLockFails_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("a text") << QByteArray("locked");
    QTest::newRow("a number and more") << QByteArray("1!");
    QTest::newRow("a line end only") << QByteArray("\r\n");
    QTest::newRow("nothing") << QByteArray();
}

void TestBrumaloggerInterfaceSecurity::passwordLockFails()
{
    QFETCH(QByteArray, reply);
    rig->reply(reply);
    const LogLines log;
    bool first = true;
    bool second = false;
    QVERIFY(!rig->link.lGetLocked(&first));
    QVERIFY(!rig->link.lGetLocked(&second));
    QVERIFY(first);
    QVERIFY(!second);
    QCOMPARE(log.all(), QStringList());
}

void TestBrumaloggerInterfaceSecurity::triedPassword_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("ok") << QByteArray("ok\r\n") << true;
    QTest::newRow("no") << QByteArray("no\r\n") << false;
    QTest::newRow("upper case") << QByteArray("OK") << false;
    QTest::newRow("more behind") << QByteArray("okay") << false;
    QTest::newRow("a number") << QByteArray("1") << false;
}

void TestBrumaloggerInterfaceSecurity::triedPassword()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, accepted);
    rig->reply(reply);
    bool told = !accepted;
    QVERIFY(rig->link.lTryPassword(QStringLiteral("Secret"), &told));
    QCOMPARE(told, accepted);
}

void TestBrumaloggerInterfaceSecurity::triedPasswordWithoutAnswer_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("a line end only") << QByteArray("\r\n");
    QTest::newRow("nothing") << QByteArray();
}

void TestBrumaloggerInterfaceSecurity::triedPasswordWithoutAnswer()
{
    QFETCH(QByteArray, reply);
    rig->reply(reply);
    bool first = true;
    bool second = false;
    QVERIFY(!rig->link.lTryPassword(QStringLiteral("Secret"), &first));
    QVERIFY(!rig->link.lTryPassword(QStringLiteral("Secret"), &second));
    QVERIFY(first);
    QVERIFY(!second);
}

void TestBrumaloggerInterfaceSecurity::passwordLength_data()
{
    const QString thirty = QStringLiteral("123456789 abcdefghij ABCDEFGHI");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<bool>("truncated");
    QTest::newRow("empty") << QString() << QByteArray() << false;
    QTest::newRow("30") << thirty << thirty.toUtf8() << false;
    QTest::newRow("31") << thirty + QLatin1Char('!') << thirty.toUtf8() << true;
    QTest::newRow("300") << thirty.repeated(10) << thirty.toUtf8() << true;
    QTest::newRow("characters count, not bytes")
        << QString(30, QChar(0xe4)) << QByteArray("\xc3\xa4").repeated(30) << false;
    QTest::newRow("blanks around stay") << " x " << QByteArray(" x ") << false;
}

void TestBrumaloggerInterfaceSecurity::passwordLength()
{
    QFETCH(QString, password);
    QFETCH(QByteArray, sent);
    QFETCH(bool, truncated);
    rig->reply("ok");
    const LogLines log;
    bool accepted = false;
    QVERIFY(rig->link.lTryPassword(password, &accepted));
    QVERIFY(rig->link.lSetPassword(password));
    QCOMPARE(rig->wire(), QList<QByteArray>({"?" + sent, "!" + sent}));
    QCOMPARE(log.all(), truncated ? QStringList({truncating, truncating}) : QStringList());
}

void TestBrumaloggerInterfaceSecurity::state_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("works");
    QTest::addColumn<int>("number");
    QTest::newRow("idle") << QByteArray("2\r\n") << true << 2;
    QTest::newRow("finished") << QByteArray("16\r\n") << true << 16;
    QTest::newRow("zero") << QByteArray("0") << true << 0;
    QTest::newRow("unknown") << QByteArray("-7") << true << -7;
    QTest::newRow("a text") << QByteArray("idle") << false << 99;
    QTest::newRow("a line end only") << QByteArray("\r\n") << false << 99;
    QTest::newRow("nothing") << QByteArray() << false << 99;
}

void TestBrumaloggerInterfaceSecurity::state()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, works);
    QFETCH(int, number);
    rig->reply(reply);
    int told = 99;
    QCOMPARE(rig->link.lGetState(&told), works);
    QCOMPARE(told, number);
}

void TestBrumaloggerInterfaceSecurity::lowBattery_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("works");
    QTest::addColumn<bool>("low");
    QTest::newRow("low") << QByteArray("1\r\n") << true << true;
    QTest::newRow("not low") << QByteArray("0\r\n") << true << false;
    QTest::newRow("another number") << QByteArray("2") << true << false;
    QTest::newRow("a text") << QByteArray("low") << true << false;
    QTest::newRow("a line end only") << QByteArray("\r\n") << false << true;
    QTest::newRow("nothing") << QByteArray() << false << true;
}

void TestBrumaloggerInterfaceSecurity::lowBattery()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, works);
    QFETCH(bool, low);
    rig->reply(reply);
    bool told = works ? !low : low;
    QCOMPARE(rig->link.lGetLowBattery(&told), works);
    QCOMPARE(told, low);
}

QTEST_MAIN(TestBrumaloggerInterfaceSecurity)
#include "tst_brumaloggerinterface_security.moc"
