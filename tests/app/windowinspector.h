#pragma once

#include <QDialog>
#include <QMap>
#include <QObject>
#include <QStringList>

#include <functional>

/// Looks at every dialog and box that the program opens, as soon as it is on show, whether its texts have the
/// room that they need (see roomProblems()), and closes it: boxes by their answer Ok or Yes, dialogs by
/// Cancel unless it is told what to do there. A progress dialog is left alone.
class WindowInspector : public QObject
{
    Q_OBJECT

public:
    using Action = std::function<void(QDialog*)>;

    WindowInspector();

    /// Looks at @p window as it is now.
    void inspect(const QWidget& window);
    /// The same with one that has grown by itself as far as the screen goes, and gets the rest for the look.
    void inspectGrown(QWidget* window);
    /// What is done in a dialog of that title once it was looked at.
    void at(const QString& title, const Action& action) { actions.insert(title, action); }
    /// The titles of all that was looked at, in their order.
    const QStringList& titles() const { return seen; }
    /// What was found, a line each, with its window.
    QString problems() const { return found.join(QLatin1Char('\n')); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void visit(QDialog* dialog);

    QMap<QString, Action> actions;
    QStringList seen;
    QStringList found;
};
