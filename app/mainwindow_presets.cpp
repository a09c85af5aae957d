// Saving what the window shows to a preset file, and loading it back. No device is touched: what a preset has
// brought waits in the window for a write.

#include "app/mainwindow.h"

#include "dialogs/advancedoptionsdialog.h"
#include "dialogs/configuration.h"
#include "dialogs/settingsdialog.h"
#include "presets/presetstorage.h"
#include "time/timemanager.h"
#include "ui_mainwindow.h"

#include <QDebug>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QScopedValueRollback>
#include <QStandardPaths>

#include <functional>
#include <optional>

namespace {

constexpr auto fileSuffix = ".bpr";

QString presetFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

/// What a file dialog gave, without the blanks around it. Nothing for a name of blanks, nor if it was
/// cancelled.
QString fileChosen(const QString& path)
{
    return QFileInfo(path).fileName().trimmed().isEmpty() ? QString() : path.trimmed();
}

QString degrees(const QDoubleSpinBox* spin)
{
    return QString::number(spin->value(), 'g', 6);
}

QString flag(bool set)
{
    return QString::number(int(set));
}

/// Nothing for a date that is off.
template<typename DateGetter>
std::optional<QString> dateText(const AdvancedOptionsDialog& options, DateGetter getter,
                                const QString& format)
{
    bool enabled = false;
    QDateTime date;
    (options.*getter)(&enabled, &date);
    // In the digits that every computer reads.
    return enabled ? std::optional(QLocale::c().toString(date, format)) : std::nullopt;
}

void adoptPolicies(AdvancedOptionsDialog& options, const QString& text)
{
    bool isNumber = false;
    const int policies = text.toInt(&isNumber);
    if (isNumber)
        options.lSetPolicies(policies);
}

} // namespace

/// A key of a preset file, and the control or value of the window behind it.
struct MainWindow::PresetRow
{
    const char* key;
    std::optional<QString> value;              ///< into the file; without one the key is left as it is
    std::function<void(const QString&)> adopt; ///< out of the file; empty if another row sees to it
    bool keptIfMissing = false; ///< a file without the key adopts nothing, not even an empty text
};

// In the order of loading. The barcode is not here: it belongs to a single logger.
std::vector<MainWindow::PresetRow> MainWindow::plPresetRows()
{
    using Text = const QString&;
    AdvancedOptionsDialog* options = advancedOptionsDialog.data();
    const auto seconds = [](const QSpinBox* spin) {
        return QString::number(spin->value() * secondsPerMinute);
    };
    const std::optional<QString> start =
        dateText(*options, &AdvancedOptionsDialog::lStartDate, dateTimeShortFormat);
    const std::optional<QString> stop =
        dateText(*options, &AdvancedOptionsDialog::lStopDate, dateTimeShortFormat);
    return {
        {"mintemp", degrees(ui->spindTempMin), {}},
        {"maxtemp", degrees(ui->spindTempMax),
         [=](Text text) {
             plSetTempRange(presetStorage->value(QStringLiteral("mintemp")).toFloat(), text.toFloat());
         }},
        {"samplet", seconds(ui->spinSampling), [=](Text text) { plSetSamplingTime(text.toInt()); }},
        {"startdl", seconds(ui->spinDelay), [=](Text text) { plSetStartDelay(text.toInt()); }},
        {"info", ui->lineInfo->text(), [=](Text text) { ui->lineInfo->setText(text); }},
        {"sender", ui->lineSender->text(), [=](Text text) { ui->lineSender->setText(text); }},
        {"recipient", ui->lineRecipient->text(), [=](Text text) { ui->lineRecipient->setText(text); }},
        {"type", shipmentTypes.value(ui->comboType->currentIndex()),
         [=](Text text) { plSetShipmentType(text); }},
        {"buttonlock", flag(ui->checkLock->isChecked()),
         [=](Text text) { ui->checkLock->setChecked(text.toInt() != 0); }},
        {"policies", QString::number(options->lPolicies()), [=](Text text) { adoptPolicies(*options, text); },
         true},
        {"password", options->lPassword(), [=](Text text) { options->lSetPassword(text); }, true},
        {"startdate_en", flag(start.has_value()),
         [=](Text on) {
             plAdoptDate(on, QStringLiteral("startdate"), &AdvancedOptionsDialog::lSetStartDate);
         },
         true},
        {"startdate", start, {}},
        {"stopdate_en", flag(stop.has_value()),
         [=](Text on) { plAdoptDate(on, QStringLiteral("stopdate"), &AdvancedOptionsDialog::lSetStopDate); },
         true},
        {"stopdate", stop, {}},
        {"timezone", currentTimeZoneName, [=](Text text) { plAdoptTimeZone(text); }},
    };
}

void MainWindow::plSave()
{
    if (procedureRuns)
        return;
    const QScopedValueRollback<bool> guard(procedureRuns, true);
    QString name = fileChosen(QFileDialog::getSaveFileName(this, tr("Save to preset"), presetFolder(),
                                                           QLatin1String(Configuration::presetFilter)));
    if (name.isEmpty() || !plDeviceStays())
        return;
    if (!name.endsWith(QLatin1String(fileSuffix)))
        name += QLatin1String(fileSuffix);
    qDebug() << "Saving to " << name;
    for (const PresetRow& row : plPresetRows()) {
        if (row.value)
            presetStorage->setValue(QLatin1String(row.key), *row.value);
    }
    if (!presetStorage->save(name))
        plWarn(QStringLiteral("Error"), QStringLiteral("Unable to save preset file!"));
    // Said after a failure, too, and in no other language.
    ui->statusBar->showMessage(QStringLiteral("Succesfully saved ") + name);
}

void MainWindow::plLoad()
{
    if (procedureRuns)
        return;
    const QScopedValueRollback<bool> guard(procedureRuns, true);
    const QString path = fileChosen(QFileDialog::getOpenFileName(this, tr("Load preset"), presetFolder(),
                                                                 QLatin1String(Configuration::presetFilter)));
    if (!path.isEmpty() && plDeviceStays())
        loadPresetFile(path);
}

void MainWindow::plLoadDefaultPreset()
{
    if (procedureRuns || !settingsDialog->presetEnabled())
        return;
    const QScopedValueRollback<bool> guard(procedureRuns, true);
    loadPresetFile(settingsDialog->presetPath());
}

void MainWindow::loadPresetFile(const QString& path)
{
    qDebug() << "Opening " << path;
    if (!presetStorage->load(path)) {
        plWarn(tr("Error"), tr("Unable to read from selected file. File is corrupted."));
        return;
    }
    for (const PresetRow& row : plPresetRows()) {
        const QString key = QLatin1String(row.key);
        if (row.adopt && (presetStorage->contains(key) || !row.keptIfMissing))
            row.adopt(presetStorage->value(key));
    }
    ui->statusBar->showMessage(tr("Loaded %1").arg(path));
}

// A date that doesn't parse is off, without a word to the operator.
void MainWindow::plAdoptDate(const QString& enabled, const QString& dateKey, DateSetter setter)
{
    (*advancedOptionsDialog.*setter)(false, QDateTime());
    if (enabled.toInt() == 0 || !presetStorage->contains(dateKey))
        return;
    const QString text = presetStorage->value(dateKey);
    if (setter == &AdvancedOptionsDialog::lSetStartDate)
        qDebug() << "Got date/time string:" << text;
    const QDateTime date = QDateTime::fromString(text, dateTimeShortFormat);
    qDebug() << "Read date/time from file:" << date;
    if (date.isValid())
        (*advancedOptionsDialog.*setter)(true, date);
}

// The zone is set only along with the time, which takes a reference.
void MainWindow::plAdoptTimeZone(const QString& text)
{
    const QString name = text.isEmpty() ? defaultTimeZoneName : text;
    timeZoneFromDevice = false;
    if (settingsDialog->timeEnabled()) {
        if (timeManager->isQuerySuccesful())
            plSetTimeZone(name);
        else
            plWarn(QStringLiteral("Warning"),
                   tr("Loaded preset sets a Time Zone (%1) but Time Server(s) cannot be reached for "
                      "synchronization.\nTime Zone will be ignored.")
                       .arg(name));
    } else if (name != defaultTimeZoneName) {
        plWarn(tr("Warning"), tr("Loaded preset sets a Time Zone (%1) but Time Configuration is currently "
                                 "disabled.\nTime Zone will be ignored.")
                                  .arg(name));
    }
}
