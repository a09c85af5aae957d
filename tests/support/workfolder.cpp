// A place for the files that the program finds and leaves where it runs.

#include "support/workfolder.h"

#include "presetfiles.h"

#include "presets/presetstorage.h"

#include <QDir>
#include <QFont>
#include <QGuiApplication>

namespace {

const QString configurationName = QStringLiteral("blconf");

void writeConfiguration(const Settings& settings)
{
    PresetStorage storage(nullptr);
    PresetFiles::fill(&storage, settings);
    if (!storage.save(configurationName))
        qFatal("the configuration could not be written");
}

} // namespace

Settings quietSettings()
{
    return {{QStringLiteral("disabletime"), QStringLiteral("1")},
            {QStringLiteral("useserverpool"), QStringLiteral("0")},
            {QStringLiteral("fontsize"), QString::number(QGuiApplication::font().pointSize())}};
}

Settings quietSettingsWith(const Settings& own)
{
    Settings settings = quietSettings();
    for (auto setting = own.cbegin(); setting != own.cend(); ++setting)
        settings.insert(setting.key(), setting.value());
    return settings;
}

WorkFolder::WorkFolder(const Settings& settings)
    : before(QDir::currentPath())
{
    if (!folder.isValid() || !QDir::setCurrent(folder.path()))
        qFatal("no folder to work in: %s", qPrintable(folder.errorString()));
    if (!settings.isEmpty())
        writeConfiguration(settings);
}

WorkFolder::~WorkFolder()
{
    QDir::setCurrent(before);
}

Settings WorkFolder::configuration()
{
    return PresetFiles::savedTable(configurationName).value_or(Settings());
}
