#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVector>

/// One thing that goes wrong on the wire, and when.
///
/// The wire is disturbed and not the logger: the command takes effect all the same, except with Unplug.
struct Fault
{
    enum class Kind {
        Silence,       ///< no reply
        Late,          ///< the reply comes after `milliseconds`
        LateUntilNext, ///< the reply comes when the next command arrives, before that one's own
        Pieces,        ///< `pieces` instead of the reply, each a chunk of its own at the reader
        Garbage,       ///< `bytes`, or a fixed bit of line noise, instead of the reply
        OverLong,      ///< the reply goes on for thousands of characters
        Reply,  ///< `bytes` exactly instead of the reply, without a line end of ours; empty sends nothing
        Unplug, ///< the plug is pulled before the command is heard
        UnplugAfterReply ///< the plug is pulled as soon as the reply has been taken
    };

    Kind kind = Kind::Silence;
    int exchange = 0;              ///< counted from 1 since plugging; 0 is any
    QByteArray command = {};       ///< how the command begins, as "Gs"; empty is any
    int occurrence = 0;            ///< only the n-th command that begins so; 0 is every one
    QByteArray bytes = {};         ///< for Reply and Garbage
    QList<QByteArray> pieces = {}; ///< for Pieces; none splits the reply after its first character
    int milliseconds = 0;          ///< for Late
};

/// The faults of one plugged logger; the first that fits an exchange is the one that happens.
class FaultPlan
{
public:
    void add(const Fault& fault) { faults.append(fault); }
    void clear() { faults.clear(); }

    /// The fault for the last of @p commands, which are all that came since plugging; null for none.
    const Fault* match(const QList<QByteArray>& commands) const;

    /// Reads KIND[=VALUE][@WHERE], as "silence@5", "late=120@Gs", "reply=OK@Ss", "garbage@Gt#2"; on failure
    /// @p error takes a sentence and the result is false.
    static bool parse(const QString& text, Fault* fault, QString* error);

private:
    QVector<Fault> faults;
};
