#pragma once

#include <QString>

/// A translation into no language: each text of the program between angle quotes, so that one that isn't
/// translated stands out.
namespace MarkedTranslation {

/// The translation of @p source.
QString of(const QString& source);
bool isMarked(const QString& text);
/// Makes the compiled translation @p file of all texts of the program; the test program ends if it can't.
void compile(const QString& file);

} // namespace MarkedTranslation
