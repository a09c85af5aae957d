#pragma once

#include <QString>

class QByteArray;

/// What the maker's version file tells a program of a certain version.
///
/// The file is plain text, a line for each version, the newest first: the version as "1.4.0", then in any
/// order, each behind one blank, the word "mandatory" and addresses of the form "win32:URL", one for each
/// platform. A line whose first word has a "#" in it is a comment.
struct VersionNews
{
    bool found = false;     ///< there is a newer version
    bool mandatory = false; ///< it, or one on the way to it, must be installed
    QString version;        ///< the newest one, as it stands in the file
    QString url;            ///< where to get that one; empty if its line has none for this platform
};

/// The number by which versions are compared: "1.4.2" is 1004002. No part is limited to three digits, so
/// "1.2000.0" is 3000000; a part that is no number counts as 0.
qint64 versionNumberOf(qint64 major, qint64 minor, qint64 patch);

/// Walks @p file down to the first version that is not newer than @p versionNumber. A line before it that
/// doesn't begin with three parts, as an empty one, makes the whole file void.
VersionNews readVersionFile(const QByteArray& file, qint64 versionNumber);
