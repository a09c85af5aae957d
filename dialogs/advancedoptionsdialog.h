#pragma once

#include <QDateTime>
#include <QDialog>
#include <QString>
#include <QTimer>

namespace Ui {
class AdvancedOptionsDialog;
}

/// The dialog of the logger's security and of how it starts and stops, and the store of these values between
/// a read or a loaded preset and a write or a saved one.
///
/// Its controls are filled from the store at every showing; accepting takes them back, unless a rule refuses.
/// The automatic dates and whether they are on don't wait for that: they follow the controls at once, and
/// Cancel doesn't undo it.
///
/// The dates are the figures on the device's clock, as a UTC date-time. The true instant is lTimeZoneOffset()
/// seconds before.
class AdvancedOptionsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AdvancedOptionsDialog(QWidget* parent = nullptr);
    ~AdvancedOptionsDialog() override;

    /// Flags of DevicePolicy; bits without a control are kept as they came.
    int lPolicies() const { return policies; }
    void lSetPolicies(const int& policies) { this->policies = policies; }
    /// Empty if unknown; the device never tells it.
    QString lPassword() const { return password; }
    void lSetPassword(const QString& password) { this->password = password; }
    /// True when the device's button can't change its settings.
    bool lButtonLock() const { return buttonLock; }
    void lSetButtonLock(bool lock) { buttonLock = lock; }
    /// Shown beside the dates.
    QString lTimeZoneName() const { return timeZoneName; }
    void lSetTimeZoneName(const QString& name) { timeZoneName = name; }
    /// Of the device's clock; seconds east of UTC.
    int lTimeZoneOffset() const { return timeZoneOffset; }
    void lSetTimeZoneOffset(int seconds) { timeZoneOffset = seconds; }
    /// As BrumaloggerInterface::lFirmwareCode() gives it.
    void lSetFirmwareCode(int code) { firmwareCode = code; }
    /// Only a Multiuse device can be reset.
    void lSetMultiuse(bool multiuse) { this->multiuse = multiuse; }

    /// The device starts by itself.
    bool lStartEnabled() const { return startEnabled; }
    /// The device stops by itself.
    bool lStopEnabled() const { return stopEnabled; }
    /// Keeps the figures of @p date, whatever its time spec. When not @p enabled, @p date is ignored and the
    /// device's time in 6 hours is kept as a proposal.
    void lSetStartDate(bool enabled, const QDateTime& date);
    /// Like lSetStartDate(); the proposal is 24 hours ahead.
    void lSetStopDate(bool enabled, const QDateTime& date);
    /// @p date, in whole seconds, is touched only if @p enabled. No null.
    void lStartDate(bool* enabled, QDateTime* date) const;
    /// Like lStartDate().
    void lStopDate(bool* enabled, QDateTime* date) const;

    /// The automatic dates that are on make sense now. Tells the user if not, but only while the dialog is
    /// visible.
    bool lValidateDates();

    /// Accepting is refused, and the dialog stays open, as long as a rule is broken.
    void done(int result) override;

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void plCheckForPasswTruncation();
    void plCheckIfPasswFieldEnabled();
    void plShowPasswordDisclaimer();
    void plSelectStartDate();
    void plSelectStopDate();
    /// Stores whether the dates are on, too.
    void plUpdateDateTimeDisplays();

private:
    // Construction and showing
    void plConnectSignals();
    void plFitSize();
    void plFillControls();
    void plShowPassword();
    void plNameResetByFirmware();
    void plShowPolicies();
    bool plIsPasswordDemanded() const;
    QString plDateText(bool enabled, const QDateTime& date) const;
    /// True, and @p date new, if the user accepted; otherwise @p date is left alone.
    bool plPickDateTime(QDateTime* date, const QString& title);

    // Rules
    bool plCheckPassword();
    bool plCheckPolicies();
    qint64 plSecondsUntil(const QDateTime& date) const;
    bool plCheckDistance(qint64 seconds, int minutes, const QString& title, const QString& text);
    /// False, for the rule that refuses.
    bool plRefuse(const QString& title, const QString& text);
    void plTakeControls();

    Ui::AdvancedOptionsDialog* ui;
    const int maxPasswordLength = 30; ///< characters
    int policies;
    QString password;
    QString timeZoneName;
    int timeZoneOffset = 0;
    int firmwareCode = 0;
    bool buttonLock = false;
    QDateTime startDate;
    QDateTime stopDate;
    bool startEnabled = false;
    bool stopEnabled = false;
    bool multiuse = false;
    bool filling = false;       ///< the warning of a long password may be open meanwhile
    bool closingPutOff = false; ///< until the dialog is on the screen
    QTimer putOffClosing;
};
