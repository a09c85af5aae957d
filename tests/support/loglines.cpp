// The log as the program sends it to the toolkit.

#include "support/loglines.h"

namespace {

struct Recording
{
    QtMessageHandler next = nullptr;
    QStringList lines;
};

Recording& recording()
{
    static Recording theRecording;
    return theRecording;
}

QString levelName(QtMsgType level)
{
    switch (level) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    default:
        return QStringLiteral("critical");
    }
}

// A fatal message must still end the test.
void record(QtMsgType level, const QMessageLogContext& context, const QString& text)
{
    if (level == QtFatalMsg)
        recording().next(level, context, text);
    QString line = levelName(level) + QStringLiteral(": ") + text;
    if (qstrcmp(context.category, "default") != 0 || context.line != 0 || context.file || context.function)
        line.prepend(QStringLiteral("with a context, "));
    recording().lines.append(line);
}

} // namespace

LogLines::LogLines()
{
    recording().lines.clear();
    recording().next = qInstallMessageHandler(record);
}

LogLines::~LogLines()
{
    qInstallMessageHandler(recording().next);
}

QStringList LogLines::all() const
{
    return recording().lines;
}

QString LogLines::last() const
{
    return recording().lines.isEmpty() ? QString() : recording().lines.last();
}

void LogLines::clear()
{
    recording().lines.clear();
}
