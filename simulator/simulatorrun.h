#pragma once

#include "simulator/simulatoroptions.h"
#include "simulator/transcript.h"
#include "simulator/usbbench.h"

#include <QMap>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>

/// One run: the loggers are plugged in, the program runs, and its end is ours.
class SimulatorRun : public QObject
{
    Q_OBJECT

public:
    explicit SimulatorRun(SimulatorOptions options, QObject* parent = nullptr);

    /// Runs the program in an event loop of ours and gives the exit code.
    int exec();

public slots:
    /// Asks the program to end, and makes it end if it doesn't.
    void terminate();

private:
    bool openTranscript();
    bool plugAll();
    bool plugOne(const QString& portName);
    int runProgram();
    bool writeFinalState();
    void keepState(SimulatedPort* port);

    SimulatorOptions options;
    Transcript transcript;
    QProcess program;
    QTimer killTimer;                  ///< runs while the program has been asked to end
    QMap<QString, QStringList> states; ///< by port name, of each logger when it was unplugged, or at the end
    UsbBench bench;                    ///< goes first, since its loggers report their end to all the above
};
