// Replies that a read doesn't expect: garbage, too much, in pieces, too late.

#include "procedurerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace WindowWords;

Q_DECLARE_METATYPE(Fault::Kind)

class TestMainWindowReadReplies : public QObject
{
    Q_OBJECT

private slots:
    void makesDoWith_data();
    void makesDoWith();
    void takesClockFromGarbage();
    void survivesBinaryIdentity_data();
    void survivesBinaryIdentity();
    void failsAt_data();
    void failsAt();
    void joinsPieces();
    void losesBlankBetweenPieces();
    void acceptsSlowReply();
    void joinsLateReplyToNext();
    void failsAtLateReply();
    void cutsLongTexts();
};

void TestMainWindowReadReplies::makesDoWith_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QStringList>("panelChanges");
    QTest::addColumn<QStringList>("numbers");
    const auto row = [](const char* name, const char* command, const QByteArray& reply,
                        const QStringList& panelChanges, const QStringList& numbers = {}) {
        QTest::newRow(name) << QByteArray(command) << reply << panelChanges << numbers;
    };
    const QString min = QStringLiteral("spindTempMin = %1");
    const QString max = QStringLiteral("spindTempMax = %1");
    row("no internal ID", "e", " \r\n", {"labelSerial = "});
    row("internal ID up to a NUL byte", "e", QByteArray("BL\0XY\r\n", 7), {"labelSerial = BL"});
    row("internal ID of two lines", "e", "BL \r\n 7\r\n", {"labelSerial = BL7"});
    row("type 2", "m", "2\r\n", {"labelType = Single-use"});
    row("type that is a text", "m", "1 Multiuse\r\n", {"labelType = Single-use"});
    row("no type", "m", "\r\n", {"labelType = Single-use"});
    row("type 1 among blanks", "m", "  1 \r\n", {"labelType = Multiuse"});
    row("range of texts", "Gt", "cold,warm\r\n", {"comboTemp = Custom"}, {min.arg(0), max.arg(0)});
    row("range without numbers", "Gt", ",\r\n", {"comboTemp = Custom"}, {min.arg(0), max.arg(0)});
    row("range with signs inside", "Gt", "2-000,8000-\r\n", {"comboTemp = Custom"},
        {min.arg(-2), max.arg(-8)});
    row("range with two signs", "Gt", "--2000,8000\r\n", {"comboTemp = Custom"}, {min.arg(-2), max.arg(8)});
    row("range out of bounds", "Gt", "-99000,99000\r\n", {"comboTemp = Custom"}, {min.arg(-30), max.arg(80)});
    row("range with a fraction", "Gt", "2000.0,8000\r\n", {"comboTemp = 2°C to 8°C"},
        {min.arg(2), max.arg(8)});
    row("sampling time that is a text", "Gs", "often\r\n", {"comboSampling = Custom"}, {"spinSampling = 1"});
    row("sampling time with a unit", "Gs", "300s\r\n", {"comboSampling = Custom"}, {"spinSampling = 1"});
    row("sampling time below zero", "Gs", "-600\r\n", {"comboSampling = Custom"}, {"spinSampling = 1"});
    row("sampling time of half minutes", "Gs", "90\r\n", {"comboSampling = Custom"}, {"spinSampling = 1"});
    row("sampling time too long", "Gs", "72000\r\n", {"comboSampling = Custom"}, {"spinSampling = 960"});
    row("sampling time with zeros", "Gs", "00000300\r\n", {"comboSampling = 5 minutes"},
        {"spinSampling = 5"});
    row("delay that is a text", "Gd", "never\r\n", {"comboDelay = Custom"}, {"spinDelay = 1"});
    row("no delay", "Gd", "0\r\n", {"comboDelay = Custom"}, {"spinDelay = 1"});
    row("button lock 2", "Gl", "2\r\n", {}, {"checkLock = 0"});
    row("no button lock", "Gl", "\r\n", {}, {"checkLock = 0"});
    row("an empty text", "G1", "\r\n", {"lineRecipient = "});
    row("a text with accents", "G1", "Çà ñ Œ\r\n", {"lineRecipient = Ca n OE"});
    row("a text in another script", "G1", "Больница\r\n", {"lineRecipient = Больница"});
    row("a text with a blank before a NUL byte", "G0", QByteArray("Southern \0x\r\n", 13),
        {"lineSender = Southern"});
    row("a text among no-break spaces", "G2", "\u00a0Batch 8\u00a0\r\n", {"lineInfo = Batch 8"});
    row("a barcode among no-break spaces", "G4", "\u00a0B5678\u00a0\r\n", {"lineBarcode = B5678"});
    row("an unknown shipment type", "G3", "Rail\r\n", {"comboType =  "});
    row("a shipment type in other case", "G3", "land\r\n", {"comboType =  "});
    row("no shipment type", "G3", " \r\n", {"comboType =  "});
}

void TestMainWindowReadReplies::makesDoWith()
{
    QFETCH(const QByteArray, command);
    QFETCH(const QByteArray, reply);
    QFETCH(const QStringList, panelChanges);
    QFETCH(const QStringList, numbers);
    ProcedureRig rig;
    rig.plug();
    rig.disturb(command, Fault::Kind::Reply, reply);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), panelsWith(panelsOfBasicLogger(), panelChanges));
    QCOMPARE(setupNumbers(rig), panelsWith({"spinSampling = 10", "spinDelay = 60", "spindTempMin = -10",
                                            "spindTempMax = -1", "checkLock = 1"},
                                           numbers));
    QCOMPARE(differences(rig, connected()), QString());
}

// Which is 1970, too long ago for a logger whose battery was never out.
void TestMainWindowReadReplies::takesClockFromGarbage()
{
    ProcedureRig rig;
    rig.plug();
    rig.disturb("g", Fault::Kind::Reply, "noon\r\n");
    expectInvalidDevice(rig.robot);
    QString shown;
    rig.atCommand(connectCommands().indexOf("Gt") + 1, [&] { shown = rig.text("labelDateTime"); });
    rig.press("buttonConnect");
    QCOMPARE(shown, QDateTime(QDate(1970, 1, 1), QTime(0, 0)).toString("hh:mm:ss dd/MMM/yyyy"));
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowReadReplies::survivesBinaryIdentity_data()
{
    QTest::addColumn<Fault::Kind>("kind");
    QTest::newRow("bytes that are no text") << Fault::Kind::Garbage;
    QTest::newRow("thousands of characters") << Fault::Kind::OverLong;
}

// The identification as part of a read is not judged, whatever it holds.
void TestMainWindowReadReplies::survivesBinaryIdentity()
{
    QFETCH(const Fault::Kind, kind);
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.disturb("i", kind);
    rig.disturb("e", kind);
    rig.press("buttonRead");
    QCOMPARE(rig.wire(), readCommands());
    QCOMPARE(rig.text("lineSender"), QStringLiteral("Northern Pharma"));
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowReadReplies::failsAt_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("no time") << QByteArray("g") << QByteArray(" \r\n");
    QTest::newRow("no range") << QByteArray("Gt") << QByteArray("\r\n");
    QTest::newRow("half a range") << QByteArray("Gt") << QByteArray("2000\r\n");
    QTest::newRow("range and a half") << QByteArray("Gt") << QByteArray("2000,8000,9000\r\n");
    QTest::newRow("range of noise") << QByteArray("Gt") << QByteArray("\xff\xfe\x80\x07\r\n");
    QTest::newRow("no sampling time") << QByteArray("Gs") << QByteArray("\r\n");
    QTest::newRow("no delay") << QByteArray("Gd") << QByteArray("\r\n\r\n");
}

void TestMainWindowReadReplies::failsAt()
{
    QFETCH(const QByteArray, command);
    QFETCH(const QByteArray, reply);
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.disturb(command, Fault::Kind::Reply, reply);
    expectReadFailed(rig.robot);
    rig.press("buttonRead");
    QCOMPARE(rig.wire(), firstOf(readCommands(), readCommands().indexOf(command) + 1) << "m");
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowReadReplies::joinsPieces()
{
    ProcedureRig rig;
    rig.plug();
    rig.disturb("", Fault::Kind::Pieces);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowReadReplies::losesBlankBetweenPieces()
{
    ProcedureRig rig;
    rig.plug();
    Fault fault;
    fault.kind = Fault::Kind::Pieces;
    fault.command = "G0";
    fault.pieces = {"Northern ", "Pharma\r\n"};
    rig.logger->faults().add(fault);
    rig.press("buttonConnect");
    QCOMPARE(panels(rig), panelsWith(panelsOfBasicLogger(), {"lineSender = NorthernPharma"}));
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowReadReplies::acceptsSlowReply()
{
    ProcedureRig rig;
    rig.plug();
    Fault fault;
    fault.kind = Fault::Kind::Late;
    fault.command = "Gs";
    fault.milliseconds = 50;
    rig.logger->faults().add(fault);
    rig.press("buttonConnect");
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

// The text comes while the shipment type is waited for, and spoils it.
void TestMainWindowReadReplies::joinsLateReplyToNext()
{
    ProcedureRig rig;
    rig.plug();
    rig.disturb("G1", Fault::Kind::LateUntilNext);
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), firstOf(connectCommands(), 12) << "G3"
                                                        << "m");
    QCOMPARE(panels(rig), panelsWith(panelsOfBasicLogger(),
                                     {"lineRecipient = ", "lineInfo = ", "lineBarcode = ", "comboType =  "}));
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowReadReplies::failsAtLateReply()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.disturb("Gs", Fault::Kind::LateUntilNext);
    expectReadFailed(rig.robot);
    rig.press("buttonRead");
    QCOMPARE(rig.wire(), firstOf(readCommands(), readCommands().indexOf("Gs") + 1) << "m");
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowReadReplies::cutsLongTexts()
{
    ProcedureRig rig;
    rig.plug();
    for (const char* command : {"G0", "G1", "G2", "G4"})
        rig.disturb(command, Fault::Kind::OverLong);
    rig.press("buttonConnect");
    const QString tail(60, QLatin1Char('x'));
    QCOMPARE(rig.text("lineSender"), (QStringLiteral("Northern Pharma") + tail).left(60));
    QCOMPARE(rig.text("lineRecipient"), (QStringLiteral("City Hospital") + tail).left(60));
    QCOMPARE(rig.text("lineInfo"), (QStringLiteral("Batch 7") + tail).left(60));
    QCOMPARE(rig.text("lineBarcode"), QStringLiteral("B1234xxxxx"));
    QCOMPARE(rig.text("labelCountSender"), QStringLiteral("(60/60)"));
    QCOMPARE(rig.text("labelCountBarcode"), QStringLiteral("(10/10)"));
    QCOMPARE(differences(rig, connected()), QString());
}

QTEST_MAIN(TestMainWindowReadReplies)
#include "tst_mainwindow_readreplies.moc"
