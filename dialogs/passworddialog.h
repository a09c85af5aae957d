#pragma once

#include <QDialog>
#include <QSharedPointer>
#include <QStringList>
#include <QTimer>

#include <optional>

class BrumaloggerInterface;

namespace Ui {
class PasswordDialog;
}

/// Asks for the password of a locked logger and tries it on the logger, which alone knows whether it is
/// right.
///
/// One dialog serves every logger in turn. Each showing asks the logger for its state and its texts ("x",
/// "G0", "G1", "G2"), before the dialog is on the screen, and each OK tries the password ("?"); what can't be
/// read keeps the labels as they were. After exec(), whose result tells nothing, look at lUnlocked() and
/// lState().
///
/// The exchanges spin the event loop. While one is under way an OK does nothing, and whatever else would
/// close the dialog closes it as soon as the exchange is over, and undoes the try.
class PasswordDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PasswordDialog(QWidget* parent);
    ~PasswordDialog() override;

    /// Without a device nothing is refreshed, and a try fails like one without an answer.
    void lSetDevice(const QSharedPointer<BrumaloggerInterface>& device);
    /// The logger's state as last read at a showing: 2 is IDLE, 16 FINISHED.
    int lState() const { return state; }
    /// The logger accepted the password at the last try since the last showing.
    bool lUnlocked() const { return unlocked; }

    /// QDialog::Accepted tries the password, and closes if it was right or if there was no answer; other
    /// results just close.
    void done(int result) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void plRefresh();
    bool plReadTexts(QStringList* texts);
    void plShowTexts(const QStringList& texts);
    void plToggleInfo(bool show);
    void plClosePutOff();
    void plClose(int result);
    void plUnlock();
    bool plTryPassword();
    void plWarn(const QString& text);

    Ui::PasswordDialog* ui;
    QSharedPointer<BrumaloggerInterface> device;
    int state = 0;
    bool unlocked = false;
    bool exchanging = false;
    QTimer putOffClosing;
    std::optional<int> putOffResult; ///< of a closing that waits for the end of the exchange
};
