// brumalogger-simulator: runs a program on a computer with simulated loggers plugged in.

#include "simulator/simulatoroptions.h"
#include "simulator/simulatorrun.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

namespace {

// Signal handlers may do next to nothing, so they send themselves a byte that the event loop sees.
std::array<int, 2> signalPipe = {-1, -1};

void onSignal(int)
{
    const char byte = 0;
    const ssize_t written = write(signalPipe[1], &byte, 1);
    static_cast<void>(written); // a full pipe holds the message already
}

bool catchSignals()
{
    if (pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    return sigaction(SIGTERM, &action, nullptr) == 0 && sigaction(SIGINT, &action, nullptr) == 0;
}

void drainSignalPipe()
{
    std::array<char, 16> bytes{};
    while (read(signalPipe[0], bytes.data(), bytes.size()) > 0) {
    }
}

int run(const SimulatorOptions& options)
{
    if (!catchSignals()) {
        std::cerr << "brumalogger-simulator: cannot watch for signals" << std::endl;
        return 1;
    }
    SimulatorRun simulatorRun(options);
    QSocketNotifier notifier(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &simulatorRun, [&simulatorRun] {
        drainSignalPipe();
        simulatorRun.terminate();
    });
    return simulatorRun.exec();
}

// The mock hardware tree needs a library that only a fresh process can take on.
int runUnderWrapper(char** argv)
{
    const QByteArray wrapper("umockdev-wrapper");
    const QByteArray self = QCoreApplication::applicationFilePath().toLocal8Bit();
    if (qgetenv("LD_PRELOAD").contains("libumockdev-preload")) {
        std::cerr << "brumalogger-simulator: umockdev does not work here" << std::endl;
        return 1;
    }
    QVector<char*> arguments = {const_cast<char*>(wrapper.data()), const_cast<char*>(self.data())};
    while (*++argv != nullptr)
        arguments << *argv;
    arguments << nullptr;
    execvp(wrapper.constData(), arguments.data());
    std::cerr << "brumalogger-simulator: cannot run umockdev-wrapper; is umockdev installed?" << std::endl;
    return 1;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    SimulatorOptions options;
    QString text;
    switch (options.parse(QCoreApplication::arguments(), &text)) {
    case SimulatorOptions::Outcome::Help:
        std::cout << qPrintable(text);
        return 0;
    case SimulatorOptions::Outcome::Wrong:
        std::cerr << "brumalogger-simulator: " << qPrintable(text) << std::endl;
        return 2;
    case SimulatorOptions::Outcome::Run:
        break;
    }
    return UsbBench::isUsable() ? run(options) : runUnderWrapper(argv);
}
