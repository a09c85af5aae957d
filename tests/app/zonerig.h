#pragma once

#include "extendedrig.h"
#include "timerig.h"
#include "windowwords.h"

#include "dialogs/timezonedialog.h"

#include <QObject>
#include <QStringList>

#include <functional>

namespace ZoneWords {

const QString updating = QStringLiteral("Updating time and date settings.");
const QString disclaimer = QStringLiteral("Disclaimer");
const QString editor = QStringLiteral("Time Zone Editor");
const QString confirmation = QStringLiteral("Attention");
const QString datesWarning = QStringLiteral("Changing Time Zone setting");

void expectConfirmation(DialogRobot& robot, QMessageBox::StandardButton answer = QMessageBox::Ok);
void expectDatesWarning(DialogRobot& robot);

} // namespace ZoneWords

/// Multiuse loggers, which may have any time on their clocks, without automatic dates. The newer one has
/// extended firmware and is in the zone GMT+2:00.
LoggerModel olderLogger();
LoggerModel newerLogger();

/// The operator's hand in the dialogs: it accepts the disclaimer and cancels all others, unless it is told
/// otherwise.
class ZoneHand : public QObject
{
    Q_OBJECT

public:
    using Action = std::function<void(QDialog*)>;

    ZoneHand();

    /// What is done before the disclaimer is accepted.
    void atDisclaimer(const Action& action) { disclaimerAction = action; }
    /// What is done before the editor is cancelled, if it is still open then.
    void atEditor(const Action& action) { editorAction = action; }
    /// The titles of the dialogs so far.
    const QStringList& titles() const { return seen; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void use(QDialog* dialog);

    Action disclaimerAction;
    Action editorAction;
    QStringList seen;
};

/// A connected logger and a reference time, which is that of the computer and so many seconds.
class ZoneRig
{
public:
    explicit ZoneRig(const LoggerModel& model, int secondsAhead = 0);

    /// Clicks on the button behind the clock and returns when all that it set off is over.
    void press() const;
    enum class Warning { None, OfDates };
    /// Changes to the zone, or to the one that the editor proposes, and confirms that and the warning.
    void change(const QString& zone = QString(), Warning warning = Warning::None);
    static QString zoneIn(const QDialog* editor);
    static void choose(const QDialog* editor, const QString& zone);

    /// Asks the time servers once more. They will answer with the time @p secondsAhead of the computer's,
    /// but only when they are released.
    void askAgain(int secondsAhead = 0);
    /// Has them answer, and waits for what the window says then.
    void releaseUntil(const QString& status);
    /// Both in one. The exchanges of a connect move the computer's clock on faster than the window's clocks
    /// tick; behind this the reference time is up to date.
    void fetchTime(int secondsAhead = 0);

    /// All in the window that the choice of a zone changes, the clock's figures apart.
    QStringList choice() const;
    QDateTime shownTime() const;

    Servers servers;
    TimeRig rig;
    ZoneHand hand;

private:
    void waitForRequests(int count) const;
};
