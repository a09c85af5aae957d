#pragma once

#include "procedurerig.h"
#include "windowstate.h"
#include "windowwords.h"

/// A rig just before the press of Connect or Read, with its record counting the commands of what follows.
class ReadingRig : public ProcedureRig
{
public:
    /// The read of @p model sends @p commands.
    ReadingRig(bool connecting, const LoggerModel& model, const QList<QByteArray>& commands);

    /// The number on the wire of a command of the read.
    int number(int command) const { return connecting ? command + 1 : command; }
    void run() { press(connecting ? "buttonConnect" : "buttonRead"); }
    QList<QByteArray> commandsUpTo(int command) const;
    /// What a read sends that ends at @p command: every ending looks whether the device is valid.
    QList<QByteArray> commandsOfReadEndingAt(int command) const { return commandsUpTo(command) << "m"; }
    /// What the status bar shows of a read that ends in @p ending and a disconnect.
    QStringList statusesOfLostRead(const QString& ending) const;
    /// After a step that failed or a cancel.
    WindowState lostState() const { return connecting ? mixed() : disconnected(); }
    WindowState readState() const;
    void expectFailure();

    const bool connecting;

private:
    const QList<QByteArray> commands;
};

/// A test's data with the columns "command", "number" and "connecting": one row each for a connect and for a
/// read on its own, for those of the @p commands of a read that @p wanted names, behind the first @p skipped
/// ones.
void addReadingRows(const QList<QByteArray>& commands, const QList<QByteArray>& wanted, int skipped = 0);
