// The languages, and the choice among them at the start of the program.

#include "app/languages.h"

#include "dialogs/configuration.h"
#include "presets/presetstorage.h"

#include <QCoreApplication>
#include <QDebug>
#include <QTranslator>

namespace {

const QString sourceLanguage = QStringLiteral("en_us");

struct Language
{
    const char* key;
    const char* name;
    const char* stem;
};

/// The stems are spelled with one "g" on purpose: the files have these names.
constexpr Language allLanguages[] = {
    {"en_us", "English (US)", "en"},
    {"it_ch", "Italiano (IT)", "brumaloger-config-gui_it"},
    {"es_es", "Español (ES)", "brumaloger-config-gui_es"},
    {"pt_br", "Português (BR)", "brumaloger-config-gui_ptbr"},
    {"fr_fr", "Français (FR)", "brumaloger-config-gui_fr"},
    {"de_de", "Deutsch (DE)", "brumaloger-config-gui_de"},
};

void install(QTranslator* translator, const QString& stem)
{
    if (translator->load(stem))
        QCoreApplication::installTranslator(translator);
    else
        qWarning() << "Unable to load translation file" << stem;
}

} // namespace

LanguageTable languageTable()
{
    LanguageTable table;
    for (const Language& row : allLanguages)
        table.insert(QLatin1String(row.key), {QString::fromUtf8(row.name), QLatin1String(row.stem)});
    return table;
}

void selectLanguage(PresetStorage* configuration, const LanguageTable& languages, QTranslator* translator)
{
    const QLatin1String languageKey(Configuration::languageKey);
    if (!configuration->contains(languageKey))
        return;
    const QString language = configuration->value(languageKey);
    if (!languages.contains(language))
        qWarning() << "Unsupported language setting:" << language;
    else if (language != sourceLanguage)
        install(translator, languages.value(language).second);
}
