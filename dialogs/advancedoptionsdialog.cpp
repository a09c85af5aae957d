// Advanced options: the store of the values and the controls that show them.

#include "dialogs/advancedoptionsdialog.h"

#include "device/brumaloggerinterface.h"
#include "ui_advancedoptionsdialog.h"

#include <QDebug>
#include <QLayout>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QShowEvent>
#include <QVector>

namespace {

constexpr int startProposal = 6 * 60 * 60;
constexpr int stopProposal = 24 * 60 * 60;

/// Newer firmware than this lets the logger be reset only after somebody has seen the reports.
constexpr int resetAfterStopFirmware = 1002000;

constexpr int policyNone = 0;

struct PolicyControl
{
    int policy;
    QAbstractButton* control;
};

/// The choice without a flag stands before those that exclude it, and so holds unless one of them is set.
QVector<PolicyControl> policyControls(const Ui::AdvancedOptionsDialog& ui)
{
    return {
        {PolicyConfigPassw, ui.checkConfigPassw}, {policyNone, ui.radioPasswNone},
        {PolicyPasswOnce, ui.radioPasswOnce},     {PolicyPasswAlways, ui.radioPasswAlways},
        {PolicyStartButton, ui.checkStartButton}, {PolicyStartSoftware, ui.checkStartSoftware},
        {PolicyStopButton, ui.checkStopButton},   {PolicyStopUSBAttach, ui.checkStopUSBAttach},
        {policyNone, ui.radioResetAlways},        {PolicyResetDone, ui.radioResetDone},
    };
}

QDateTime keptDate(bool enabled, const QDateTime& date, int timeZoneOffset, int proposal)
{
    if (enabled)
        return {date.date(), date.time(), Qt::UTC};
    return QDateTime::currentDateTime().addSecs(timeZoneOffset).addSecs(proposal).toUTC();
}

void handOut(bool storedEnabled, const QDateTime& storedDate, bool* enabled, QDateTime* date)
{
    *enabled = storedEnabled;
    if (!storedEnabled)
        return;
    date->setOffsetFromUtc(0);
    date->setSecsSinceEpoch(storedDate.toSecsSinceEpoch());
}

} // namespace

AdvancedOptionsDialog::AdvancedOptionsDialog(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::AdvancedOptionsDialog)
    , policies(PolicyStartButton | PolicyStartSoftware | PolicyStopButton)
    , timeZoneName(QStringLiteral("GMT"))
    , startDate(QDateTime::currentDateTime())
    , stopDate(QDateTime::currentDateTime())
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    putOffClosing.setSingleShot(true);
    connect(&putOffClosing, &QTimer::timeout, this, &QDialog::reject);
    plConnectSignals();
}

AdvancedOptionsDialog::~AdvancedOptionsDialog()
{
    delete ui;
}

void AdvancedOptionsDialog::plConnectSignals()
{
    using Dialog = AdvancedOptionsDialog;
    connect(ui->buttonShow, &QPushButton::pressed, ui->linePassw,
            [field = ui->linePassw] { field->setEchoMode(QLineEdit::Normal); });
    connect(ui->buttonShow, &QPushButton::released, ui->linePassw,
            [field = ui->linePassw] { field->setEchoMode(QLineEdit::Password); });
    connect(ui->linePassw, &QLineEdit::textChanged, this, &Dialog::plCheckForPasswTruncation);
    for (const QAbstractButton* option : std::initializer_list<QAbstractButton*>{
             ui->checkConfigPassw, ui->radioPasswAlways, ui->radioPasswOnce, ui->radioPasswNone})
        connect(option, &QAbstractButton::toggled, this, &Dialog::plCheckIfPasswFieldEnabled);
    for (const QAbstractButton* option : std::initializer_list<QAbstractButton*>{
             ui->radioPasswOnce, ui->radioPasswAlways, ui->checkConfigPassw})
        connect(option, &QAbstractButton::clicked, this, &Dialog::plShowPasswordDisclaimer);
    connect(ui->toolStartDate, &QToolButton::clicked, this, &Dialog::plSelectStartDate);
    connect(ui->toolStopDate, &QToolButton::clicked, this, &Dialog::plSelectStopDate);
    for (const QCheckBox* dateOn : {ui->checkStartDate, ui->checkStopDate})
        connect(dateOn, &QCheckBox::clicked, this, &Dialog::plUpdateDateTimeDisplays);
    connect(ui->checkConfigPassw, &QCheckBox::clicked, ui->labelChangesEffect, &QLabel::show);
}

void AdvancedOptionsDialog::lSetStartDate(bool enabled, const QDateTime& date)
{
    startEnabled = enabled;
    startDate = keptDate(enabled, date, timeZoneOffset, startProposal);
}

void AdvancedOptionsDialog::lSetStopDate(bool enabled, const QDateTime& date)
{
    stopEnabled = enabled;
    stopDate = keptDate(enabled, date, timeZoneOffset, stopProposal);
}

void AdvancedOptionsDialog::lStartDate(bool* enabled, QDateTime* date) const
{
    handOut(startEnabled, startDate, enabled, date);
}

void AdvancedOptionsDialog::lStopDate(bool* enabled, QDateTime* date) const
{
    handOut(stopEnabled, stopDate, enabled, date);
}

// The base class puts the dialog into the middle of its parent: at first for the warning of a password that
// is too long, which goes by the dialog's place, and once more when the dialog has its new size. Coming back
// from being minimised is no opening: what was edited stays.
void AdvancedOptionsDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    plFillControls();
    plFitSize();
    QDialog::showEvent(event);
    if (closingPutOff)
        putOffClosing.start(0);
    closingPutOff = false;
}

void AdvancedOptionsDialog::plFillControls()
{
    const QScopedValueRollback<bool> guard(filling, true);
    qDebug() << "Current policies:" << policies;
    ui->labelChangesEffect->hide();
    plShowPassword();
    ui->groupMultiuse->setEnabled(multiuse);
    ui->checkStartDate->setChecked(startEnabled);
    ui->checkStopDate->setChecked(stopEnabled);
    plNameResetByFirmware();
    plShowPolicies();
    plCheckIfPasswFieldEnabled();
    plUpdateDateTimeDisplays();
}

// The dialog's layout goes by what those of the groups say, so they come first.
void AdvancedOptionsDialog::plFitSize()
{
    for (const QGroupBox* group : {ui->groupBox, ui->groupBox_2, ui->groupMultiuse})
        group->layout()->activate();
    layout()->activate();
}

// A password that is too long for the field is cut here, with a warning; the store keeps the whole.
void AdvancedOptionsDialog::plShowPassword()
{
    ui->linePassw->setEchoMode(QLineEdit::Password);
    ui->linePassw->setText(password);
}

// A device of older firmware that comes later keeps this wording.
void AdvancedOptionsDialog::plNameResetByFirmware()
{
    if (firmwareCode <= resetAfterStopFirmware)
        return;
    ui->radioResetDone->setText(tr("Allow device RESET only after reports are generated"));
    ui->radioResetDone->setToolTip(tr(
        "<html><head/><body><p>A Multiuse device can be RESET <span style=\"font-weight:600;\">only</span> "
        "in the DONE state (i.e., after measurements have been stopped) after viewing the reports at least "
        "once.</p></body></html>"));
}

void AdvancedOptionsDialog::plShowPolicies()
{
    for (const PolicyControl& row : policyControls(*ui))
        row.control->setChecked(row.policy == policyNone || (policies & row.policy));
    ui->checkLockButton->setChecked(buttonLock);
}

void AdvancedOptionsDialog::plTakeControls()
{
    for (const PolicyControl& row : policyControls(*ui))
        policies = row.control->isChecked() ? policies | row.policy : policies & ~row.policy;
    if (ui->linePassw->isEnabled())
        password = ui->linePassw->text();
    buttonLock = ui->checkLockButton->isChecked();
}

bool AdvancedOptionsDialog::plIsPasswordDemanded() const
{
    return ui->radioPasswAlways->isChecked() || ui->radioPasswOnce->isChecked() ||
           ui->checkConfigPassw->isChecked();
}

void AdvancedOptionsDialog::plCheckIfPasswFieldEnabled()
{
    const bool demanded = plIsPasswordDemanded();
    ui->linePassw->setEnabled(demanded);
    ui->buttonShow->setEnabled(demanded);
}

void AdvancedOptionsDialog::plCheckForPasswTruncation()
{
    const QString text = ui->linePassw->text();
    if (text.size() <= maxPasswordLength)
        return;
    QMessageBox::warning(this, tr("Password too long"),
                         tr("Password may not be larger than %1 characters.\nYour input was truncated.")
                             .arg(maxPasswordLength));
    ui->linePassw->setText(text.left(maxPasswordLength));
}

// Not only when an option is switched on: the message comes as long as any is on after the click.
void AdvancedOptionsDialog::plShowPasswordDisclaimer()
{
    if (!plIsPasswordDemanded())
        return;
    QMessageBox::warning(
        this, tr("Attention"),
        tr("<p>Once a device is password protected, it can only be unlocked with the <b>Brumalogger "
           "Configuration Tool</b>.<br>Ensure that the customer receiving the logger can install and use "
           "this "
           "software before shipping a locked <b>Brumalogger USB</b>.<br>Furthermore, note that it is <b>not "
           "possible</b> to recover or restore the password of a locked device.</p>"));
}

void AdvancedOptionsDialog::plUpdateDateTimeDisplays()
{
    startEnabled = ui->checkStartDate->isChecked();
    stopEnabled = ui->checkStopDate->isChecked();
    ui->checkStartDate->setText(tr("START automatically on: ") + plDateText(startEnabled, startDate));
    ui->checkStopDate->setText(tr("STOP automatically on: ") + plDateText(stopEnabled, stopDate));
    ui->toolStartDate->setEnabled(startEnabled);
    ui->toolStopDate->setEnabled(stopEnabled);
}

QString AdvancedOptionsDialog::plDateText(bool enabled, const QDateTime& date) const
{
    if (!enabled)
        return QStringLiteral(" - ");
    return date.toString(QStringLiteral("hh:mm dd/MMM/yyyy")) + QStringLiteral(" (") + timeZoneName +
           QLatin1Char(')');
}
