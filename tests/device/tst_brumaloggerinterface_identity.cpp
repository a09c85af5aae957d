// Who the logger is: its identification, firmware level, internal ID and type, and the values of unknown
// meaning.

#include "devicerig.h"
#include "storedfields.h"

#include "support/testclock.h"

#include <QTest>

class TestBrumaloggerInterfaceIdentity : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { rig = std::make_unique<DeviceRig>(distinctLogger()); }
    void init() { rig->calm(); }
    void cleanupTestCase();

    void nothingIsKnownAtFirst();
    void identification_data();
    void identification();
    void identificationWithoutPointers();
    void identificationStaysOnSilence();
    void firmwareLevel_data();
    void firmwareLevel();
    void serial();
    void type_data();
    void type();
    void typeStaysOnSilence();
    void values_data();
    void values();

private:
    std::unique_ptr<DeviceRig> rig;
};

void TestBrumaloggerInterfaceIdentity::cleanupTestCase()
{
    rig.reset();
    TestClock::reset();
}

void TestBrumaloggerInterfaceIdentity::nothingIsKnownAtFirst()
{
    const BrumaloggerInterface link;
    QVERIFY(link.lDeviceName().isNull());
    QVERIFY(link.lFirmwareVersion().isNull());
    QVERIFY(link.lHardwareRevision().isNull());
    QVERIFY(!link.lMultiuse());
    QCOMPARE(link.lFirmwareCode(), 0);
    QVERIFY(!link.lIsExtendedFirmware());
}

void TestBrumaloggerInterfaceIdentity::identification_data()
{
    const QStringList before({QStringLiteral("before"), QStringLiteral("0.0.1"), QStringLiteral("b4")});
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QStringList>("known");
    const auto row = [](const char* name, const QByteArray& reply, const QStringList& known) {
        QTest::newRow(name) << reply << known;
    };
    row("three fields", "Brumalogger USB,1.2.0,2.4",
        QStringLiteral("Brumalogger USB|1.2.0|2.4").split(QLatin1Char('|')));
    row("blanks at the fields stay", "A , 1.2.0 , C",
        QStringLiteral("A | 1.2.0 | C").split(QLatin1Char('|')));
    row("another device", "Thermometer,x,y", QStringLiteral("Thermometer|x|y").split(QLatin1Char('|')));
    row("empty fields", ",,", {QString(), QString(), QString()});
    row("beyond ASCII", "Z\xc3\xbc,\xc3\xa9,\xc3\xa4",
        QStringLiteral("Z\u00fc|\u00e9|\u00e4").split(QLatin1Char('|')));
    row("one field", "Brumalogger USB", before);
    row("two fields", "Brumalogger USB,1.2.0", before);
    row("four fields", "Brumalogger USB,1.2.0,2.4,", before);
    row("an error", "error: locked", before);
    row("a line end only", "\r\n", before);
}

void TestBrumaloggerInterfaceIdentity::identification()
{
    QFETCH(QByteArray, reply);
    QFETCH(QStringList, known);
    QString name;
    QString firmware;
    QString hardware;
    rig->reply("before,0.0.1,b4");
    QVERIFY(rig->link.lGetIdentification(&name, &firmware, &hardware));
    rig->reply(reply);
    QVERIFY(rig->link.lGetIdentification(&name, &firmware, &hardware));
    QCOMPARE(QStringList({name, firmware, hardware}), known);
    QCOMPARE(
        QStringList({rig->link.lDeviceName(), rig->link.lFirmwareVersion(), rig->link.lHardwareRevision()}),
        known);
}

void TestBrumaloggerInterfaceIdentity::identificationWithoutPointers()
{
    QString firmware;
    rig->reply("A,B,C");
    QVERIFY(rig->link.lGetIdentification(nullptr, nullptr, nullptr));
    QCOMPARE(rig->link.lDeviceName(), QStringLiteral("A"));
    QCOMPARE(rig->link.lHardwareRevision(), QStringLiteral("C"));
    QVERIFY(rig->link.lGetIdentification(nullptr, &firmware, nullptr));
    QCOMPARE(firmware, QStringLiteral("B"));
}

void TestBrumaloggerInterfaceIdentity::identificationStaysOnSilence()
{
    rig->reply("A,B,C");
    QVERIFY(rig->link.lGetIdentification(nullptr, nullptr, nullptr));
    rig->silence();
    QString name(QStringLiteral("untouched"));
    QVERIFY(!rig->link.lGetIdentification(&name, nullptr, nullptr));
    QCOMPARE(name, QStringLiteral("untouched"));
    QCOMPARE(rig->link.lDeviceName(), QStringLiteral("A"));
    QCOMPARE(rig->link.lFirmwareVersion(), QStringLiteral("B"));
    QCOMPARE(rig->link.lHardwareRevision(), QStringLiteral("C"));
}

void TestBrumaloggerInterfaceIdentity::firmwareLevel_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("extended");
    QTest::newRow("first extended") << QByteArray("1.2.0") << 1002000 << true;
    QTest::newRow("with zeros before") << QByteArray("01.02.00") << 1002000 << true;
    QTest::newRow("eight is not octal") << QByteArray("01.08.09") << 1008009 << true;
    QTest::newRow("a later patch") << QByteArray("1.2.1") << 1002001 << true;
    QTest::newRow("a later major") << QByteArray("2.0.0") << 2000000 << true;
    QTest::newRow("two digits each") << QByteArray("10.20.30") << 10020030 << true;
    QTest::newRow("last basic") << QByteArray("1.1.999") << 1001999 << false;
    QTest::newRow("a patch that runs over") << QByteArray("1.1.1000") << 1002000 << true;
    QTest::newRow("basic") << QByteArray("1.1.9") << 1001009 << false;
    QTest::newRow("basic with zeros before") << QByteArray("01.01.09") << 1001009 << false;
    QTest::newRow("patch only") << QByteArray("0.0.1") << 1 << false;
    QTest::newRow("beyond a whole number") << QByteArray("3000.0.0") << 2147483647 << true;
    QTest::newRow("two parts") << QByteArray("1.2") << 0 << false;
    QTest::newRow("four parts") << QByteArray("1.2.0.1") << 0 << false;
    QTest::newRow("one part") << QByteArray("2") << 0 << false;
    QTest::newRow("a dot behind") << QByteArray("1.2.0.") << 0 << false;
    QTest::newRow("empty") << QByteArray() << 0 << false;
    QTest::newRow("letters") << QByteArray("a.b.c") << 0 << false;
    QTest::newRow("letters in one part") << QByteArray("1.x.3") << 1000003 << false;
    QTest::newRow("a letter behind") << QByteArray("1.2.0b") << 1002000 << true;
    QTest::newRow("a letter before") << QByteArray("v1.2.0") << 2000 << false;
    QTest::newRow("an empty part") << QByteArray("1..3") << 1000003 << false;
}

void TestBrumaloggerInterfaceIdentity::firmwareLevel()
{
    QFETCH(QByteArray, version);
    QFETCH(int, code);
    QFETCH(bool, extended);
    rig->reply("Brumalogger USB," + version + ",2.4");
    QVERIFY(rig->link.lGetIdentification(nullptr, nullptr, nullptr));
    QCOMPARE(rig->link.lFirmwareCode(), code);
    QCOMPARE(rig->link.lIsExtendedFirmware(), extended);
}

void TestBrumaloggerInterfaceIdentity::serial()
{
    QString serial(QStringLiteral("before"));
    rig->reply("BL-0042, rev. 2\r\n");
    QVERIFY(rig->link.lGetSerial(&serial));
    QCOMPARE(serial, QStringLiteral("BL-0042, rev. 2"));
    QCOMPARE(rig->link.*memberOf(SerialNumber()), serial);
    rig->reply("BL-0043");
    QVERIFY(rig->link.lGetSerial(nullptr));
    QCOMPARE(rig->link.*memberOf(SerialNumber()), QStringLiteral("BL-0043"));
    rig->reply("\r\n");
    QVERIFY(rig->link.lGetSerial(&serial));
    QCOMPARE(serial, QString());
}

void TestBrumaloggerInterfaceIdentity::type_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("multiuse");
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("1 and a line end") << QByteArray("1\r\n") << true;
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("another number") << QByteArray("2") << false;
    QTest::newRow("1 with a zero before") << QByteArray("01") << false;
    QTest::newRow("a text") << QByteArray("Multiuse") << false;
    QTest::newRow("a line end only") << QByteArray("\r\n") << false;
}

void TestBrumaloggerInterfaceIdentity::type()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, multiuse);
    rig->reply(multiuse ? "0" : "1");
    QVERIFY(rig->link.lGetMultiuse(nullptr));
    QCOMPARE(rig->link.lMultiuse(), !multiuse);
    rig->reply(reply);
    bool told = !multiuse;
    QVERIFY(rig->link.lGetMultiuse(&told));
    QCOMPARE(told, multiuse);
    QCOMPARE(rig->link.lMultiuse(), multiuse);
}

void TestBrumaloggerInterfaceIdentity::typeStaysOnSilence()
{
    rig->reply("1");
    QVERIFY(rig->link.lGetMultiuse(nullptr));
    rig->silence();
    QVERIFY(!rig->link.lGetMultiuse(nullptr));
    QVERIFY(rig->link.lMultiuse());
}

void TestBrumaloggerInterfaceIdentity::values_data()
{
    using Numbers = QList<int>;
    const Numbers before({7, 8, 9});
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("works");
    QTest::addColumn<QList<int>>("numbers");
    QTest::newRow("three") << QByteArray("11,-22,33") << true << Numbers({11, -22, 33});
    QTest::newRow("no numbers") << QByteArray("a,,3x") << true << Numbers({0, 0, 0});
    QTest::newRow("two") << QByteArray("11,22") << false << before;
    QTest::newRow("four") << QByteArray("11,22,33,44") << false << before;
    QTest::newRow("one") << QByteArray("11") << false << before;
    QTest::newRow("a line end only") << QByteArray("\r\n") << false << before;
    QTest::newRow("nothing") << QByteArray() << false << before;
}

void TestBrumaloggerInterfaceIdentity::values()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, works);
    QFETCH(QList<int>, numbers);
    rig->reply(reply);
    int first = 7;
    int second = 8;
    int third = 9;
    QCOMPARE(rig->link.lGetValuesO(&first, &second, &third), works);
    QCOMPARE(QList<int>({first, second, third}), numbers);
}

QTEST_MAIN(TestBrumaloggerInterfaceIdentity)
#include "tst_brumaloggerinterface_identity.moc"
