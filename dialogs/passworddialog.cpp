// The unlocking of a logger: what it says of itself, and the password tried on it.

#include "dialogs/passworddialog.h"

#include "device/brumaloggerinterface.h"
#include "ui_passworddialog.h"

#include <QMessageBox>
#include <QScopedValueRollback>
#include <QShowEvent>

namespace {

const QString nothingToShow = QStringLiteral(" - ");

struct TextLabel
{
    unsigned int slot;
    QLabel* Ui::PasswordDialog::*label;
};

constexpr TextLabel textLabels[] = {
    {0, &Ui::PasswordDialog::labelSender},
    {1, &Ui::PasswordDialog::labelRecipient},
    {2, &Ui::PasswordDialog::labelInformation},
};

struct StateNotice
{
    int state;
    const char* text;
};

constexpr StateNotice stateNotices[] = {
    {2, QT_TRANSLATE_NOOP("PasswordDialog", "The device is in the IDLE state.\n"
                                            "After unlocking, it will be configurable with this tool.")},
    {16,
     QT_TRANSLATE_NOOP("PasswordDialog", "The device is in the FINISHED state.\n"
                                         "After unlocking, the measurement reports will become available.")},
};

QString noticeFor(int state)
{
    for (const StateNotice& notice : stateNotices) {
        if (notice.state == state)
            return PasswordDialog::tr(notice.text);
    }
    return nothingToShow;
}

} // namespace

PasswordDialog::PasswordDialog(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::PasswordDialog)
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    ui->groupInfo->hide();
    connect(ui->buttonToggleInfo, &QPushButton::clicked, this,
            [this] { plToggleInfo(ui->groupInfo->isHidden()); });
    putOffClosing.setSingleShot(true);
    connect(&putOffClosing, &QTimer::timeout, this, &PasswordDialog::plClosePutOff);
    // The window grows and shrinks with the group.
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

PasswordDialog::~PasswordDialog()
{
    delete ui;
}

void PasswordDialog::lSetDevice(const QSharedPointer<BrumaloggerInterface>& device)
{
    this->device = device;
}

// The base class puts the dialog into the middle of its parent, so it has to have its new size by then.
// Coming back from being minimised is no opening: what was typed stays, and nothing is asked.
void PasswordDialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) {
        plRefresh();
        layout()->activate();
    }
    QDialog::showEvent(event);
}

void PasswordDialog::plRefresh()
{
    unlocked = false;
    if (!device)
        return;
    ui->linePassw->clear();
    plToggleInfo(false);

    QStringList texts;
    {
        const QScopedValueRollback<bool> guard(exchanging, true);
        if (device->lGetState(&state) && plReadTexts(&texts))
            plShowTexts(texts);
    }
    // Hidden before it is on the screen, a dialog would get there all the same, and never leave it.
    if (putOffResult)
        putOffClosing.start(0);
}

void PasswordDialog::plClosePutOff()
{
    if (putOffResult)
        done(*putOffResult);
}

bool PasswordDialog::plReadTexts(QStringList* texts)
{
    for (const TextLabel& row : textLabels) {
        QString text;
        if (!device->lGetText(row.slot, &text))
            return false;
        texts->append(text);
    }
    return true;
}

void PasswordDialog::plShowTexts(const QStringList& texts)
{
    auto text = texts.cbegin();
    for (const TextLabel& row : textLabels) {
        (ui->*row.label)->setText(text->trimmed().isEmpty() ? nothingToShow : *text);
        ++text;
    }
    ui->labelState->setText(noticeFor(state));
}

void PasswordDialog::plToggleInfo(bool show)
{
    ui->groupInfo->setVisible(show);
    ui->buttonToggleInfo->setText(show ? tr("Less...") : tr("More..."));
}

void PasswordDialog::done(int result)
{
    if (exchanging) {
        if (result != QDialog::Accepted)
            putOffResult = result;
        return;
    }
    if (result == QDialog::Accepted)
        plUnlock();
    else
        plClose(result);
}

void PasswordDialog::plClose(int result)
{
    unlocked = false;
    putOffResult.reset();
    QDialog::done(result);
}

// Without an answer both warnings are shown, the second one when the dialog has closed; not so if it was
// closed from outside together with the first one.
void PasswordDialog::plUnlock()
{
    unlocked = false;
    const bool answered = plTryPassword();
    if (putOffResult) {
        plClose(*putOffResult);
        return;
    }
    if (!answered) {
        plWarn(tr("Failed while trying to unlock device."));
        if (!isVisible())
            return;
        QDialog::done(QDialog::Accepted);
    }
    if (unlocked) {
        QDialog::done(QDialog::Accepted);
        return;
    }
    plWarn(tr("Incorrect password."));
    ui->linePassw->clear();
}

bool PasswordDialog::plTryPassword()
{
    const QScopedValueRollback<bool> guard(exchanging, true);
    return device && device->lTryPassword(ui->linePassw->text(), &unlocked);
}

void PasswordDialog::plWarn(const QString& text)
{
    QMessageBox::warning(this, tr("Unlock device"), text);
}
