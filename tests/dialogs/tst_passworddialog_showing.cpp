// What the unlock dialog asks the logger at each showing, and what it shows of the answers.

#include "passworddesk.h"

#include "support/minimised.h"

#include <QLineEdit>
#include <QTest>

namespace {

const QString dash(QStringLiteral(" - "));

/// Another idle logger's labels.
const QStringList oldLabels = idleLabels();

/// Lets the dialog show the logger once, then gives the logger other texts and another state.
void showAndChange(PasswordDesk& desk)
{
    desk.open();
    desk.dialog.reject();
    LoggerModel::Settings& settings = desk.logger->model().settings();
    settings.texts = {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), {}, {}};
    settings.state = LoggerModel::State::Finished;
    desk.takeWire();
}

void addCommands()
{
    QTest::addColumn<int>("number");
    for (int number = 1; number <= showingCommands().size(); ++number)
        QTest::newRow(showingCommands().at(number - 1)) << number;
}

} // namespace

class TestPasswordDialogShowing : public QObject
{
    Q_OBJECT

private slots:
    void asksInOrder();
    void state_data();
    void state();
    void blankTexts_data();
    void blankTexts();
    void textsAsTheyCame_data();
    void textsAsTheyCame();
    void asksAgainAtEveryShowing();
    void minimisingIsNoNewShowing();
    void forgetsWhatTheOperatorLeft();
    void forgetsTheUnlocking();
    void silence_data() { addCommands(); }
    void silence();
    void unusableState_data();
    void unusableState();
    void unplugging_data() { addCommands(); }
    void unplugging();
    void alreadyUnplugged();
    void noDevice();
    void otherDevice();
};

void TestPasswordDialogShowing::asksInOrder()
{
    PasswordDesk desk;
    desk.open();
    QCOMPARE(desk.takeWire(), showingCommands());
    QCOMPARE(desk.labels(), idleLabels());
    QCOMPARE(desk.dialog.lState(), 2);
    QVERIFY(!desk.dialog.lUnlocked());
}

void TestPasswordDialogShowing::state_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("text");
    const QString idle = idleLabels().constLast();
    const QString finished(QStringLiteral("The device is in the FINISHED state.\n"
                                          "After unlocking, the measurement reports will become available."));
    QTest::newRow("IDLE") << QByteArray("2") << 2 << idle;
    QTest::newRow("FINISHED") << QByteArray("16") << 16 << finished;
    QTest::newRow("recording") << QByteArray("4") << 4 << dash;
    QTest::newRow("zero") << QByteArray("0") << 0 << dash;
    QTest::newRow("below zero") << QByteArray("-2") << -2 << dash;
    QTest::newRow("both flags") << QByteArray("18") << 18 << dash;
}

void TestPasswordDialogShowing::state()
{
    QFETCH(QByteArray, reply);
    PasswordDesk desk;
    desk.disturb("x", Fault::Kind::Reply, reply);
    desk.open();
    QTEST(desk.dialog.lState(), "state");
    QTEST(desk.text("labelState"), "text");
    QCOMPARE(desk.takeWire(), showingCommands());
}

void TestPasswordDialogShowing::blankTexts_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("nothing but a line end") << QByteArray("\r\n");
    QTest::newRow("blanks") << QByteArray("          ");
    QTest::newRow("blanks that can't break") << QByteArray("\xc2\xa0\xc2\xa0");
}

void TestPasswordDialogShowing::blankTexts()
{
    QFETCH(QByteArray, reply);
    PasswordDesk desk;
    desk.disturb("G", Fault::Kind::Reply, reply);
    desk.open();
    QCOMPARE(desk.labels(), QStringList({dash, dash, dash, idleLabels().constLast()}));
}

void TestPasswordDialogShowing::textsAsTheyCame_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const QByteArray& text) {
        QTest::newRow(name) << text << QString::fromUtf8(text);
    };
    row("leading blank", "\xc2\xa0 Pharma");
    row("trailing blank", "Pharma \xc2\xa0");
    row("one leading, one only blank", "\xc2\xa0-");
    row("mark-up is text", "<b>Pharma</b> & Co");
    row("beyond ASCII", "Z\xc3\xbcrich");
    row("a dash", "-");
}

void TestPasswordDialogShowing::textsAsTheyCame()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, text);
    PasswordDesk desk;
    desk.disturb("G", Fault::Kind::Reply, reply);
    desk.open();
    QCOMPARE(desk.labels(), QStringList({text, text, text, idleLabels().constLast()}));
    for (const char* label : {"labelSender", "labelRecipient", "labelInformation"})
        QCOMPARE(desk.find<QWidget>(label)->property("textFormat").toInt(), int(Qt::PlainText));
}

void TestPasswordDialogShowing::asksAgainAtEveryShowing()
{
    PasswordDesk desk;
    showAndChange(desk);
    desk.open();
    QCOMPARE(desk.takeWire(), showingCommands());
    QCOMPARE(desk.labels().mid(0, 3), QStringList({"A", "B", "C"}));
    QCOMPARE(desk.dialog.lState(), 16);
}

void TestPasswordDialogShowing::minimisingIsNoNewShowing()
{
    PasswordDesk desk;
    desk.open();
    desk.takeWire();
    desk.find<QLineEdit>("linePassw")->setText(QStringLiteral("half a pass"));
    desk.pressToggle();
    bringBack(desk.dialog);
    QCOMPARE(desk.text("linePassw"), QStringLiteral("half a pass"));
    QVERIFY(desk.isShowingInfo());
    QCOMPARE(desk.takeWire(), QList<QByteArray>());
}

void TestPasswordDialogShowing::forgetsWhatTheOperatorLeft()
{
    PasswordDesk desk;
    desk.open();
    desk.pressToggle();
    desk.find<QLineEdit>("linePassw")->setText(QStringLiteral("half a pass"));
    desk.dialog.reject();
    desk.open();
    QVERIFY(!desk.isShowingInfo());
    QCOMPARE(desk.text("buttonToggleInfo"), QStringLiteral("More..."));
    QCOMPARE(desk.text("linePassw"), QString());
}

void TestPasswordDialogShowing::forgetsTheUnlocking()
{
    PasswordDesk desk;
    desk.open();
    desk.tryPassword(rightPassword());
    QVERIFY(desk.dialog.lUnlocked());
    desk.open();
    QVERIFY(!desk.dialog.lUnlocked());
    QCOMPARE(desk.text("linePassw"), QString());
}

// The first command without an answer is the last one; nothing is said, and the labels stay.
void TestPasswordDialogShowing::silence()
{
    QFETCH(int, number);
    const QByteArray command = showingCommands().at(number - 1);
    PasswordDesk fresh;
    fresh.disturb(command, Fault::Kind::Silence);
    fresh.open();
    QCOMPARE(fresh.takeWire(), showingCommands().mid(0, number));
    QCOMPARE(fresh.labels(), untouchedLabels());
    QVERIFY(fresh.robot.boxes().isEmpty());
}

void TestPasswordDialogShowing::unusableState_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::newRow("a text") << QByteArray("idle");
    QTest::newRow("a line end only") << QByteArray("\r\n");
    QTest::newRow("a number and more") << QByteArray("2,");
    QTest::newRow("nothing") << QByteArray();
}

void TestPasswordDialogShowing::unusableState()
{
    QFETCH(QByteArray, reply);
    PasswordDesk desk;
    showAndChange(desk);
    desk.disturb("x", Fault::Kind::Reply, reply);
    desk.open();
    QCOMPARE(desk.takeWire(), QList<QByteArray>({"x"}));
    QCOMPARE(desk.labels(), oldLabels);
    QCOMPARE(desk.dialog.lState(), 2);
    QVERIFY(desk.robot.boxes().isEmpty());
}

// The state was read and is told to the caller, even if it can't be shown.
void TestPasswordDialogShowing::unplugging()
{
    QFETCH(int, number);
    PasswordDesk desk;
    showAndChange(desk);
    QList<QByteArray> wire;
    desk.atCommand(showingCommands().at(number - 1), [&] {
        wire = desk.logger->commands();
        desk.unplug();
    });
    desk.open();
    QCOMPARE(wire, showingCommands().mid(0, number));
    QCOMPARE(desk.labels(), oldLabels);
    QCOMPARE(desk.dialog.lState(), number == 1 ? 2 : 16);
    QVERIFY(desk.dialog.isVisible());
    QVERIFY(desk.robot.boxes().isEmpty());
}

void TestPasswordDialogShowing::alreadyUnplugged()
{
    PasswordDesk desk;
    showAndChange(desk);
    desk.unplug();
    desk.open();
    QCOMPARE(desk.labels(), oldLabels);
    QVERIFY(desk.dialog.isVisible());
    QVERIFY(desk.robot.boxes().isEmpty());
}

void TestPasswordDialogShowing::noDevice()
{
    PasswordDesk desk;
    showAndChange(desk);
    desk.dialog.lSetDevice({});
    desk.find<QLineEdit>("linePassw")->setText(QStringLiteral("kept"));
    desk.find<QWidget>("groupInfo")->show();
    desk.open();
    QCOMPARE(desk.takeWire(), QList<QByteArray>());
    QCOMPARE(desk.labels(), oldLabels);
    QCOMPARE(desk.text("linePassw"), QStringLiteral("kept"));
    QVERIFY(desk.isShowingInfo());
}

void TestPasswordDialogShowing::otherDevice()
{
    PasswordDesk desk;
    desk.open();
    desk.dialog.reject();
    LoggerModel model = lockedLogger();
    model.settings().texts[0] = QStringLiteral("Southern Pharma");
    desk.link->lDisconnect();
    desk.unplug();
    desk.bench.plug(model);
    QVERIFY(desk.link->lConnectAuto());
    desk.open();
    QCOMPARE(desk.text("labelSender"), QStringLiteral("Southern Pharma"));
}

QTEST_MAIN(TestPasswordDialogShowing)
#include "tst_passworddialog_showing.moc"
