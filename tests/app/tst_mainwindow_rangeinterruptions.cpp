// A read or a write begins while the operator is in the middle of a range: the notice about the range comes
// first, and the procedure goes on behind it.

#include "setuppanel.h"
#include "timerig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QDoubleSpinBox>
#include <QPushButton>
#include <QTest>

#include <functional>

using namespace TimeWords;
using namespace WindowWords;

namespace {

constexpr qint64 threeDays = Q_INT64_C(3) * 86400 * 1000;
const QString readDone = QStringLiteral("Read successful");
const QString writeFailed = QStringLiteral("Write failed. Please retry");

/// The focus leaves a range's box as the mouse goes down on a button, or as a procedure disables the box.
enum Way { WriteKey, WriteButton, ReadKey, ReadButton };

bool isRead(Way way)
{
    return way == ReadKey || way == ReadButton;
}

bool isKey(Way way)
{
    return way == ReadKey || way == WriteKey;
}

/// A device that is gone as a read begins.
void expectLostAtOnce(DialogRobot& robot)
{
    expectReadFailed(robot);
    expectInvalidDevice(robot);
}

/// What a typed range leads to.
struct Typed
{
    const char* spin = "spindTempMin";
    const char* text = "50";
    bool noticed = true;
    const char* range = "50* to 51*";
    const char* command = nullptr; ///< that writes it; none if the logger can't take it
};

/// "2.5 to 8" is on the logger, and one of its boxes has the focus and what the operator has typed so far.
class TypingRig : public TimeRig
{
public:
    explicit TypingRig(const Settings& settings = quietSettings())
        : TimeRig(settings)
    {
    }

    void begin(const Typed& typed = {})
    {
        LoggerModel model = basicLogger();
        model.settings().tempMin = 2500;
        model.settings().tempMax = 8000;
        plugAndConnect(model);
        activate();
        auto* box = find<QDoubleSpinBox>(typed.spin);
        box->setFocus();
        box->selectAll();
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClicks(box, QString(typed.text).replace(QLatin1Char('.'), box->locale().decimalPoint()));
        takeStatusLog();
        QObject::connect(&robot, &DialogRobot::sBoxOpened, &window, [this](const QString& title) {
            // A warning of that title is another one.
            if (title != QStringLiteral("Notice") || robot.boxes().constLast().icon == QMessageBox::Warning)
                return;
            notices << range() + QLatin1String(isEnabled("buttonWrite") ? "" : ", disabled") +
                           QLatin1String(progressDialog() ? ", begun" : "");
            if (atNotice)
                atNotice();
        });
    }

    /// A window that closes under the mouse doesn't hear of its release.
    void go(Way way)
    {
        auto* button = find<QPushButton>(isRead(way) ? "buttonRead" : "buttonWrite");
        if (isKey(way)) {
            pressKeys(isRead(way) ? Qt::Key_R : Qt::Key_W);
            return;
        }
        QTest::mousePress(button, Qt::LeftButton);
        if (button->isVisible())
            QTest::mouseRelease(button, Qt::LeftButton);
    }

    QString range() { return Panel(*this).range(); }
    QStringList fittingNotice(Way way) const
    {
        return {QLatin1String(isKey(way) ? "50 to 51*, disabled" : "50* to 51*")};
    }

    QStringList notices; ///< what the window was like at each
    std::function<void()> atNotice;
};

} // namespace

Q_DECLARE_METATYPE(Typed)
Q_DECLARE_METATYPE(Way)

class TestMainWindowRangeInterruptions : public QObject
{
    Q_OBJECT

private slots:
    void write_data();
    void write();
    void read_data();
    void read();
    void windowClosesAtTheNotice_data();
    void windowClosesAtTheNotice();
    void plugIsPulledAtTheNotice_data() { everyWay(); }
    void plugIsPulledAtTheNotice();
    void deviceIsInvalidAtTheNotice_data() { everyWay(); }
    void deviceIsInvalidAtTheNotice();
    void deviceIsInvalidWhileTyping();

private:
    static void everyWay();
};

void TestMainWindowRangeInterruptions::everyWay()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("write, by its key") << WriteKey;
    QTest::newRow("write, by its button") << WriteButton;
    QTest::newRow("read, by its key") << ReadKey;
    QTest::newRow("read, by its button") << ReadButton;
}

void TestMainWindowRangeInterruptions::write_data()
{
    const Typed rows[] = {
        {"spindTempMin", "50", true, "50* to 51*", nullptr},
        {"spindTempMax", "1", true, "2.5* to 3.5*", nullptr},
        {"spindTempMin", "7.1", true, "7.1* to 8.1*", "St0000709900008100"},
        {"spindTempMin", "", false, "2.5* to 8*", "St0000250000008000"},
        {"spindTempMax", "-", false, "2.5* to 8*", "St0000250000008000"},
        {"spindTempMax", "9.", false, "2.5* to 9*", "St0000250000009000"},
    };
    QTest::addColumn<Typed>("typed");
    QTest::addColumn<Way>("way");
    for (const Typed& row : rows) {
        QTest::addRow("%s %s, by its key", row.spin, row.text) << row << WriteKey;
        QTest::addRow("%s %s, by its button", row.spin, row.text) << row << WriteButton;
    }
}

// The notice makes a range one degree wide, which the logger takes only if rounding makes it a little more.
void TestMainWindowRangeInterruptions::write()
{
    QFETCH(const Typed, typed);
    QFETCH(const Way, way);
    TypingRig rig;
    rig.begin(typed);
    if (typed.noticed)
        expectRangeNotice(rig.robot);
    if (!typed.command)
        expectWriteFailed(rig.robot);
    rig.go(way);
    QCOMPARE(rig.notices.size(), int(typed.noticed));
    QCOMPARE(rig.range(), QLatin1String(typed.range));
    QList<QByteArray> expected;
    if (typed.command)
        expected = QList<QByteArray>{typed.command} + writeCommandsOfBasicLogger().mid(1);
    QCOMPARE(rig.wire(), expected);
    const QString outcome = typed.command ? QStringLiteral("Write successful") : writeFailed;
    QCOMPARE(rig.takeStatusLog(), QStringList({"Writing to device...", outcome}));
    QCOMPARE(differences(rig, idle(outcome, !typed.command)), QString());
}

void TestMainWindowRangeInterruptions::read_data()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("by its key") << ReadKey;
    QTest::newRow("by its button") << ReadButton;
}

void TestMainWindowRangeInterruptions::read()
{
    QFETCH(const Way, way);
    TypingRig rig;
    rig.begin();
    expectRangeNotice(rig.robot);
    rig.go(way);
    QCOMPARE(rig.notices, rig.fittingNotice(way));
    QCOMPARE(rig.range(), QStringLiteral("2.5* to 8*"));
    QCOMPARE(rig.wire(), readCommands());
    QCOMPARE(rig.takeStatusLog(), QStringList({"Reading from device on ttyACM0", readDone}));
    QCOMPARE(differences(rig, idle(readDone, false)), QString());
}

void TestMainWindowRangeInterruptions::windowClosesAtTheNotice_data()
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<bool>("changed");
    for (const bool changed : {false, true}) {
        const char* state = changed ? "changed" : "unchanged";
        QTest::addRow("%s, write by its key", state) << WriteKey << changed;
        QTest::addRow("%s, write by its button", state) << WriteButton << changed;
        QTest::addRow("%s, read by its key", state) << ReadKey << changed;
        QTest::addRow("%s, read by its button", state) << ReadButton << changed;
    }
}

// The changes that a read would erase are asked about at the close.
void TestMainWindowRangeInterruptions::windowClosesAtTheNotice()
{
    QFETCH(const Way, way);
    QFETCH(const bool, changed);
    TypingRig rig;
    rig.begin();
    rig.atNotice = [&rig] { rig.window.close(); };
    if (changed) {
        rig.type("lineSender", QStringLiteral("x"));
        expectExit(rig.robot, QMessageBox::Yes); // over the notice, and so answered first
    }
    expectRangeNotice(rig.robot);
    rig.go(way);
    QCOMPARE(rig.notices, rig.fittingNotice(way));
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(rig.takeStatusLog(), QStringList());
    QCOMPARE(closedWindowRemains(rig), QString());
}

void TestMainWindowRangeInterruptions::plugIsPulledAtTheNotice()
{
    QFETCH(const Way, way);
    TypingRig rig;
    rig.begin();
    rig.atNotice = [&rig] { rig.unplugAll(); };
    expectRangeNotice(rig.robot);
    if (isRead(way))
        expectLostAtOnce(rig.robot);
    else
        expectWriteFailed(rig.robot);
    rig.go(way);
    QCOMPARE(rig.notices, rig.fittingNotice(way));
    QCOMPARE(differences(rig, isRead(way) ? disconnected() : idle(writeFailed, true)), QString());
}

// The time servers' answer tells that it isn't valid. Nobody asks while a procedure has begun, but a read
// does at its end.
void TestMainWindowRangeInterruptions::deviceIsInvalidAtTheNotice()
{
    QFETCH(const Way, way);
    Servers servers(NtpAnswer::currentTime(threeDays).later());
    TypingRig rig(timeSettings());
    servers.awaitRequest();
    rig.begin();
    bool told = false;
    rig.atNotice = [&] {
        servers.release();
        told = rig.comesTo(isKey(way) ? fetchedServer : leftPort);
    };
    if (isKey(way)) {
        expectRangeNotice(rig.robot);
        if (isRead(way))
            expectInvalidDevice(rig.robot);
        else
            expectWriteFailed(rig.robot);
    } else {
        expectInvalidDevice(rig.robot); // over the notice, and so answered first
        expectRangeNotice(rig.robot);
    }
    rig.go(way);
    QVERIFY(told);
    QCOMPARE(rig.notices, rig.fittingNotice(way));
    const bool begun = isKey(way);
    QCOMPARE(rig.wire(), !begun        ? QList<QByteArray>{"m"}
                         : isRead(way) ? readCommands()
                                       : QList<QByteArray>());
    QCOMPARE(differences(rig, way == WriteKey ? idle(writeFailed, true) : disconnected()), QString());
}

// Nothing that was typed is of any use, but the boxes are disabled first.
void TestMainWindowRangeInterruptions::deviceIsInvalidWhileTyping()
{
    Servers servers(NtpAnswer::currentTime(threeDays).later());
    TypingRig rig(timeSettings());
    servers.awaitRequest();
    rig.begin();
    expectRangeNotice(rig.robot);
    expectInvalidDevice(rig.robot);
    servers.release();
    QVERIFY(rig.comesTo(leftPort));
    QCOMPARE(rig.notices, QStringList("50 to 51*, disabled"));
    QCOMPARE(rig.wire(), QList<QByteArray>{"m"});
    QCOMPARE(differences(rig, disconnected()), QString());
}

QTEST_MAIN(TestMainWindowRangeInterruptions)
#include "tst_mainwindow_rangeinterruptions.moc"
