#pragma once

#include <QByteArray>

/// Gives a variable of the environment another value while it lives.
class EnvironmentVariable
{
public:
    /// @p name, which must outlive this, is one of the table in environmentvariable.cpp; another ends the
    /// program.
    EnvironmentVariable(const char* name, const QByteArray& value);
    ~EnvironmentVariable();
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    void put(const QByteArray& value) const;

    const char* name;
    QByteArray before;
};

/// Makes @p zone, as "EET-2" for two hours east of UTC, the computer's own while it lives.
class LocalZone
{
public:
    explicit LocalZone(const QByteArray& zone)
        : variable("TZ", zone)
    {
    }

private:
    EnvironmentVariable variable;
};
