#pragma once

#include "dialogs/languagetable.h"

class PresetStorage;
class QTranslator;

/// All languages of the program.
LanguageTable languageTable();

/// Loads the translation of the language that @p configuration names into @p translator, from the current
/// folder and no other, and installs it. For English nothing is loaded; a language that is none of
/// @p languages, or whose file can't be loaded, is logged and leaves the program in English.
///
/// Has to come before the window: its texts are translated when they are set, and never again.
void selectLanguage(PresetStorage* configuration, const LanguageTable& languages, QTranslator* translator);
