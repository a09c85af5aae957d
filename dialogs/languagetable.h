#pragma once

#include <QMap>
#include <QPair>
#include <QString>

/// The languages to choose from: from the language's key, which the configuration holds, to its name in that
/// language and the stem of its translation file.
using LanguageTable = QMap<QString, QPair<QString, QString>>;
