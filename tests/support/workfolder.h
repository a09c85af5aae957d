#pragma once

#include <QMap>
#include <QString>
#include <QTemporaryDir>

using Settings = QMap<QString, QString>;

/// The configuration of a computer that needs no network: time configuration off, no server pool, the font as
/// it is.
Settings quietSettings();
/// The same with some values of its own.
Settings quietSettingsWith(const Settings& own);

/// A new folder as the process's current one, where the program finds and leaves its files; the old one again
/// and the new one gone when this goes.
class WorkFolder
{
public:
    /// With a configuration of @p settings; without any, as on the program's first start, if there are none.
    explicit WorkFolder(const Settings& settings = quietSettings());
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    /// All that the configuration file in the current folder holds now; empty if there is none.
    static Settings configuration();

private:
    QTemporaryDir folder;
    QString before;
};
