// A window, a logger and an operator's hands, for tests of the device procedures.

#include "procedurerig.h"

#include "quickwire.h"
#include "support/nextchance.h"
#include "support/testclock.h"

#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

namespace {

constexpr qint64 replyWait = 75;

void endTheNextWait(QObject* context)
{
    atNextChance(context, [] { TestClock::shift(replyWait); });
}

} // namespace

ProcedureRig::ProcedureRig(const Settings& settings, const Preparation& prepare)
    : WindowRig(settings, prepare)
{
    QObject::connect(find<QStatusBar>("statusBar"), &QStatusBar::messageChanged, &window,
                     [this] { statusLog << status(); });
}

SimulatedPort* ProcedureRig::plug(const LoggerModel& model, const UsbIdentity& identity)
{
    SimulatedPort* port = WindowRig::plug(model, identity);
    if (!port)
        qFatal("no logger could be plugged in");
    new QuickWire(port);
    return port;
}

void ProcedureRig::unplugAll()
{
    for (SimulatedPort* port : bench.ports())
        bench.unplug(port);
    logger = nullptr;
}

// The first when the port is open, the second at the beginning of the read.
void ProcedureRig::skipIdleWaits()
{
    for (const char* name : {"buttonConnect", "buttonRead"})
        QObject::connect(find<QPushButton>(name), &QPushButton::pressed, &window,
                         [this] { endTheNextWait(&window); });
    QObject::connect(find<QStatusBar>("statusBar"), &QStatusBar::messageChanged, &window,
                     [this](const QString& message) {
                         if (message == QLatin1String("Connecting to device... "))
                             endTheNextWait(&window);
                     });
}

void ProcedureRig::disturb(int command, Fault::Kind kind, const QByteArray& bytes)
{
    Fault fault;
    fault.kind = kind;
    fault.exchange = command;
    fault.bytes = bytes;
    logger->faults().add(fault);
}

void ProcedureRig::disturb(const QByteArray& command, Fault::Kind kind, const QByteArray& bytes)
{
    Fault fault;
    fault.kind = kind;
    fault.command = command;
    fault.bytes = bytes;
    logger->faults().add(fault);
}

void ProcedureRig::type(const char* lineName, const QString& text)
{
    auto* line = find<QLineEdit>(lineName);
    line->selectAll();
    line->insert(text);
}

void ProcedureRig::pressCancel()
{
    auto* dialog = progressDialog();
    auto* button = dialog ? dialog->findChild<QPushButton*>() : nullptr;
    if (!button)
        qFatal("there is no progress dialog to cancel");
    QTest::mouseClick(button, Qt::LeftButton);
}

void ProcedureRig::pressKeys(Qt::Key key)
{
    QTest::keyClick(&window, key, Qt::ControlModifier);
}

void ProcedureRig::pressEverything()
{
    for (const char* name : {"buttonConnect", "buttonRead", "buttonWrite", "buttonStart", "buttonAdvanced",
                             "buttonToolTimeZone"}) {
        auto* button = find<QWidget>(name);
        if (button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
    }
    for (const Qt::Key key : {Qt::Key_K, Qt::Key_R, Qt::Key_W, Qt::Key_A})
        pressKeys(key);
}

void ProcedureRig::pressAtEveryCommand(int* times, const std::function<void()>& also)
{
    QObject::connect(logger, &SimulatedPort::sCommandReceived, logger, [this, times, also] {
        ++*times;
        pressEverything();
        if (also)
            also();
    });
}

void ProcedureRig::activate()
{
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("the window did not become active");
}

QStringList ProcedureRig::takeStatusLog()
{
    QStringList taken;
    taken.swap(statusLog);
    return taken;
}

QList<QByteArray> readCommands()
{
    return {"i", "e", "i", "m", "g", "Gt", "Gs", "Gd", "Gl", "G0", "G1", "G2", "G4", "G3", "m"};
}

QList<QByteArray> connectCommands()
{
    return QList<QByteArray>{"i"} + readCommands();
}

QList<QByteArray> writeCommandsOfBasicLogger()
{
    return {"St-0010000-0001000",
            "Ss00000600",
            "Sd00003600",
            "Sl1",
            "S0Northern Pharma                                           ",
            "S1City Hospital                                             ",
            "S2Batch 7                                                   ",
            "S4B1234   ",
            "S3Land",
            "k"};
}

QList<QByteArray> withoutSeconds(QList<QByteArray> commands)
{
    for (QByteArray& command : commands) {
        if (command.startsWith('u'))
            command.truncate(1);
    }
    return commands;
}

QList<QByteArray> firstOf(const QList<QByteArray>& commands, int count)
{
    return commands.mid(0, count);
}

void addCommandRows(const QList<QByteArray>& commands, const QList<int>& numbers)
{
    QTest::addColumn<int>("command");
    for (int number = 1; number <= commands.size(); ++number) {
        if (numbers.isEmpty() || numbers.contains(number))
            QTest::addRow("%d %s", number, commands.at(number - 1).left(2).constData()) << number;
    }
}
