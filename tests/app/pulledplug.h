#pragma once

#include "procedurerig.h"

/// Pulls the plug at the n-th command from now; @p wire is all that the logger has received.
void pullAt(ProcedureRig& rig, int command, QList<QByteArray>* wire);
/// The boxes of a read that loses its logger, perhaps only in its last command.
void expectLostInRead(ProcedureRig& rig, bool inLastCommand);
/// What goes wrong when another logger is plugged in and the operator connects to it; empty if nothing.
QString troubleWithNextLogger(ProcedureRig& rig);
