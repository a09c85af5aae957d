// Bytes of the wire written for people, and read back from what people write.

#include "simulator/wiretext.h"

#include <QTextCodec>

namespace {

QString escapeByte(char byte)
{
    switch (byte) {
    case '\\':
        return QStringLiteral("\\\\");
    case '\r':
        return QStringLiteral("\\r");
    case '\n':
        return QStringLiteral("\\n");
    default:
        return QStringLiteral("\\x%1").arg(static_cast<uchar>(byte), 2, 16, QLatin1Char('0'));
    }
}

bool isPlain(char byte)
{
    return byte >= ' ' && byte <= '~' && byte != '\\';
}

/// The length of the UTF-8 character of several bytes at @p at, or 0 if there is none.
int multiByteLength(const QByteArray& bytes, int at)
{
    if (static_cast<uchar>(bytes.at(at)) < 0x80)
        return 0;
    const QTextCodec* utf8 = QTextCodec::codecForName("UTF-8");
    for (int length = 2; length <= 4 && at + length <= bytes.size(); ++length) {
        QTextCodec::ConverterState state;
        const QString text = utf8->toUnicode(bytes.constData() + at, length, &state);
        if (state.invalidChars == 0 && state.remainingChars == 0 && !text.isEmpty())
            return length;
    }
    return 0;
}

/// Reads the escape behind a backslash, moves @p at behind it.
bool takeEscape(const QByteArray& text, int* at, QByteArray* bytes)
{
    const char kind = text.size() > *at ? text.at((*at)++) : '\0';
    if (kind == 'x') {
        bool isHex = false;
        const uint value = text.mid(*at, 2).toUInt(&isHex, 16);
        *at += 2;
        bytes->append(static_cast<char>(value));
        return isHex && *at <= text.size();
    }
    static const QByteArray kinds("rn\\");
    static const QByteArray meanings("\r\n\\");
    const int index = kind == '\0' ? -1 : kinds.indexOf(kind);
    if (index >= 0)
        bytes->append(meanings.at(index));
    return index >= 0;
}

} // namespace

QString escapeWireText(const QByteArray& bytes)
{
    QString text;
    for (int at = 0; at < bytes.size();) {
        const int length = isPlain(bytes.at(at)) ? 1 : multiByteLength(bytes, at);
        text += length > 0 ? QString::fromUtf8(bytes.mid(at, length)) : escapeByte(bytes.at(at));
        at += qMax(length, 1);
    }
    return text;
}

bool unescapeWireText(const QString& text, QByteArray* bytes)
{
    bytes->clear();
    const QByteArray encoded = text.toUtf8();
    for (int at = 0; at < encoded.size();) {
        const char next = encoded.at(at++);
        if (next != '\\')
            bytes->append(next);
        else if (!takeEscape(encoded, &at, bytes))
            return false;
    }
    return true;
}
