// Which fault happens when, and how faults are written on a command line.

#include "simulator/faultplan.h"

#include "simulator/wiretext.h"

#include <algorithm>

namespace {

enum class Takes { Nothing, Milliseconds, Bytes, MaybeBytes, Pieces };

struct KindName
{
    const char* name;
    Fault::Kind kind;
    Takes takes;
};

constexpr KindName kindNames[] = {
    {"silence", Fault::Kind::Silence, Takes::Nothing},
    {"late", Fault::Kind::Late, Takes::Milliseconds},
    {"late-until-next", Fault::Kind::LateUntilNext, Takes::Nothing},
    {"pieces", Fault::Kind::Pieces, Takes::Pieces},
    {"garbage", Fault::Kind::Garbage, Takes::MaybeBytes},
    {"overlong", Fault::Kind::OverLong, Takes::Nothing},
    {"reply", Fault::Kind::Reply, Takes::Bytes},
    {"unplug", Fault::Kind::Unplug, Takes::Nothing},
    {"unplug-after-reply", Fault::Kind::UnplugAfterReply, Takes::Nothing},
};

bool fits(const Fault& fault, const QList<QByteArray>& commands)
{
    if (fault.exchange != 0 && fault.exchange != commands.size())
        return false;
    if (!commands.last().startsWith(fault.command))
        return false;
    const auto alike = std::count_if(commands.cbegin(), commands.cend(), [&fault](const QByteArray& each) {
        return each.startsWith(fault.command);
    });
    return fault.occurrence == 0 || fault.occurrence == alike;
}

/// A whole number from 1 on.
bool readCount(const QString& text, int* count)
{
    bool isNumber = false;
    *count = text.toInt(&isNumber);
    return isNumber && *count > 0;
}

/// An exchange's number, or a command with or without the number of its occurrence: "5", "Gs", "Gt#2".
bool readPlace(const QString& place, Fault* fault)
{
    if (place.isEmpty())
        return false;
    if (place.at(0).isDigit())
        return readCount(place, &fault->exchange);
    // "#" is also a command, so a mark stands behind at least one character.
    const int mark = place.lastIndexOf(QLatin1Char('#'));
    const bool counted = mark > 0;
    fault->command = place.left(counted ? mark : -1).toUtf8();
    return !counted || readCount(place.mid(mark + 1), &fault->occurrence);
}

bool readPieces(const QString& value, QList<QByteArray>* pieces)
{
    for (const QString& part : value.split(QLatin1Char('|'))) {
        QByteArray piece;
        if (!unescapeWireText(part, &piece))
            return false;
        pieces->append(piece);
    }
    return true;
}

/// A null @p value is one that was not given.
bool readValue(Takes takes, const QString& value, Fault* fault)
{
    switch (takes) {
    case Takes::Nothing:
        return value.isNull();
    case Takes::Milliseconds:
        return readCount(value, &fault->milliseconds);
    case Takes::Bytes:
        return !value.isNull() && unescapeWireText(value, &fault->bytes);
    case Takes::MaybeBytes:
        return unescapeWireText(value, &fault->bytes);
    case Takes::Pieces:
        return value.isNull() || readPieces(value, &fault->pieces);
    }
    return false;
}

const KindName* findKind(const QString& name)
{
    const auto found =
        std::find_if(std::cbegin(kindNames), std::cend(kindNames),
                     [&name](const KindName& each) { return name == QLatin1String(each.name); });
    return found == std::cend(kindNames) ? nullptr : found;
}

} // namespace

const Fault* FaultPlan::match(const QList<QByteArray>& commands) const
{
    if (commands.isEmpty())
        return nullptr;
    const auto found = std::find_if(faults.cbegin(), faults.cend(),
                                    [&commands](const Fault& fault) { return fits(fault, commands); });
    return found == faults.cend() ? nullptr : &*found;
}

// The last "@" counts, so that a value may hold one if a place follows.
bool FaultPlan::parse(const QString& text, Fault* fault, QString* error)
{
    const int at = text.lastIndexOf(QLatin1Char('@'));
    const QString what = text.left(at);
    const int equals = what.indexOf(QLatin1Char('='));
    const KindName* kind = findKind(what.left(equals));
    Fault read;
    if (kind == nullptr)
        *error = QStringLiteral("'%1' is no kind of fault").arg(what.left(equals));
    else if (!readValue(kind->takes, equals < 0 ? QString() : what.mid(equals + 1), &read))
        *error = QStringLiteral("'%1' has no fitting value").arg(what);
    else if (at >= 0 && !readPlace(text.mid(at + 1), &read))
        *error = QStringLiteral("'%1' is no place for a fault").arg(text.mid(at + 1));
    else {
        read.kind = kind->kind;
        *fault = read;
        return true;
    }
    return false;
}
