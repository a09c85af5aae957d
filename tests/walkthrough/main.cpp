// brumalogger-walkthrough basic|secure|save|apply|pictures: does a job in the tool's window by itself.

#include "basicwalk.h"
#include "picturewalk.h"
#include "presetwalk.h"
#include "securewalk.h"

#include "app/languages.h"
#include "presets/presetstorage.h"

#include <QApplication>
#include <QTranslator>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QTranslator translator;
    PresetStorage configuration;
    if (configuration.load(QStringLiteral("blconf")))
        selectLanguage(&configuration, languageTable(), &translator);
    const QString job = QApplication::arguments().value(1);
    if (job == QStringLiteral("basic"))
        return BasicWalk().run();
    if (job == QStringLiteral("secure"))
        return SecureWalk().run();
    if (job == QStringLiteral("save"))
        return SavingWalk().run();
    if (job == QStringLiteral("apply"))
        return ApplyingWalk().run();
    if (job == QStringLiteral("pictures"))
        return PictureWalk().run();
    std::fprintf(stderr, "Usage: brumalogger-walkthrough basic|secure|save|apply|pictures\n");
    return 2;
}
