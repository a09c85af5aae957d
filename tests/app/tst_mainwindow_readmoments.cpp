// What stands in the window at single moments of a read: at its question, behind a cancel, under its boxes.

#include "extendedrig.h"
#include "progresswatch.h"
#include "readingrig.h"

#include <QLineEdit>
#include <QProgressDialog>
#include <QTest>

using namespace WindowWords;

namespace {

constexpr const char* lines[] = {"lineSender", "lineRecipient", "lineInfo", "lineBarcode"};
constexpr int firstText = 10; ///< the number of "G0" in a read

const QStringList emptyLines{QStringLiteral("lineSender = "), QStringLiteral("lineRecipient = "),
                             QStringLiteral("lineInfo = "), QStringLiteral("lineBarcode = ")};

/// What an operator sees behind a box.
struct Moment
{
    QStringList panels;
    bool controlsEnabled = true;
    bool progressShown = true;
    QList<int> barValues;
};

Moment momentOf(const ProcedureRig& rig, const ProgressWatch& watch)
{
    const QProgressDialog* progress = rig.progressDialog();
    return {panels(rig), rig.controlsEnabled(), progress && progress->isVisible(),
            watch.dialogs().constLast().values};
}

} // namespace

class TestMainWindowReadMoments : public QObject
{
    Q_OBJECT

private slots:
    void questionComesWithControlsDisabled_data();
    void questionComesWithControlsDisabled();
    void cancelledTextStaysEmpty_data();
    void cancelledTextStaysEmpty();
    void failureBoxComesBehindTheDialog_data();
    void failureBoxComesBehindTheDialog();
    void lostReadShowsTheFirmwaresControls_data();
    void lostReadShowsTheFirmwaresControls();
};

void TestMainWindowReadMoments::questionComesWithControlsDisabled_data()
{
    QTest::addColumn<bool>("reading");
    QTest::newRow("Yes") << true;
    QTest::newRow("No") << false;
}

void TestMainWindowReadMoments::questionComesWithControlsDisabled()
{
    QFETCH(const bool, reading);
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    bool enabledThen = true;
    connect(&rig.robot, &DialogRobot::sBoxOpened, this, [&] { enabledThen = rig.controlsEnabled(); });
    expectReadQuestion(rig.robot, reading ? Yes : No);
    rig.press("buttonRead");
    QVERIFY(!enabledThen);
    QCOMPARE(differences(rig, reading ? idle(QStringLiteral("Read successful"), false)
                                      : idle(QStringLiteral("Connected to device on ttyACM0"), true)),
             QString());
}

void TestMainWindowReadMoments::cancelledTextStaysEmpty_data()
{
    QTest::addColumn<int>("text");
    QTest::newRow("G0") << 0;
    QTest::newRow("G4") << 3;
}

// Looked at when the command behind it, the last one, is out. Whatever was in the line goes.
void TestMainWindowReadMoments::cancelledTextStaysEmpty()
{
    QFETCH(const int, text);
    ReadingRig rig(false, basicLogger(), readCommands());
    rig.atCommand(firstText + text, [&] {
        rig.find<QLineEdit>(lines[text])->setText(QStringLiteral("left over"));
        rig.pressCancel();
    });
    QStringList shown;
    rig.atCommand(firstText + text + 1, [&] { shown = panels(rig); });
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsUpTo(firstText + text) << "G3"
                                                            << "m");
    QCOMPARE(shown, panelsWith(panelsOfBasicLogger(), emptyLines.mid(text)));
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowReadMoments::failureBoxComesBehindTheDialog_data()
{
    QTest::addColumn<bool>("connecting");
    QTest::newRow("in a connect") << true;
    QTest::newRow("in a read") << false;
}

// What was read before the failure is on the screen as long as the box is; the controls come behind it.
void TestMainWindowReadMoments::failureBoxComesBehindTheDialog()
{
    QFETCH(const bool, connecting);
    ReadingRig rig(connecting, basicLogger(), readCommands());
    rig.logger->model().settings().serial = QStringLiteral("BL-77");
    rig.logger->model().settings().tempMin = 15000;
    rig.logger->model().settings().tempMax = 25000;
    rig.disturb("Gs", Fault::Kind::Silence);
    const ProgressWatch watch;
    Moment moment;
    connect(&rig.robot, &DialogRobot::sBoxOpened, this, [&](const QString& title) {
        if (title == QStringLiteral("Warning"))
            moment = momentOf(rig, watch);
    });
    QStringList withControls;
    noteEnabledControls(rig, &withControls);
    rig.expectFailure();
    rig.run();
    const QStringList before =
        connecting ? panelsWith(panelsOfBasicLogger(), emptyPanels().filter(QStringLiteral("combo")))
                   : panelsOfBasicLogger();
    QCOMPARE(moment.panels,
             panelsWith(before, emptyLines + QStringList{QStringLiteral("labelSerial = BL-77"),
                                                         QStringLiteral("comboTemp = 15°C to 25°C")}));
    QVERIFY(!moment.controlsEnabled);
    QVERIFY(!moment.progressShown);
    QCOMPARE(moment.barValues, QList<int>({0, 1, 2, 3, 4, 17}));
    QCOMPARE(withControls, QStringList("m"));
    QCOMPARE(differences(rig, rig.lostState()), QString());
}

void TestMainWindowReadMoments::lostReadShowsTheFirmwaresControls_data()
{
    QTest::addColumn<bool>("extended");
    QTest::addColumn<bool>("cancelled");
    QTest::newRow("extended firmware, failed") << true << false;
    QTest::newRow("extended firmware, cancelled") << true << true;
    QTest::newRow("basic firmware, failed") << false << false;
    QTest::newRow("basic firmware, cancelled") << false << true;
}

// The logger has changed its firmware since it was connected.
void TestMainWindowReadMoments::lostReadShowsTheFirmwaresControls()
{
    QFETCH(const bool, extended);
    QFETCH(const bool, cancelled);
    ProcedureRig rig;
    rig.plugAndConnect(extended ? basicLogger() : secureLogger());
    rig.logger->model() = extended ? secureLogger() : basicLogger();
    const QList<QByteArray> commands = extended ? extendedReadCommands() : readCommands();
    if (cancelled) {
        rig.atCommand(commands.indexOf("Gt") + 1, [&rig] { rig.pressCancel(); });
    } else {
        rig.disturb("Gt", Fault::Kind::Silence);
        expectReadFailed(rig.robot);
    }
    rig.press("buttonRead");
    QCOMPARE(rig.find<QWidget>("buttonAdvanced")->isVisible(), extended);
    QCOMPARE(rig.find<QWidget>("checkLock")->isVisible(), !extended);
    QCOMPARE(differences(rig, disconnected()), QString());
}

QTEST_MAIN(TestMainWindowReadMoments)
#include "tst_mainwindow_readmoments.moc"
