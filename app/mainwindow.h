#pragma once

#include "dialogs/languagetable.h"
#include "time/timekeeper.h"

#include <QList>
#include <QMainWindow>
#include <QMessageBox>
#include <QPair>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

#include <vector>

class AdvancedOptionsDialog;
class BrumaloggerInterface;
class GuideDialog;
class PasswordDialog;
class PresetStorage;
class QComboBox;
class QDialog;
class QLabel;
class QLineEdit;
class QSpinBox;
class SettingsDialog;
class StepProgress;
class TimeManager;
class TimeZoneDialog;
class UpdateChecker;
enum class StepResult;

namespace Ui {
class MainWindow;
}

/// The program's only window: what the operator sees of a logger, and the procedures that talk to it.
///
/// Owns every long-lived object. Every exchange with the device spins the event loop and anything can arrive
/// meanwhile: read and write disable the controls first, and one procedure keeps all others out. One class
/// over several sources, one purpose each.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// The languages that the settings offer.
    void lSetLanguages(const LanguageTable& table);

public slots:
    // mainwindow_updates.cpp
    /// Offers version @p v, which is at @p u; without an address it is the maker's product page.
    void lUpdateAvailable(const QString& v, const QString& u);
    /// The same, and closes the window whatever the answer is.
    void lUpdateMandatory(const QString& v, const QString& u);

protected:
    /// Asks before unwritten changes are lost, then saves the settings and closes the link.
    void closeEvent(QCloseEvent* event) override;
    /// The first showing empties the panels, disables the controls and asks for a newer version.
    void showEvent(QShowEvent* event) override;

private slots:
    // mainwindow_connect.cpp
    void plConnect();

    // mainwindow_presets.cpp
    /// Asks for a file and saves what the window shows to it.
    void plSave();
    /// Asks for a file and loads it into the window.
    void plLoad();

    // mainwindow_read.cpp, mainwindow_write.cpp, mainwindow_start.cpp
    /// False when a step failed; a cancelled or declined read is true.
    bool plReadFromDevice();
    /// False when a step failed; a cancelled write is true.
    bool plWriteToDevice();
    void plStartLogger();

    // mainwindow_setup.cpp
    void plUpdateTempRange();
    void plUpdateSamplingTime();
    void plUpdateStartDelay();

    // mainwindow_display.cpp
    void plUpdateDateTime();

    // mainwindow_setup.cpp
    void plValidateTempRange();

    // mainwindow_zone.cpp
    void plProcessTimeZoneDialog();

    // mainwindow_extended.cpp
    void plProcessAdvancedOptionsDialog();

    // mainwindow_display.cpp
    void plProcessCustomLabelMenu(QLabel* label);

    // mainwindow.cpp
    /// Notes that the window differs from the device, or with @p set false that it doesn't.
    void plChangesOcurred(bool set = true);

    // mainwindow_display.cpp
    /// Applies the settings and asks for the reference time.
    void plSettingsAccepted();
    void plOnTimeManagerConnect();
    void plOnTimeManagerTimeout();

private:
    /// A free text on the logger with its line edit. The limit is its longest length in characters, and also
    /// the width to which the command that writes it is padded.
    struct TextSlot
    {
        QLineEdit* Ui::MainWindow::*edit;
        QLabel* Ui::MainWindow::*counter;
        int number;
        int limit;
    };

    static constexpr int versionMajor = 1;
    static constexpr int versionMinor = 3;
    static constexpr int versionPatch = 3;
    static constexpr int secondsPerMinute = 60;
    static constexpr int shipmentTypeSlot = 3; ///< holds a code of shipmentTypes
    static const TextSlot textSlots[4];        ///< in the order in which they are read and written

    struct PresetRow;
    using DateSetter = void (AdvancedOptionsDialog::*)(bool enabled, const QDateTime& date);

    // mainwindow.cpp
    void plConnectSignals();
    void plConnectChanges();
    void plConnectServices();
    void plSetUpButtons();
    void plRejectDialogs();
    /// Those that show a device's values, or would put others in their place.
    void plRejectDeviceDialogs();
    void plDisableControls(bool disabled);
    /// A question with Yes and No.
    QMessageBox::StandardButton plAsk(const QString& title, const QString& text);
    /// A warning with Ok. A closed window says nothing more, whatever is still under way in it.
    void plWarn(const QString& title, const QString& text);
    /// The same with a milder icon.
    void plInform(const QString& title, const QString& text);

    // mainwindow_display.cpp
    void plClearDeviceInfo();
    void plMakeRoom();
    void plFetchTime();
    /// The source of the reference time, for messages.
    QString plTimeSource() const;
    /// Shows the zone of the device's clock as far as it is known.
    void plUpdateTimeZoneLabel();
    /// Adopts the zone called @p name: the clock shows the reference time in it. Marks the clock as changed.
    void plSetTimeZone(const QString& name);
    void plShowTimeZone(bool shown);
    void plShowLastReset(bool shown);

    // mainwindow_setup.cpp
    void plFillLists();
    void plInsertLists();
    void plConnectCounters();
    void plShowMinutes(QComboBox* combo, QSpinBox* spin);
    void plChooseMinutes(QComboBox* combo, QSpinBox* spin, int seconds);
    void plSetSamplingTime(int seconds);
    void plSetStartDelay(int seconds);
    void plSetTempRange(float min, float max);
    void plSetShipmentType(const QString& type);
    void plUpdateTextCounter(QLineEdit* edit, QLabel* counter, int limit);
    /// Transliterates; see devicetext.h.
    QString plSanitizeDeviceText(const QString& text) const;

    // mainwindow_connect.cpp
    void plOpenConnection();
    void plCloseConnection();
    /// The way out of a procedure: disconnects unless the link is closed already.
    void plLeaveDevice();
    /// Disconnects from a device whose record of time can't be trusted.
    void plOnInvalidDevice();
    void plShowConnectButton();
    void plShowDisconnectButton();
    /// The key goes into %1 of @p toolTip.
    void plSetConnectButton(const QString& text, const QString& icon, const QString& toolTip);

    // mainwindow_presets.cpp
    void plLoadDefaultPreset();
    /// Spreads the file's values over the window, or says that it can't be read.
    void loadPresetFile(const QString& path);
    /// The window's values as they are now, each with its key.
    std::vector<PresetRow> plPresetRows();
    void plAdoptDate(const QString& enabled, const QString& dateKey, DateSetter setter);
    void plAdoptTimeZone(const QString& text);

    // mainwindow_read.cpp
    bool plRead();
    void plClearBeforeRead();
    [[nodiscard]] StepResult plReadSteps(StepProgress& progress);
    [[nodiscard]] StepResult plReadIdentity(StepProgress& progress);
    [[nodiscard]] StepResult plReadClock(StepProgress& progress);
    [[nodiscard]] StepResult plReadSetup(StepProgress& progress);
    int plReadTexts(StepProgress& progress);
    void plShowIdentification(const QString& name, const QString& firmware, const QString& hardware);
    void plShowType(bool multiuse);
    /// False when the read failed or the device is not valid. The link is kept only with all @p stepsDone.
    bool plFinishRead(StepProgress& progress, StepResult result, bool stepsDone);

    // mainwindow_write.cpp
    [[nodiscard]] StepResult plWriteSteps(StepProgress& progress);
    [[nodiscard]] StepResult plWriteParameters(StepProgress& progress);
    int plWriteTexts(StepProgress& progress);
    /// Shipment type and "k", with the bar running on from @p firstValue.
    [[nodiscard]] StepResult plWriteClosing(StepProgress& progress, int firstValue);
    void plFinishWrite(StepProgress& progress, bool succeeded);

    // mainwindow_start.cpp
    bool plMayStart();

    // mainwindow_extended.cpp
    /// False when the device doesn't say whether it is locked.
    bool plOpenLock();
    /// Sets the device to the computer's clock, which @p now takes.
    void plRepairClock(QDateTime* now);
    /// Policies, zone and automatic dates, with the bar running on from @p firstValue.
    [[nodiscard]] StepResult plReadOptions(StepProgress& progress, int firstValue);
    /// False when the device doesn't tell of its battery.
    bool plReadCondition();
    /// Nothing is sent, and nothing has failed, without a reference time.
    [[nodiscard]] StepResult plSynchroniseTime(StepProgress& progress);
    /// Policies, automatic dates and password, with the bar running on from @p firstValue.
    [[nodiscard]] StepResult plWriteOptions(StepProgress& progress, int firstValue);

    // mainwindow_zone.cpp
    /// True if the user accepted a zone for the device that is still there.
    bool plChooseTimeZone();
    /// Also true if there is nothing to show.
    bool plShowDisclaimer();
    void plWarnOfDatesInOtherZone();
    /// The window is open and the device in use, which a dialog's event loop may have changed.
    bool plDeviceStays() const;

    // mainwindow_updates.cpp
    void plShowAbout();
    /// Puts the versions into @p text and opens the address on Ok. False when the window is closed.
    bool plPrompt(const QString& title, const QString& text, const QString& version, const QString& url);

    Ui::MainWindow* ui;
    QSharedPointer<BrumaloggerInterface> device;
    QSharedPointer<SettingsDialog> settingsDialog;
    QSharedPointer<PresetStorage> presetStorage; ///< for all presets
    QSharedPointer<UpdateChecker> updateChecker;
    QSharedPointer<GuideDialog> guideDialog; ///< a window of its own
    QSharedPointer<TimeManager> timeManager;
    QSharedPointer<TimeZoneDialog> timeZoneDialog;
    QSharedPointer<PasswordDialog> passwordDialog;
    QSharedPointer<AdvancedOptionsDialog> advancedOptionsDialog; ///< also keeps what it shows
    static constexpr int maxReportTextLength = 60;
    static constexpr int maxBarcodeLength = 10;
    const QString fallbackDownloadUrl; ///< has no scheme
    const QString dateTimeDisplayFormat = QStringLiteral("hh:mm:ss dd/MMM/yyyy");
    const QString dateTimeShortFormat = QStringLiteral("hh:mm:ss dd/MM/yyyy"); ///< in preset files
    bool keepConnecting = false; ///< false once a connect under way is over and must say nothing more
    bool deviceLocked = false;   ///< the device's password lock is on and wasn't opened
    bool controlsDisabled = false;
    bool timeZoneFromDevice = false; ///< the zone last read from the device is in force
    QString connectKeyText;
    QString windowTitleBase = QStringLiteral("Brumalogger Configuration Tool");
    QString currentTimeZoneName;
    QString defaultTimeZoneName;
    QStringList sampleTimeLabels;
    QStringList tempRangeLabels;
    QStringList shipmentTypes;
    TimeKeeper timeKeeper;
    QList<QPair<float, float>> tempRanges;
    QList<int> sampleTimes;
    bool modified = false;
    /// Connect, read, write, start, the advanced options, the time zone or a preset; a click that arrives
    /// meanwhile is not obeyed.
    bool procedureRuns = false;
    QDialog* disclaimer = nullptr; ///< while it is open
    bool shownBefore = false;
    bool closed = false; ///< a procedure may still be under way then
};
