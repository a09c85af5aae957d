#pragma once

#include "simulator/faultplan.h"
#include "simulator/loggermodel.h"
#include "simulator/usbidentity.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// What the command line asks for.
struct SimulatorOptions
{
    LoggerModel logger;
    UsbIdentity identity;
    QVector<Fault> faults;
    int loggers = 1;
    QString port;           ///< name of the first port; empty is the next free one
    QString transcriptFile; ///< empty: none
    QString finalStateFile; ///< empty: none
    QStringList program;    ///< with its arguments

    enum class Outcome { Run, Help, Wrong };
    /// Reads @p arguments, the first of which is our own name. @p text takes the help, or what is wrong.
    Outcome parse(const QStringList& arguments, QString* text);
};
