// An unlock dialog, a locked logger, and the operator's hands.

#include "passworddesk.h"

#include "support/testclock.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace {

const QString boxTitle(QStringLiteral("Unlock device"));

SimulatedPort* plugInto(UsbBench& bench, const LoggerModel& model)
{
    TestClock::ignoreStalls();
    SimulatedPort* port = bench.plug(model);
    if (!port)
        qFatal("no logger could be plugged in");
    new QuickWire(port);
    return port;
}

} // namespace

LoggerModel lockedLogger(LoggerModel::State state)
{
    LoggerModel model;
    LoggerModel::Settings& settings = model.settings();
    settings.firmware = QStringLiteral("1.2.0");
    settings.texts = {QStringLiteral("Northern Pharma"), QStringLiteral("City Hospital"),
                      QStringLiteral("Batch 7"), QStringLiteral("Land"), QStringLiteral("B1234")};
    settings.policies |= LoggerModel::PolicyConfigPassw;
    settings.password = rightPassword();
    settings.state = state;
    settings.locked = true;
    return model;
}

QString rightPassword()
{
    return QStringLiteral("Secret");
}

PasswordDesk::PasswordDesk(const LoggerModel& model)
    : logger(plugInto(bench, model))
    , link(new BrumaloggerInterface)
    , dialog(&window)
{
    if (!link->lConnectAuto())
        qFatal("the link did not connect");
    logger->clearExchanges();
    dialog.lSetDevice(link);
}

QString PasswordDesk::text(const char* name) const
{
    return find<QWidget>(name)->property("text").toString();
}

QStringList PasswordDesk::labels() const
{
    return {text("labelSender"), text("labelRecipient"), text("labelInformation"), text("labelState")};
}

bool PasswordDesk::isShowingInfo() const
{
    return find<QWidget>("groupInfo")->isVisible();
}

void PasswordDesk::open()
{
    dialog.open();
    if (!QTest::qWaitForWindowExposed(&dialog))
        qFatal("the dialog was never exposed");
}

int PasswordDesk::run(const std::function<void()>& action)
{
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [this, &look, action] {
        // A window just hidden may count as exposed for a while.
        const QWindow* shown = dialog.windowHandle();
        if (!shown || !shown->isVisible() || !shown->isExposed())
            return;
        look.stop();
        action();
    });
    look.start(1);
    return dialog.exec();
}

void PasswordDesk::pressOk() const
{
    QTest::mouseClick(find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

void PasswordDesk::pressCancel() const
{
    QTest::mouseClick(find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Cancel), Qt::LeftButton);
}

void PasswordDesk::pressToggle() const
{
    QTest::mouseClick(find<QPushButton>("buttonToggleInfo"), Qt::LeftButton);
}

void PasswordDesk::tryPassword(const QString& text) const
{
    find<QLineEdit>("linePassw")->setText(text);
    pressOk();
}

void PasswordDesk::expectIncorrect()
{
    robot.expectWarning(boxTitle, QStringLiteral("Incorrect password."));
}

void PasswordDesk::expectNoAnswer()
{
    robot.expectWarning(boxTitle, QStringLiteral("Failed while trying to unlock device."));
    expectIncorrect();
}

void PasswordDesk::disturb(const QByteArray& command, Fault::Kind kind, const QByteArray& bytes) const
{
    Fault fault;
    fault.kind = kind;
    fault.command = command;
    fault.bytes = bytes;
    logger->faults().add(fault);
}

void PasswordDesk::atCommand(const QByteArray& command, const std::function<void()>& action) const
{
    auto* watcher = new QObject(logger);
    QObject::connect(logger, &SimulatedPort::sCommandReceived, watcher,
                     [watcher, command, action](int, const QByteArray& received) {
                         if (!received.startsWith(command))
                             return;
                         watcher->disconnect();
                         watcher->deleteLater();
                         action();
                     });
}

QList<QByteArray> PasswordDesk::takeWire() const
{
    const QList<QByteArray> commands = logger->commands();
    logger->clearExchanges();
    return commands;
}

QList<QByteArray> showingCommands()
{
    return {"x", "G0", "G1", "G2"};
}

QStringList untouchedLabels()
{
    return {QStringLiteral("-"), QStringLiteral("-"), QStringLiteral("-"), QStringLiteral("-")};
}

QStringList idleLabels()
{
    return {QStringLiteral("Northern Pharma"), QStringLiteral("City Hospital"), QStringLiteral("Batch 7"),
            QStringLiteral("The device is in the IDLE state.\n"
                           "After unlocking, it will be configurable with this tool.")};
}
