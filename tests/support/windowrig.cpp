// A main window with simulated loggers on its desk.

#include "support/windowrig.h"

#include "support/testclock.h"

#include <QAction>
#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace {

constexpr const char* idleWidgets[] = {"lineSender", "lineRecipient", "lineInfo",    "lineBarcode",
                                       "comboTemp",  "comboSampling", "comboDelay",  "comboType",
                                       "checkLock",  "buttonRead",    "buttonWrite", "buttonAdvanced",
                                       "buttonStart"};
constexpr const char* idleActions[] = {"actionSave", "actionLoad"};

} // namespace

void makeMockHardware()
{
    const UsbBench bench;
}

WindowRig::Noon::Noon()
{
    TestClock::ignoreStalls();
    TestClock::set(QDateTime(QDate(2024, 5, 15), QTime(12, 0)).toMSecsSinceEpoch());
}

WindowRig::WindowRig(const Settings& settings, const Preparation& prepare)
    : folder(settings)
{
    if (prepare)
        prepare(*this);
    window.show();
    // An answer may also close it before it is on the screen.
    if (!QTest::qWaitFor([this] { return window.windowHandle()->isExposed() || !window.isVisible(); }))
        qFatal("the window was never exposed");
}

SimulatedPort* WindowRig::plug(const LoggerModel& model, const UsbIdentity& identity)
{
    SimulatedPort* port = bench.plug(model, identity);
    if (!logger)
        logger = port;
    return port;
}

void WindowRig::plugAndConnect(const LoggerModel& model)
{
    plug(model);
    press("buttonConnect");
    logger->clearExchanges();
}

void WindowRig::press(const char* buttonName) const
{
    QTest::mouseClick(find<QPushButton>(buttonName), Qt::LeftButton);
}

QString WindowRig::status() const
{
    const auto* bar = find<QStatusBar>("statusBar");
    // The bar has a timer of its own for a message with a time-out, and only then.
    const bool stays = bar->findChildren<QTimer*>().isEmpty();
    return bar->currentMessage() + QLatin1String(stays ? "" : " (soon to vanish)");
}

QString WindowRig::text(const char* name) const
{
    return find<QWidget>(name)->property("text").toString();
}

double WindowRig::value(const char* spinBoxName) const
{
    return find<QWidget>(spinBoxName)->property("value").toDouble();
}

bool WindowRig::isEnabled(const char* widgetName) const
{
    return find<QWidget>(widgetName)->isEnabled();
}

QString WindowRig::controlsMixture() const
{
    QStringList enabled;
    QStringList disabled;
    for (const char* name : idleWidgets)
        (isEnabled(name) ? enabled : disabled) << QLatin1String(name);
    for (const char* name : idleActions)
        (find<QAction>(name)->isEnabled() ? enabled : disabled) << QLatin1String(name);
    if (enabled.isEmpty() || disabled.isEmpty())
        return {};
    return QStringLiteral("enabled: %1; disabled: %2")
        .arg(enabled.join(QLatin1Char(' ')), disabled.join(QLatin1Char(' ')));
}

bool WindowRig::controlsEnabled() const
{
    const QString mixture = controlsMixture();
    if (!mixture.isEmpty())
        qFatal("%s", qPrintable(mixture));
    return isEnabled("buttonRead");
}

QProgressDialog* WindowRig::progressDialog() const
{
    return window.findChild<QProgressDialog*>();
}

void WindowRig::atCommand(int number, const std::function<void()>& action) const
{
    auto* watcher = new QObject(logger);
    QObject::connect(logger, &SimulatedPort::sCommandReceived, watcher,
                     [watcher, action, left = number]() mutable {
                         if (--left == 0) {
                             watcher->deleteLater();
                             action();
                         }
                     });
}

LoggerModel basicLogger()
{
    LoggerModel model;
    LoggerModel::Settings& settings = model.settings();
    settings.firmware = QStringLiteral("01.01.09");
    settings.hardware = QStringLiteral("2.4");
    settings.serial = QStringLiteral("BL-0042");
    settings.tempMin = -10000;
    settings.tempMax = -1000;
    settings.samplingTime = 600;
    settings.startDelay = 3600;
    settings.buttonLock = true;
    settings.texts = {QStringLiteral("Northern Pharma"), QStringLiteral("City Hospital"),
                      QStringLiteral("Batch 7"), QStringLiteral("Land"), QStringLiteral("B1234")};
    return model;
}

LoggerModel extendedLogger()
{
    LoggerModel model = basicLogger();
    model.settings().firmware = QStringLiteral("1.2.0");
    return model;
}

LoggerModel customLogger()
{
    LoggerModel model = basicLogger();
    model.settings().samplingTime = 420;
    model.settings().startDelay = 420;
    model.settings().tempMin = 2500;
    model.settings().tempMax = 8500;
    return model;
}
