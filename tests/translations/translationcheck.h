#pragma once

#include <QString>
#include <QStringList>

/// What is wrong with a translation that can be seen without knowing the language; empty if nothing is.
///
/// The same placeholders, tags and line breaks, as many keys with "&", the same blanks at both ends. Texts
/// with letters may not be empty, nor the same as in English unless they are @p allowed to be.
QString translationComplaint(const QString& source, const QString& translation,
                             const QStringList& allowed = {});
