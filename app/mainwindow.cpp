// The window itself: construction, wiring, what is enabled when, change tracking, closing.

#include "app/mainwindow.h"

#include "app/buttonicon.h"
#include "app/statustipfilter.h"
#include "device/brumaloggerinterface.h"
#include "dialogs/advancedoptionsdialog.h"
#include "dialogs/configuration.h"
#include "dialogs/guidedialog.h"
#include "dialogs/passworddialog.h"
#include "dialogs/settingsdialog.h"
#include "dialogs/timezonedialog.h"
#include "presets/presetstorage.h"
#include "time/timemanager.h"
#include "ui_mainwindow.h"
#include "update/makerweb.h"
#include "update/updatechecker.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileDialog>
#include <QShortcut>

#include <initializer_list>

namespace {

constexpr auto onlineHelpPath = "/redir/guide/brumaloggerconftool"; ///< redirects to the guide
constexpr auto productPagePath = "/brumalogger";

struct MainButton
{
    QPushButton* Ui::MainWindow::*button;
    const char* icon;
    const char* shortcut;
    const char* toolTip;
};

/// The Connect button, which changes its looks, has them in mainwindow_connect.cpp.
constexpr auto connectShortcut = "Ctrl+K";
constexpr MainButton mainButtons[] = {
    {&Ui::MainWindow::buttonRead, ":/icon_read.png", "Ctrl+R",
     QT_TRANSLATE_NOOP("MainWindow", "Read data from device (%1)")},
    {&Ui::MainWindow::buttonWrite, ":/icon_write.png", "Ctrl+W",
     QT_TRANSLATE_NOOP("MainWindow", "Write data to device (%1)")},
    {&Ui::MainWindow::buttonStart, ":/icon_start.png", "Ctrl+A",
     QT_TRANSLATE_NOOP("MainWindow", "Start device (%1)")},
    {&Ui::MainWindow::buttonPreset, ":/icon_load.png", "Ctrl+P",
     QT_TRANSLATE_NOOP("MainWindow", "Load default preset (%1)")},
};

void reject(QDialog* dialog)
{
    if (dialog->isVisible())
        dialog->reject();
}

/// Together with what is open above them.
void rejectAll(std::initializer_list<QDialog*> dialogs)
{
    for (QDialog* dialog : dialogs) {
        if (!dialog)
            continue;
        for (QDialog* above : dialog->findChildren<QDialog*>())
            reject(above);
        reject(dialog);
    }
}

/// The loop of a dialog below a menu can't end before the menu's.
void closeMenus()
{
    QWidget* menu = QApplication::activePopupWidget();
    while (menu && menu->close())
        menu = QApplication::activePopupWidget();
}

/// Gives @p button a keyboard shortcut, and returns its text for a tool tip.
QString addShortcut(QPushButton* button, const char* keys)
{
    auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), button);
    QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    return shortcut->key().toString(QKeySequence::NativeText);
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , ui(new Ui::MainWindow)
    , device(new BrumaloggerInterface(nullptr))
    , settingsDialog(new SettingsDialog(this))
    , presetStorage(new PresetStorage(this))
    , updateChecker(new UpdateChecker(versionMajor, versionMinor, versionPatch, this))
    , guideDialog(new GuideDialog(nullptr))
    , timeManager(new TimeManager(nullptr))
    , timeZoneDialog(new TimeZoneDialog(this))
    , passwordDialog(new PasswordDialog(this))
    , advancedOptionsDialog(new AdvancedOptionsDialog(this))
    , fallbackDownloadUrl(QLatin1String(makerHost) + QLatin1String(productPagePath))
{
    Q_INIT_RESOURCE(images);
    Q_INIT_RESOURCE(pages);
    ui->setupUi(this);
    plFillLists();
    defaultTimeZoneName = timeManager->timeZones().constFirst().name;
    currentTimeZoneName = defaultTimeZoneName;
    setWindowTitle(windowTitleBase); // in place of the form's, which is translated
    settingsDialog->setConfigPath(QLatin1String(Configuration::file));
    plInsertLists();
    timeKeeper.setRunning(false);
    plConnectSignals();
    installEventFilter(new StatusTipFilter(this));
    plSetUpButtons();
    ui->buttonAdvanced->hide();
    passwordDialog->lSetDevice(device);
    timeZoneDialog->setTimeManager(timeManager);
    settingsDialog->loadSettings();
    plSettingsAccepted();
    const QSize savedSize = settingsDialog->savedWindowSize();
    if (savedSize.width() != 0 && savedSize.height() != 0)
        resize(savedSize);
    plShowTimeZone(false);
    plShowLastReset(false);
}

MainWindow::~MainWindow()
{
    // A range that has the focus loses it when no more than a plain widget is left of the window.
    ui->spindTempMin->disconnect(this);
    ui->spindTempMax->disconnect(this);
    delete ui;
}

void MainWindow::lSetLanguages(const LanguageTable& table)
{
    settingsDialog->setLanguages(table);
}

// Where two slots hang on one signal they run in the order of these lines.
void MainWindow::plConnectSignals()
{
    connect(&timeKeeper, &TimeKeeper::sUpdate, this, &MainWindow::plUpdateDateTime);
    plConnectChanges();
    plConnectCounters();
    connect(ui->buttonToolTimeZone, &QToolButton::clicked, this, &MainWindow::plProcessTimeZoneDialog);
    connect(ui->buttonStart, &QPushButton::clicked, this, &MainWindow::plStartLogger);
    connect(ui->buttonConnect, &QPushButton::clicked, this, &MainWindow::plConnect);
    connect(ui->buttonRead, &QPushButton::clicked, this, &MainWindow::plReadFromDevice);
    connect(ui->buttonWrite, &QPushButton::clicked, this, &MainWindow::plWriteToDevice);
    connect(ui->buttonPreset, &QPushButton::clicked, this, &MainWindow::plLoadDefaultPreset);
    for (QLabel* label : {ui->labelSerial, ui->labelFirmwareVersion, ui->labelDeviceName,
                          ui->labelHardwareRevision, ui->labelLastReset, ui->labelType})
        connect(label, &QLabel::customContextMenuRequested, this,
                [this, label] { plProcessCustomLabelMenu(label); });
    connect(ui->buttonAdvanced, &QPushButton::clicked, this, &MainWindow::plProcessAdvancedOptionsDialog);
    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(ui->comboTemp, indexChanged, this, &MainWindow::plUpdateTempRange);
    connect(ui->comboSampling, indexChanged, this, &MainWindow::plUpdateSamplingTime);
    connect(ui->comboDelay, indexChanged, this, &MainWindow::plUpdateStartDelay);
    connect(ui->spindTempMax, &QDoubleSpinBox::editingFinished, this, &MainWindow::plValidateTempRange);
    connect(ui->spindTempMin, &QDoubleSpinBox::editingFinished, this, &MainWindow::plValidateTempRange);
    connect(ui->actionSave, &QAction::triggered, this, &MainWindow::plSave);
    connect(ui->actionLoad, &QAction::triggered, this, &MainWindow::plLoad);
    connect(ui->actionWebHelp, &QAction::triggered, this,
            [] { QDesktopServices::openUrl(makerAddress(onlineHelpPath)); });
    connect(ui->actionAbout, &QAction::triggered, this, [this] { plShowAbout(); });
    plConnectServices();
}

// The spin boxes are left out on purpose: a custom value alone marks no change.
void MainWindow::plConnectChanges()
{
    for (const TextSlot& slot : textSlots)
        connect(ui->*slot.edit, &QLineEdit::textChanged, this, [this] { plChangesOcurred(); });
    for (QComboBox* combo : {ui->comboTemp, ui->comboSampling, ui->comboDelay, ui->comboType})
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [this] { plChangesOcurred(); });
    connect(ui->checkLock, &QCheckBox::stateChanged, this, [this] { plChangesOcurred(); });
}

void MainWindow::plConnectServices()
{
    connect(ui->actionSettings, &QAction::triggered, settingsDialog.data(), &QDialog::exec);
    connect(ui->actionQuickstart, &QAction::triggered, guideDialog.data(), &QDialog::show);
    connect(settingsDialog.data(), &QDialog::accepted, this, &MainWindow::plSettingsAccepted);
    connect(timeManager.data(), &TimeManager::sQuerySuccesful, this, &MainWindow::plOnTimeManagerConnect);
    connect(timeManager.data(), &TimeManager::sQueryTimeout, this, &MainWindow::plOnTimeManagerTimeout);
    connect(updateChecker.data(), &UpdateChecker::sUpdateAvailable, this, &MainWindow::lUpdateAvailable);
    connect(updateChecker.data(), &UpdateChecker::sUpdateMandatory, this, &MainWindow::lUpdateMandatory);
}

void MainWindow::plSetUpButtons()
{
    connectKeyText = addShortcut(ui->buttonConnect, connectShortcut);
    plShowConnectButton();
    for (const MainButton& row : mainButtons) {
        QPushButton* button = ui->*row.button;
        button->setIcon(buttonIcon(QLatin1String(row.icon), button->iconSize()));
        button->setToolTip(tr(row.toolTip).arg(addShortcut(button, row.shortcut)));
    }
    ui->buttonAdvanced->setToolTip(tr("Advanced security and startup options"));
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    closed = false;
    if (shownBefore)
        return;
    shownBefore = true;
    plClearDeviceInfo();
    plDisableControls(true);
    if (settingsDialog->savedWindowSize().isEmpty())
        plMakeRoom();
    updateChecker->check();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (modified && plAsk(tr("Exit"), tr("There are modifications that were not written to the device.\n"
                                         "Do you really wish to exit?")) == QMessageBox::No) {
        event->ignore();
        return;
    }
    closed = true;
    settingsDialog->saveSettings();
    guideDialog->close();
    plRejectDialogs();
    device->lDisconnect();
    event->accept();
}

// None of them outlives the window or its device on the screen. To a box that asks the answer is No, or
// Cancel.
void MainWindow::plRejectDialogs()
{
    closeMenus();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (qobject_cast<QMessageBox*>(window))
            window->close();
    }
    rejectAll({settingsDialog.data(), passwordDialog.data()});
    plRejectDeviceDialogs();
}

void MainWindow::plRejectDeviceDialogs()
{
    rejectAll({advancedOptionsDialog.data(), timeZoneDialog.data(), disclaimer});
    for (QFileDialog* dialog : findChildren<QFileDialog*>(QString(), Qt::FindDirectChildrenOnly))
        rejectAll({dialog});
}

void MainWindow::plDisableControls(bool disabled)
{
    controlsDisabled = disabled;
    for (const TextSlot& slot : textSlots)
        (ui->*slot.edit)->setEnabled(!disabled);
    for (QWidget* widget : std::initializer_list<QWidget*>{
             ui->comboTemp, ui->comboSampling, ui->comboDelay, ui->comboType, ui->checkLock, ui->buttonRead,
             ui->buttonWrite, ui->buttonAdvanced, ui->buttonStart})
        widget->setEnabled(!disabled);
    for (QAction* action : {ui->actionSave, ui->actionLoad})
        action->setEnabled(!disabled);
    ui->buttonToolTimeZone->setEnabled(!disabled && settingsDialog->timeEnabled() &&
                                       timeManager->isQuerySuccesful());
    ui->buttonPreset->setEnabled(!disabled && settingsDialog->presetEnabled());
    if (disabled) {
        for (QAbstractSpinBox* spin : std::initializer_list<QAbstractSpinBox*>{
                 ui->spinDelay, ui->spinSampling, ui->spindTempMin, ui->spindTempMax})
            spin->setEnabled(false);
    } else {
        plUpdateTempRange();
        plUpdateStartDelay();
        plUpdateSamplingTime();
    }
}

void MainWindow::plChangesOcurred(bool set)
{
    if (!set) {
        modified = false;
        setWindowTitle(windowTitleBase);
        ui->labelDateTime->setStyleSheet(QString());
    } else if (!modified) {
        modified = true;
        setWindowTitle(windowTitleBase + QLatin1Char('*'));
    }
}

QMessageBox::StandardButton MainWindow::plAsk(const QString& title, const QString& text)
{
    return QMessageBox::question(this, title, text, QMessageBox::Yes | QMessageBox::No);
}

void MainWindow::plWarn(const QString& title, const QString& text)
{
    if (!closed)
        QMessageBox::warning(this, title, text);
}

void MainWindow::plInform(const QString& title, const QString& text)
{
    if (!closed)
        QMessageBox::information(this, title, text);
}
