#pragma once

#include <QByteArray>

class LoggerModel;

/// One command of the logger: when it is taken and what it does.
struct LoggerCommand
{
    /// What the logger must be for this command; each includes the one before.
    enum class Needs { Nothing, Unlocked, Idle };
    /// Whether anything follows the name.
    enum class Form { Bare, WithValue };

    const char* name;
    bool extended; ///< only firmware 1.2.0 or later knows it
    Needs needs;
    Form form;
    /// Carries out the command with what followed its name, and gives the reply.
    QByteArray (*carryOut)(LoggerModel& logger, const QByteArray& value);
};

/// The row for @p command as it came in, value included; null if there is no such command.
const LoggerCommand* findLoggerCommand(const QByteArray& command);
