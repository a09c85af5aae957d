// The program: application, language, window, event loop.

#include "app/languages.h"
#include "app/mainwindow.h"
#include "dialogs/configuration.h"
#include "presets/presetstorage.h"

#include <QApplication>
#include <QDebug>
#include <QTranslator>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QTranslator translator;
    PresetStorage configuration;
    if (!configuration.load(QLatin1String(Configuration::file)))
        qWarning() << "Unable to read configuration file.";
    const LanguageTable languages = languageTable();
    selectLanguage(&configuration, languages, &translator);

    MainWindow window;
    window.lSetLanguages(languages);
    window.show();
    return QApplication::exec();
}
