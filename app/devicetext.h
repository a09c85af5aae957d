#pragma once

class QString;

/// @p text with its accented Latin letters replaced by the plain ones that the logger can print. All else
/// passes unchanged; the result can be longer than @p text.
QString transliterated(const QString& text);
