#pragma once

#include <QByteArray>

/// Small data that grows enormous: @p head and then @p size times the character @p repeated, in the form that
/// ReferenceCipher::compress() gives; made without ever holding it. @p size is rounded up to 1 MiB.
QByteArray zlibBomb(const QByteArray& head, char repeated, qint64 size);
