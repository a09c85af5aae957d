// The environment of the tests' processes.

#include "support/environmentvariable.h"

#include <QtGlobal>

#include <algorithm>
#include <ctime>
#include <iterator>

namespace {

struct Variable
{
    const char* name;
    const char* none; ///< the value that the toolkit and the C library take for no such variable
};

constexpr Variable variables[] = {
    {"HOME", ""},
    {"TZ", ":/etc/localtime"},
    {"XDG_CONFIG_HOME", ""},
    {"XDG_RUNTIME_DIR", ""},
};

// A new name moves the environment in memory, where threads of the toolkit and of the mock hardware may be
// reading it; a new value doesn't. So every name is there before the first thread.
void nameVariables()
{
    for (const Variable& variable : variables) {
        if (!qEnvironmentVariableIsSet(variable.name))
            qputenv(variable.name, variable.none);
    }
}
Q_CONSTRUCTOR_FUNCTION(nameVariables)

bool isNamed(const char* name)
{
    return std::any_of(std::begin(variables), std::end(variables),
                       [name](const Variable& variable) { return qstrcmp(variable.name, name) == 0; });
}

} // namespace

EnvironmentVariable::EnvironmentVariable(const char* name, const QByteArray& value)
    : name(name)
    , before(qgetenv(name))
{
    if (!isNamed(name))
        qFatal("%s is missing in the table of variables", name);
    put(value);
}

EnvironmentVariable::~EnvironmentVariable()
{
    put(before);
}

void EnvironmentVariable::put(const QByteArray& value) const
{
    qputenv(name, value);
    tzset(); // takes up a new TZ
}
