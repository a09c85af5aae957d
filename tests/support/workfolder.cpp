// A place for the files that the program finds and leaves where it runs.

#include "support/workfolder.h"

#include "presetfiles.h"

#include "presets/presetstorage.h"
#include "support/environmentvariable.h"

#include <QDir>
#include <QFile>
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

/// The toolkit remembers file dialogs for all programs of a user, in a place that it looks for once in a
/// program's life.
void giveTheToolkitAMemory()
{
    static const QTemporaryDir memory;
    static const EnvironmentVariable place("XDG_CONFIG_HOME", QFile::encodeName(memory.path()));
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
    giveTheToolkitAMemory();
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
