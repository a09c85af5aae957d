// Presets in the window: made files, and an operator who chooses them.

#include "presetrig.h"

#include "presetfiles.h"

#include "dialogs/advancedoptionsdialog.h"
#include "presets/presetstorage.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QTextStream>

namespace {

using DateGetter = void (AdvancedOptionsDialog::*)(bool*, QDateTime*) const;

QString dateOf(const WindowRig& rig, DateGetter getter)
{
    bool enabled = false;
    QDateTime date;
    (rig.window.findChild<AdvancedOptionsDialog*>()->*getter)(&enabled, &date);
    return enabled ? QStringLiteral("on ") + date.toString(QStringLiteral("hh:mm:ss dd/MM/yyyy"))
                   : QStringLiteral("off");
}

} // namespace

PresetTable presetIn(const QString& path)
{
    const std::optional<PresetTable> table = PresetFiles::savedTable(path);
    if (!table)
        qFatal("%s can't be read", qPrintable(path));
    return *table;
}

void writePreset(const QString& path, const PresetTable& table)
{
    PresetStorage storage(nullptr);
    PresetFiles::fill(&storage, table);
    if (!storage.save(path))
        qFatal("%s can't be written", qPrintable(path));
}

void writePlainPreset(const QString& path, const PresetTable& table)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        qFatal("%s can't be written", qPrintable(path));
    QTextStream stream(&file);
    stream << "1.0\n";
    for (auto entry = table.cbegin(); entry != table.cend(); ++entry)
        stream << entry.key() << '=' << entry.value() << '\n';
}

void writeDamagedPreset(const QString& path)
{
    writePreset(path, presetWith(presetOfBasicLogger(), {{QStringLiteral("samplet"), QStringLiteral("60")}}));
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !file.resize(file.size() / 2))
        qFatal("%s can't be damaged", qPrintable(path));
}

PresetTable presetOfBasicLogger()
{
    return {{QStringLiteral("mintemp"), QStringLiteral("-10")},
            {QStringLiteral("maxtemp"), QStringLiteral("-1")},
            {QStringLiteral("samplet"), QStringLiteral("600")},
            {QStringLiteral("startdl"), QStringLiteral("3600")},
            {QStringLiteral("timezone"), QStringLiteral("GMT")},
            {QStringLiteral("sender"), QStringLiteral("Northern Pharma")},
            {QStringLiteral("recipient"), QStringLiteral("City Hospital")},
            {QStringLiteral("info"), QStringLiteral("Batch 7")},
            {QStringLiteral("type"), QStringLiteral("Land")},
            {QStringLiteral("buttonlock"), QStringLiteral("1")},
            {QStringLiteral("policies"), QStringLiteral("259")},
            {QStringLiteral("password"), QString()},
            {QStringLiteral("startdate_en"), QStringLiteral("0")},
            {QStringLiteral("stopdate_en"), QStringLiteral("0")}};
}

PresetTable presetWith(PresetTable table, const PresetTable& changes)
{
    for (auto change = changes.cbegin(); change != changes.cend(); ++change)
        table.insert(change.key(), change.value());
    return table;
}

void addNamelessRows()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("cancelled") << QString();
    QTest::newRow("blanks") << QStringLiteral("  ");
}

PresetTable presetWithout(PresetTable table, const QStringList& keys)
{
    for (const QString& key : keys)
        table.remove(key);
    return table;
}

PresetTable presetOfZone(const QString& zone)
{
    return presetWith(presetOfBasicLogger(), {{QStringLiteral("timezone"), zone}});
}

QDateTime figures(int day, int month, int year, int hour, int minute, int second)
{
    return {QDate(year, month, day), QTime(hour, minute, second), Qt::UTC};
}

QString startDate(const WindowRig& rig)
{
    return dateOf(rig, &AdvancedOptionsDialog::lStartDate);
}

QString stopDate(const WindowRig& rig)
{
    return dateOf(rig, &AdvancedOptionsDialog::lStopDate);
}

Settings presetSettings()
{
    return quietSettingsWith(
        {{QStringLiteral("preseten"), QStringLiteral("1")}, {QStringLiteral("presetpath"), defaultPreset}});
}

Settings timeAndPresets()
{
    Settings settings = presetSettings();
    settings.insert(QStringLiteral("disabletime"), QStringLiteral("0"));
    return settings;
}

// The toolkit's own file dialogs are the same on every desktop.
PresetRig::PresetRig(const Settings& settings)
    : TimeRig(settings)
    , hand(QString())
    , home("HOME", QFile::encodeName(QDir::currentPath()))
    , documents(QDir::currentPath() + QStringLiteral("/Documents"))
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    if (!QDir().mkpath(documents))
        qFatal("no folder for documents");
}

void PresetRig::save(const QString& name)
{
    hand.setPath(name);
    trigger("actionSave");
}

void PresetRig::load(const QString& name)
{
    hand.setPath(name);
    trigger("actionLoad");
}

void PresetRig::apply(const PresetTable& table)
{
    writePreset(defaultPreset, table);
    press("buttonPreset");
}

void PresetRig::trigger(const char* actionName) const
{
    find<QAction>(actionName)->trigger();
}

AdvancedOptionsDialog* PresetRig::options() const
{
    return window.findChild<AdvancedOptionsDialog*>();
}
