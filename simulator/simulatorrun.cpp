// The run of a program beside its simulated loggers, from plugging in to the final state.

#include "simulator/simulatorrun.h"

#include <QEventLoop>
#include <QSaveFile>

#include <iostream>
#include <utility>

namespace {

constexpr int patience = 3000; // ms between asking a program to end and ending it

enum ExitCode { Failed = 1, WrongOption = 2, CannotRun = 127, Signalled = 128 };

void complain(const QString& text)
{
    std::cerr << "brumalogger-simulator: " << qPrintable(text) << std::endl;
}

} // namespace

SimulatorRun::SimulatorRun(SimulatorOptions options, QObject* parent)
    : QObject(parent)
    , options(std::move(options))
{
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.setInputChannelMode(QProcess::ForwardedInputChannel);
    killTimer.setSingleShot(true);
    connect(&killTimer, &QTimer::timeout, &program, &QProcess::kill);
}

int SimulatorRun::exec()
{
    if (!openTranscript())
        return WrongOption;
    if (!plugAll())
        return Failed;
    const int code = runProgram();
    transcript.close();
    return writeFinalState() ? code : WrongOption;
}

void SimulatorRun::terminate()
{
    program.terminate();
    killTimer.start(patience);
}

bool SimulatorRun::openTranscript()
{
    if (options.transcriptFile.isEmpty() || transcript.open(options.transcriptFile))
        return true;
    complain(QStringLiteral("cannot write the transcript to '%1'").arg(options.transcriptFile));
    return false;
}

bool SimulatorRun::plugAll()
{
    for (int number = 0; number < options.loggers; ++number) {
        if (!plugOne(number == 0 ? options.port : QString()))
            return false;
    }
    return true;
}

bool SimulatorRun::plugOne(const QString& portName)
{
    SimulatedPort* const port = bench.plug(options.logger, options.identity, portName);
    if (port == nullptr) {
        complain(QStringLiteral("cannot plug in a logger"));
        return false;
    }
    for (const Fault& fault : options.faults)
        port->faults().add(fault);
    connect(port, &SimulatedPort::sUnplugged, this, [this, port] { keepState(port); });
    transcript.follow(port, options.loggers > 1);
    return true;
}

int SimulatorRun::runProgram()
{
    QEventLoop loop;
    connect(&program, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
            &QEventLoop::quit);
    connect(&program, &QProcess::errorOccurred, &loop, [&loop](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            loop.exit(CannotRun);
    });
    program.start(options.program.first(), options.program.mid(1));
    if (program.error() != QProcess::FailedToStart && loop.exec() != CannotRun)
        return program.exitStatus() == QProcess::CrashExit ? Signalled + program.exitCode()
                                                           : program.exitCode();
    complain(QStringLiteral("cannot run '%1': %2").arg(options.program.first(), program.errorString()));
    return CannotRun;
}

bool SimulatorRun::writeFinalState()
{
    if (options.finalStateFile.isEmpty())
        return true;
    for (SimulatedPort* port : bench.ports())
        keepState(port);
    QSaveFile file(options.finalStateFile);
    if (file.open(QIODevice::WriteOnly)) {
        for (const QStringList& state : qAsConst(states))
            file.write(state.join(QLatin1Char('\n')).toUtf8() + '\n');
        if (file.commit())
            return true;
    }
    complain(QStringLiteral("cannot write the final state to '%1'").arg(options.finalStateFile));
    return false;
}

// Several loggers have their port's name before each line.
void SimulatorRun::keepState(SimulatedPort* port)
{
    port->model().runAutomaticDates();
    const QString prefix = options.loggers > 1 ? port->portName() + QLatin1Char('.') : QString();
    QStringList& lines = states[port->portName()];
    lines.clear();
    for (const QString& line : port->model().describe())
        lines << prefix + line;
}
