// The command line: one row per option, with what it means for the logger or the run.

#include "simulator/simulatoroptions.h"

#include <QCommandLineParser>

#include <cmath>

namespace {

using Options = SimulatorOptions;
using Value = const QString;

bool readInt(const QString& value, int min, int max, int* target)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber, 0); // also as 0x...
    if (!isNumber || number < min || number > max)
        return false;
    *target = number;
    return true;
}

bool readSeconds(const QString& value, qint64* target)
{
    bool isNumber = false;
    const qint64 number = value.toLongLong(&isNumber);
    if (isNumber)
        *target = number;
    return isNumber;
}

/// "none" for a device that has no such identifier.
bool readIdentifier(const QString& value, int* target)
{
    if (value != QLatin1String("none"))
        return readInt(value, 0, 0xFFFF, target);
    *target = -1;
    return true;
}

bool readThousandths(const QString& degrees, int* target)
{
    bool isNumber = false;
    const double number = degrees.toDouble(&isNumber);
    if (!isNumber || std::fabs(number) > 1000)
        return false;
    *target = static_cast<int>(std::lround(number * 1000));
    return true;
}

bool readTempRange(Value& value, Options* options)
{
    const QStringList ends = value.split(QLatin1Char(','));
    LoggerModel::Settings& settings = options->logger.settings();
    return ends.size() == 2 && readThousandths(ends[0], &settings.tempMin) &&
           readThousandths(ends[1], &settings.tempMax) && settings.tempMin < settings.tempMax;
}

bool readText(Value& value, Options* options)
{
    int slot = 0;
    const int equals = value.indexOf(QLatin1Char('='));
    if (equals < 0 || !readInt(value.left(equals), 0, LoggerModel::textSlots - 1, &slot))
        return false;
    const QString text = value.mid(equals + 1);
    options->logger.settings().texts[static_cast<size_t>(slot)] = text;
    return text.size() <= LoggerModel::maxTextLength;
}

bool readPassword(Value& value, Options* options)
{
    options->logger.settings().password = value;
    return value.size() <= LoggerModel::maxPasswordLength;
}

bool readFault(Value& value, Options* options)
{
    Fault fault;
    QString error;
    const bool isFault = FaultPlan::parse(value, &fault, &error);
    if (isFault)
        options->faults.append(fault);
    return isFault;
}

bool readName(Value& value, QString* target)
{
    *target = value;
    return !value.isEmpty();
}

/// For options that can't be wrong.
template<typename Target>
bool set(Target* target, const Target& value)
{
    *target = value;
    return true;
}

struct Row
{
    const char* name;
    const char* valueName; ///< null for an option without a value
    const char* help;
    bool (*apply)(Value& value, Options* options);
};

LoggerModel::Settings& logger(Options* options)
{
    return options->logger.settings();
}

const Row rows[] = {
    {"firmware", "VERSION",
     "Firmware; from 1.2.0 on with lock, policies, zone and automatic dates. Default 1.1.9.",
     [](Value& v, Options* o) { return readName(v, &logger(o).firmware); }},
    {"hardware", "REVISION", "Hardware revision.",
     [](Value& v, Options* o) { return readName(v, &logger(o).hardware); }},
    {"serial", "ID", "Internal ID.", [](Value& v, Options* o) { return readName(v, &logger(o).serial); }},
    {"multiuse", nullptr, "A Multiuse logger.",
     [](Value&, Options* o) { return set(&logger(o).multiuse, true); }},
    {"single-use", nullptr, "A Single-use logger, the default.",
     [](Value&, Options* o) { return set(&logger(o).multiuse, false); }},
    {"temp-range", "MIN,MAX", "Monitored range in degrees Celsius.", readTempRange},
    {"sampling", "SECONDS", "Sampling time.",
     [](Value& v, Options* o) { return readInt(v, 60, 57600, &logger(o).samplingTime); }},
    {"delay", "SECONDS", "Start delay.",
     [](Value& v, Options* o) { return readInt(v, 60, 57600, &logger(o).startDelay); }},
    {"text", "SLOT=TEXT", "Text 0 sender, 1 recipient, 2 information, 3 shipment type or 4 barcode.",
     readText},
    {"button-lock", nullptr, "Its button can't change the settings.",
     [](Value&, Options* o) { return set(&logger(o).buttonLock, true); }},
    {"password", "PASSWORD", "Its password; whether it locks is a matter of the policies.", readPassword},
    {"policies", "WORD", "Policies word, as 259 or 0x0103.",
     [](Value& v, Options* o) { return readInt(v, 0, 0xFFFF, &logger(o).policies); }},
    {"zone", "SECONDS", "Its time zone, in seconds east of UTC.",
     [](Value& v, Options* o) { return readInt(v, -14 * 3600, 14 * 3600, &logger(o).timeZoneOffset); }},
    {"clock", "SECONDS", "How far its clock is ahead of this computer's; negative is behind.",
     [](Value& v, Options* o) { return readSeconds(v, &logger(o).clockOffset); }},
    {"start-date", "SECONDS", "Automatic start, as seconds since 1970 on its wall clock.",
     [](Value& v, Options* o) { return readSeconds(v, &logger(o).startDate); }},
    {"stop-date", "SECONDS", "Automatic stop, likewise.",
     [](Value& v, Options* o) { return readSeconds(v, &logger(o).stopDate); }},
    {"last-reset", "SECONDS", "Its last reset, as seconds since 1970.",
     [](Value& v, Options* o) { return readSeconds(v, &logger(o).lastReset); }},
    {"low-battery", nullptr, "Its battery is low.",
     [](Value&, Options* o) { return set(&logger(o).lowBattery, true); }},
    {"recording", nullptr, "It has been started.",
     [](Value&, Options* o) { return set(&logger(o).state, LoggerModel::State::Recording); }},
    {"finished", nullptr, "It has been started and stopped.",
     [](Value&, Options* o) { return set(&logger(o).state, LoggerModel::State::Finished); }},
    {"fault", "FAULT", "Something that goes wrong on the wire, see below. May be given repeatedly.",
     readFault},
    {"manufacturer", "NAME", "Manufacturer at USB level; empty for none.",
     [](Value& v, Options* o) { return set(&o->identity.manufacturer, v); }},
    {"description", "NAME", "Product at USB level; empty for none.",
     [](Value& v, Options* o) { return set(&o->identity.description, v); }},
    {"vendor", "ID", "USB vendor, as 0x03EB, or none.",
     [](Value& v, Options* o) { return readIdentifier(v, &o->identity.vendor); }},
    {"product", "ID", "USB product, as 0x8015, or none.",
     [](Value& v, Options* o) { return readIdentifier(v, &o->identity.product); }},
    {"loggers", "COUNT", "How many such loggers are plugged in.",
     [](Value& v, Options* o) { return readInt(v, 0, 32, &o->loggers); }},
    {"port", "NAME", "Name of the (first) port. Default ttyACM0.",
     [](Value& v, Options* o) { return readName(v, &o->port) && !v.contains(QLatin1Char('/')); }},
    {"transcript", "FILE", "Writes what goes over the wire: '> ' command, '< ' reply, '! ' event.",
     [](Value& v, Options* o) { return readName(v, &o->transcriptFile); }},
    {"final-state", "FILE", "Writes what the logger holds at the end, as key=value lines.",
     [](Value& v, Options* o) { return readName(v, &o->finalStateFile); }},
};

const char faultHelp[] = R"(
A FAULT is KIND[=VALUE][@PLACE]. PLACE is the number of an exchange ("@5"), the beginning of a command ("@Gs"), or
that with the number of its occurrence ("@Gt#2"); without one every exchange is meant. In a VALUE,
\r, \n, \\ and \x00 mean what they do in C.
  silence             no reply
  late=MS             the reply comes MS milliseconds late
  late-until-next     the reply comes with the next command
  pieces[=A|B|...]    the reply, or these bytes, in pieces
  garbage[=BYTES]     line noise
  overlong            the reply goes on and on
  reply=BYTES         these bytes exactly; none if empty
  unplug              the plug is pulled before the command is heard
  unplug-after-reply  the plug is pulled after the reply

The exit code is the program's; 128 and the signal if one ended it, 127 if it can't be run, 2 for a wrong option.
)";

QString helpText(const QCommandLineParser& parser)
{
    return parser.helpText() + QLatin1String(faultHelp);
}

void describeOptions(QCommandLineParser* parser)
{
    parser->setApplicationDescription(
        QStringLiteral("Runs a program on a computer with a simulated Brumalogger plugged in."));
    parser->setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser->addPositionalArgument(QStringLiteral("program"), QStringLiteral("The program and its arguments."),
                                  QStringLiteral("[--] program [arguments...]"));
    parser->addOption({{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Explains all this.")});
    for (const Row& row : rows)
        parser->addOption({QLatin1String(row.name), QLatin1String(row.help), QLatin1String(row.valueName)});
}

/// Sets what @p row says, as often as it was given; false at the first wrong value, which goes to @p wrong.
bool applyRow(const Row& row, const QCommandLineParser& parser, Options* options, QString* wrong)
{
    const QString name = QLatin1String(row.name);
    if (row.valueName == nullptr)
        return !parser.isSet(name) || row.apply({}, options);
    for (const QString& value : parser.values(name)) {
        *wrong = QStringLiteral("'%1' is no value for --%2").arg(value, name);
        if (!row.apply(value, options))
            return false;
    }
    return true;
}

} // namespace

SimulatorOptions::Outcome SimulatorOptions::parse(const QStringList& arguments, QString* text)
{
    QCommandLineParser parser;
    describeOptions(&parser);
    if (!parser.parse(arguments)) {
        *text = parser.errorText();
        return Outcome::Wrong;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        *text = helpText(parser);
        return Outcome::Help;
    }
    for (const Row& row : rows) {
        if (!applyRow(row, parser, this, text))
            return Outcome::Wrong;
    }
    program = parser.positionalArguments();
    *text = QStringLiteral("no program to run");
    return program.isEmpty() ? Outcome::Wrong : Outcome::Run;
}
