#pragma once

#include <QByteArray>
#include <QString>

/// Bytes of the wire as one readable line: UTF-8 stays, a backslash is doubled, control characters and bytes
/// that are no UTF-8 become "\r", "\n" or "\x00".
QString escapeWireText(const QByteArray& bytes);

/// The bytes meant by @p text, in which "\r", "\n", "\\" and "\x00" may stand; false if another escape stands
/// there.
bool unescapeWireText(const QString& text, QByteArray* bytes);
