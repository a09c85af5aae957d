// The settings: their widgets, their file, and which of them can be used when.

#include "dialogs/settingsdialog.h"

#include "dialogs/configuration.h"
#include "presets/presetstorage.h"
#include "ui_settingsdialog.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QShowEvent>
#include <QStandardPaths>

namespace {

constexpr int smallestFont = 4;
constexpr int largestFont = 40;

/// Public NTP servers. The first is recommended: a large company's service, which is near everywhere.
constexpr const char* timeServers[] = {
    "time.google.com", "time.nist.gov",     "stdtime.gov.hk",    "0.pool.ntp.org",
    "1.pool.ntp.org",  "0.cn.pool.ntp.org", "1.cn.pool.ntp.org",
};

// The keys of the configuration file.
const QString fontSizeKey = QStringLiteral("fontsize");
const QString presetEnabledKey = QStringLiteral("preseten");
const QString presetPathKey = QStringLiteral("presetpath");
const QString timeServerKey = QStringLiteral("timeserver");
const QString languageKey = QLatin1String(Configuration::languageKey);
const QString windowWidthKey = QStringLiteral("winwidth");
const QString windowHeightKey = QStringLiteral("winheight");

struct CheckBoxSetting
{
    const char* key;
    QCheckBox* Ui::SettingsDialog::*box;
    bool whenMissing; ///< in a file that lacks the key; not what the form begins with
};

constexpr CheckBoxSetting checkBoxSettings[] = {
    {"disabletime", &Ui::SettingsDialog::checkDisableTime, true},
    {"useserverpool", &Ui::SettingsDialog::checkUsePool, true},
    {"disablefast", &Ui::SettingsDialog::checkDisableFast, false},
};

struct RestartNotice
{
    const char* language;
    const char* title;
    const char* text;
};

/// What is said about a language just chosen, in that language; the translator in force speaks the old one.
constexpr RestartNotice restartNotices[] = {
    {"pt_br", "Informação",
     "Clique em OK e reinicie a aplicação para que as configurações de idioma tenham efeito."},
    {"it_ch", "Informazione",
     "Premere OK e fare ripartire il sistema per implementare le nuove impostazioni."},
    {"de_de", "Information",
     "Bestätigen Sie mit OK und starten Sie die Anwendung erneut um diese Einstellungen zu aktivieren."},
    {"es_es", "Información",
     "Haga clic en OK y reinicie la aplicación para que esta configuración surta efecto."},
    {"fr_fr", "Information",
     "Veuillez cliquer sur OK et redémarrer l'application pour que ces paramètres prennent effet."},
};
constexpr RestartNotice englishNotice = {
    "en_us", "Information", "Please click OK and restart the application for these settings to take effect."};

const RestartNotice& noticeFor(const QString& language)
{
    for (const RestartNotice& notice : restartNotices) {
        if (language == QLatin1String(notice.language))
            return notice;
    }
    return englishNotice;
}

QString flagText(bool set)
{
    return set ? QStringLiteral("1") : QStringLiteral("0");
}

bool isSet(const QString& flag)
{
    return flag.toInt() != 0;
}

} // namespace

SettingsDialog::SettingsDialog(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::SettingsDialog)
    , storage(new PresetStorage(this))
    , mainWindow(parent)
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    plSetUpFontSize();
    ui->checkPreset->setChecked(false);
    for (const char* server : timeServers)
        serverList << QLatin1String(server);
    serverList.first() += QStringLiteral(" (%1)").arg(tr("Recommended"));
    ui->comboServerList->addItems(serverList);
    plConnectSignals();
    loadSettings();
}

SettingsDialog::~SettingsDialog()
{
    delete ui;
}

void SettingsDialog::plSetUpFontSize()
{
    const int size = font().pointSize();
    ui->spinFont->setRange(qMin(size, smallestFont), qMax(size, largestFont));
    ui->spinFont->setValue(size);
}

// The window's own slot hangs on accepted() behind the first of these, so the file is written before it runs.
void SettingsDialog::plConnectSignals()
{
    connect(this, &QDialog::accepted, this, &SettingsDialog::plAccept);
    connect(ui->checkDisableTime, &QCheckBox::toggled, this, &SettingsDialog::plOnDisableTimeToggled);
    connect(ui->checkUsePool, &QCheckBox::toggled, this, [this](bool used) { plEnableServerChoice(!used); });
    connect(ui->comboLanguage, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &SettingsDialog::plProcessLanguageChoice);
    connect(ui->buttonTool, &QToolButton::clicked, this, &SettingsDialog::plOpenPreset);
}

void SettingsDialog::plAccept()
{
    if (ui->lineFilename->text().isEmpty())
        ui->checkPreset->setChecked(false);
    saveSettings();
}

void SettingsDialog::plOnDisableTimeToggled(bool disabled)
{
    ui->checkUsePool->setEnabled(!disabled);
    plEnableServerChoice(!disabled && !ui->checkUsePool->isChecked());
}

void SettingsDialog::plEnableServerChoice(bool enabled)
{
    ui->comboServerList->setEnabled(enabled);
    ui->labelTimeServer->setEnabled(enabled);
}

void SettingsDialog::setConfigPath(const QString& path)
{
    configPath = path;
}

bool SettingsDialog::loadSettings()
{
    // Until the window names the file, the toolkit would complain of the missing name.
    if (configPath.isEmpty() || !storage->load(configPath))
        return false;
    const QScopedValueRollback<bool> guard(loading, true);
    ui->spinFont->setValue(storage->value(fontSizeKey).toInt());
    ui->checkPreset->setChecked(isSet(storage->value(presetEnabledKey)));
    ui->lineFilename->setText(storage->value(presetPathKey));
    plLoadServer();
    for (const CheckBoxSetting& setting : checkBoxSettings) {
        const QString key = QLatin1String(setting.key);
        (ui->*setting.box)
            ->setChecked(storage->contains(key) ? isSet(storage->value(key)) : setting.whenMissing);
    }
    plLoadLanguage();
    return true;
}

// A host name stored from the first row is no text of the list, and means that row all the same.
void SettingsDialog::plLoadServer()
{
    ui->comboServerList->setCurrentIndex(qMax(0, serverList.indexOf(storage->value(timeServerKey))));
}

void SettingsDialog::plLoadLanguage()
{
    if (!storage->contains(languageKey))
        return;
    const int row = ui->comboLanguage->findData(storage->value(languageKey));
    if (row >= 0)
        ui->comboLanguage->setCurrentIndex(row);
}

void SettingsDialog::saveSettings()
{
    storage->setValue(fontSizeKey, QString::number(fontSize()));
    storage->setValue(presetEnabledKey, flagText(presetEnabled()));
    storage->setValue(presetPathKey, presetPath());
    storage->setValue(timeServerKey, timeServer());
    for (const CheckBoxSetting& setting : checkBoxSettings)
        storage->setValue(QLatin1String(setting.key), flagText((ui->*setting.box)->isChecked()));
    storage->setValue(windowWidthKey, QString::number(mainWindow->width()));
    storage->setValue(windowHeightKey, QString::number(mainWindow->height()));
    storage->save(configPath);
}

void SettingsDialog::setLanguages(const LanguageTable& table)
{
    languages = table;
    ui->comboLanguage->clear();
    for (auto language = languages.cbegin(); language != languages.cend(); ++language)
        ui->comboLanguage->addItem(language.value().first, language.key());
}

bool SettingsDialog::presetEnabled() const
{
    return ui->checkPreset->isChecked();
}

QString SettingsDialog::presetPath() const
{
    return ui->lineFilename->text();
}

bool SettingsDialog::timeEnabled() const
{
    return !ui->checkDisableTime->isChecked();
}

bool SettingsDialog::poolEnabled() const
{
    return ui->checkUsePool->isChecked();
}

bool SettingsDialog::fastEnabled() const
{
    return !ui->checkDisableFast->isChecked();
}

int SettingsDialog::fontSize() const
{
    return ui->spinFont->value();
}

QString SettingsDialog::timeServer() const
{
    return ui->comboServerList->currentText().split(QLatin1Char(' ')).constFirst();
}

QStringList SettingsDialog::serverListForPool() const
{
    return serverList;
}

QSize SettingsDialog::savedWindowSize() const
{
    return {storage->value(windowWidthKey).toInt(), storage->value(windowHeightKey).toInt()};
}

// Coming back from being minimised is no opening: what was chosen stays.
void SettingsDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        loadSettings();
}

// Closing by the frame is no more than hiding.
void SettingsDialog::closeEvent(QCloseEvent* /*event*/) {}

void SettingsDialog::plOpenPreset()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Select preset"),
                                     QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                                     QLatin1String(Configuration::presetFilter))
            .trimmed();
    if (path.isEmpty())
        return;
    ui->lineFilename->setText(path);
    ui->checkPreset->setChecked(true);
}

void SettingsDialog::plProcessLanguageChoice(int selectedLangIndex)
{
    if (!isVisible() || loading)
        return;
    const QString language = ui->comboLanguage->itemData(selectedLangIndex).toString();
    storage->setValue(languageKey, language);
    const RestartNotice& notice = noticeFor(language);
    QMessageBox::information(this, QString::fromUtf8(notice.title), QString::fromUtf8(notice.text));
}
