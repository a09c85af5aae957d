// Reading from the logger: the order of things, where each value goes, what is asked and shown on the way.

#include "markingtranslator.h"
#include "procedurerig.h"
#include "progresswatch.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QDateTime>
#include <QLabel>
#include <QTest>

using namespace WindowWords;

class TestMainWindowRead : public QObject
{
    Q_OBJECT

private slots:
    void readsInOrder();
    void readsByKeys();
    void fillsEveryPlace();
    void readsWhatHasChanged();
    void typeIsNotTranslated();
    void showsDeviceClock();
    void judgesFirmware_data();
    void judgesFirmware();
    void keepsToBasicCommands_data();
    void keepsToBasicCommands();
    void clearsWhatGoesFirst();
    void disablesControls();
    void leavesChangesAfterNo();
    void dropsChangesAfterYes();
    void showsProgress();
    void keepsItsPace();
    void movesBar_data();
    void movesBar();
};

void TestMainWindowRead::readsInOrder()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.takeStatusLog();
    rig.press("buttonRead");
    QCOMPARE(rig.wire(), readCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(rig.takeStatusLog(), QStringList({"Reading from device on ttyACM0", "Read successful"}));
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowRead::readsByKeys()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.activate();
    rig.pressKeys(Qt::Key_R);
    QCOMPARE(rig.wire(), readCommands());
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowRead::fillsEveryPlace()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(setupNumbers(rig), QStringList({"spinSampling = 10", "spinDelay = 60", "spindTempMin = -10",
                                             "spindTempMax = -1", "checkLock = 1"}));
    QCOMPARE(differences(rig, connected()), QString());
}

// Every value is another one, and those of the setup fit no entry of the lists.
void TestMainWindowRead::readsWhatHasChanged()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    LoggerModel::Settings& settings = rig.logger->model().settings();
    settings.firmware = QStringLiteral("1.1.10");
    settings.hardware = QStringLiteral("3");
    settings.serial = QStringLiteral("BL-77");
    settings.multiuse = true;
    settings.tempMin = -2500;
    settings.tempMax = 12250;
    settings.samplingTime = 420;
    settings.startDelay = 5400;
    settings.buttonLock = false;
    settings.texts = {QStringLiteral("S"), QStringLiteral("R"), QStringLiteral("I"), QStringLiteral("Sea"),
                      QStringLiteral("0123456789")};
    rig.press("buttonRead");
    QCOMPARE(panels(rig), QStringList({"labelDeviceName = Brumalogger USB", "labelFirmwareVersion = 1.1.10",
                                       "labelHardwareRevision = 3", "labelSerial = BL-77",
                                       "labelType = Multiuse", "lineSender = S", "lineRecipient = R",
                                       "lineInfo = I", "lineBarcode = 0123456789", "comboTemp = Custom",
                                       "comboSampling = Custom", "comboDelay = Custom", "comboType = Sea"}));
    QCOMPARE(setupNumbers(rig), QStringList({"spinSampling = 7", "spinDelay = 90", "spindTempMin = -2.5",
                                             "spindTempMax = 12.25", "checkLock = 0"}));
    for (const char* name : {"spinSampling", "spinDelay", "spindTempMin", "spindTempMax"})
        QVERIFY2(rig.isEnabled(name), name);
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowRead::typeIsNotTranslated()
{
    const MarkingTranslator translator;
    ProcedureRig rig;
    rig.plugAndConnect();
    QCOMPARE(rig.text("labelType"), QStringLiteral("Single-use"));
    rig.logger->model().settings().multiuse = true;
    rig.press("buttonRead");
    QCOMPARE(rig.text("labelType"), QStringLiteral("Multiuse"));
    QCOMPARE(rig.status(), QStringLiteral("<Read successful>"));
    QCOMPARE(rig.robot.problems(), QString());
}

// Looked at when the next command is out: from then on the clock ticks.
void TestMainWindowRead::showsDeviceClock()
{
    LoggerModel model = basicLogger();
    model.settings().multiuse = true;
    ProcedureRig rig;
    rig.plug(model);
    rig.disturb("g", Fault::Kind::Reply, "1700000000\r\n");
    QString shown;
    rig.atCommand(connectCommands().indexOf("Gt") + 1, [&] { shown = rig.text("labelDateTime"); });
    rig.press("buttonConnect");
    QCOMPARE(shown, QDateTime(QDate(2023, 11, 14), QTime(22, 13, 20)).toString("hh:mm:ss dd/MMM/yyyy"));
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowRead::judgesFirmware_data()
{
    QTest::addColumn<QString>("firmware");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("extended");
    QTest::newRow("before 1.2.0") << "1.1.9"
                                  << "1.1.9" << false;
    QTest::newRow("before 1.2.0, with zeros") << "01.01.09"
                                              << "1.1.9" << false;
    QTest::newRow("last before 1.2.0") << "1.1.999"
                                       << "1.1.999" << false;
    QTest::newRow("1.2.0") << "1.2.0"
                           << "1.2.0" << true;
    QTest::newRow("1.2.0, with zeros") << "01.02.00"
                                       << "1.2.0" << true;
    QTest::newRow("after 1.2.0") << "01.02.03"
                                 << "1.2.3" << true;
    QTest::newRow("2.0.0") << "2.0.0"
                           << "2.0.0" << true;
    QTest::newRow("two parts") << "1.2"
                               << "1.2" << false;
    QTest::newRow("four parts") << "1.2.0.0"
                                << "1.2.0.0" << false;
    QTest::newRow("a part that is no number") << "1.x.9"
                                              << "1.0.9" << false;
}

void TestMainWindowRead::judgesFirmware()
{
    QFETCH(const QString, firmware);
    QFETCH(const QString, shown);
    QFETCH(const bool, extended);
    LoggerModel model = basicLogger();
    model.settings().firmware = firmware;
    ProcedureRig rig;
    rig.plugAndConnect(model);
    QCOMPARE(rig.text("labelFirmwareVersion"), shown);
    QCOMPARE(rig.find<QWidget>("buttonAdvanced")->isVisible(), extended);
    QCOMPARE(rig.find<QWidget>("checkLock")->isVisible(), !extended);
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowRead::keepsToBasicCommands_data()
{
    QTest::addColumn<QString>("firmware");
    QTest::newRow("1.1.9") << "1.1.9";
    QTest::newRow("1.2, which has no third part") << "1.2";
}

// Connect, read, write and start, without one of the commands that came with 1.2.0.
void TestMainWindowRead::keepsToBasicCommands()
{
    QFETCH(const QString, firmware);
    LoggerModel model = basicLogger();
    model.settings().firmware = firmware;
    ProcedureRig rig;
    rig.plug(model);
    rig.press("buttonConnect");
    rig.press("buttonRead");
    rig.press("buttonWrite");
    expectStartConfirm(rig.robot, Yes);
    rig.press("buttonStart");
    QCOMPARE(rig.wire().first(), QByteArray("i"));
    QCOMPARE(rig.wire().last(), QByteArray("a"));
    for (const QByteArray& command : rig.wire()) {
        for (const char* extended :
             {"#", "x", "?", "!", "Go", "So", "Gz", "Sz", "Ga", "Gp", "Sa", "Sp", "z", "l"})
            QVERIFY2(!command.startsWith(extended), command.constData());
    }
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowRead::clearsWhatGoesFirst()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    auto* clock = rig.find<QLabel>("labelDateTime");
    clock->setStyleSheet(QStringLiteral("font: bold"));
    QStringList atFirstStep;
    QString clockStyle;
    rig.atCommand(2, [&] {
        atFirstStep = panels(rig);
        clockStyle = clock->styleSheet();
    });
    rig.press("buttonRead");
    QCOMPARE(clockStyle, QString());
    QCOMPARE(atFirstStep, panelsWith(panelsOfBasicLogger(),
                                     {"lineSender = ", "lineRecipient = ", "lineInfo = ", "lineBarcode = "}));
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowRead::disablesControls()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    QStringList early;
    noteEnabledControls(rig, &early);
    rig.press("buttonRead");
    QCOMPARE(early, QStringList("m")); // the last command of all
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowRead::leavesChangesAfterNo()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.type("lineSender", QStringLiteral("Southern"));
    expectReadQuestion(rig.robot, No);
    rig.press("buttonRead");
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(panels(rig), panelsWith(panelsOfBasicLogger(), {"lineSender = Southern"}));
    QCOMPARE(differences(rig, idle(QStringLiteral("Connected to device on ttyACM0"), true)), QString());
}

void TestMainWindowRead::dropsChangesAfterYes()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.type("lineSender", QStringLiteral("Southern"));
    expectReadQuestion(rig.robot, Yes);
    rig.press("buttonRead");
    QCOMPARE(rig.wire(), readCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

void TestMainWindowRead::showsProgress()
{
    ProcedureRig rig;
    const ProgressWatch watch;
    rig.plugAndConnect();
    rig.press("buttonRead");
    QCOMPARE(watch.dialogs().size(), 2);
    for (const ProgressWatch::Dialog& dialog : watch.dialogs()) {
        QCOMPARE(dialog.label, QStringLiteral("Reading from device"));
        QCOMPARE(dialog.title, QStringLiteral("Brumalogger Configuration Tool"));
        QCOMPARE(dialog.button, QStringLiteral("Cancel"));
        QCOMPARE(dialog.minimum, 0);
        QCOMPARE(dialog.maximum, 17);
        QCOMPARE(dialog.modality, Qt::WindowModal);
    }
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

// By the clock that the program waits by: 75 ms for each reply, however soon it comes, and as much again
// before the proof of identity and before the read proper.
void TestMainWindowRead::keepsItsPace()
{
    ProcedureRig rig;
    rig.WindowRig::plug(basicLogger());
    QList<qint64> pauses;
    qint64 last = QDateTime::currentMSecsSinceEpoch();
    connect(rig.logger, &SimulatedPort::sCommandReceived, rig.logger, [&] {
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        pauses << now - last;
        last = now;
    });
    rig.press("buttonConnect");
    QCOMPARE(pauses.size(), connectCommands().size());
    for (int i = 0; i < pauses.size(); ++i) {
        const qint64 expected = i == 1 ? 150 : 75;
        QVERIFY2(qAbs(pauses.at(i) - expected) < 30,
                 qPrintable(QStringLiteral("%1 ms before command %2").arg(pauses.at(i)).arg(i + 1)));
    }
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowRead::movesBar_data()
{
    QTest::addColumn<int>("silentCommand");
    QTest::addColumn<QList<int>>("values");
    const auto row = [](const char* name, int silentCommand, const QList<int>& values) {
        QTest::newRow(name) << silentCommand << values;
    };
    row("every text", 0, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 17});
    row("G0 fails", 10, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 17});
    row("G1 fails", 11, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17});
    row("G2 fails", 12, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 17});
    row("G4 fails", 13, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 17});
}

void TestMainWindowRead::movesBar()
{
    QFETCH(const int, silentCommand);
    ProcedureRig rig;
    rig.plugAndConnect();
    if (silentCommand > 0)
        rig.disturb(silentCommand, Fault::Kind::Silence);
    const ProgressWatch watch;
    rig.press("buttonRead");
    QCOMPARE(watch.dialogs().size(), 1);
    QTEST(watch.dialogs().first().values, "values");
    QCOMPARE(differences(rig, idle(QStringLiteral("Read successful"), false)), QString());
}

QTEST_MAIN(TestMainWindowRead)
#include "tst_mainwindow_read.moc"
