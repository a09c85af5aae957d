// The answer of a time server comes while a prompt for a newer version is open.

#include "extendedrig.h"
#include "timerig.h"
#include "updaterig.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QTest>

using namespace WindowWords;

namespace {

constexpr qint64 threeDays = Q_INT64_C(3) * 86400 * 1000;
const QString foundInvalid = QStringLiteral("Disconnected from ttyACM0");

/// Servers that answer when they are told to.
struct WaitingServers : Servers
{
    explicit WaitingServers(qint64 ahead) { answer(NtpAnswer::currentTime(ahead).later()); }
};

} // namespace

class TestMainWindowPromptAnswers : public QObject
{
    Q_OBJECT

private slots:
    void answers_data();
    void answers();
};

// A time far off makes a Single-use logger invalid: that is said over the prompt, and the logger is gone.
void TestMainWindowPromptAnswers::answers_data()
{
    QTest::addColumn<qint64>("ahead");
    QTest::addColumn<QString>("status");
    QTest::newRow("logger is valid") << qint64(0) << TimeWords::fetchedServer;
    QTest::newRow("logger is invalid") << threeDays << foundInvalid;
}

void TestMainWindowPromptAnswers::answers()
{
    QFETCH(const qint64, ahead);
    QFETCH(const QString, status);
    WaitingServers servers(ahead);
    UpdateRig update(newerFile, timeSettings());
    ProcedureRig& rig = update.rig;
    rig.plugAndConnect(secureLogger(false));
    QTRY_VERIFY(servers.requests() > 0);
    bool told = false;
    connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.window, [&](const QString& title) {
        if (title != QStringLiteral("Update Available"))
            return;
        servers.release();
        told = QTest::qWaitFor([&] { return rig.status() == status; }, queryPatience);
    });
    if (status == foundInvalid)
        expectInvalidDevice(rig.robot);
    expectUpdate(rig.robot, QStringLiteral("1.4.0"), QMessageBox::Ok);
    QVERIFY(update.prompt());
    QVERIFY(told);
    QCOMPARE(update.browser.opened, newerAddress);
    QCOMPARE(differences(rig, status == foundInvalid ? disconnected() : idle(status, false)), QString());
}

QTEST_MAIN(TestMainWindowPromptAnswers)
#include "tst_mainwindow_promptanswers.moc"
