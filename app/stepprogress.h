#pragma once

#include <QProgressDialog>

#include <functional>
#include <vector>

/// How a step of a device procedure, or the whole procedure, ended.
enum class StepResult { Done, Failed, Cancelled };

/// One regular step: a command to the device, and what becomes of its answer.
struct Step
{
    std::function<bool()> run;
    std::function<void()> apply = {};
};

/// The progress dialog of a device procedure and the rule by which its steps follow each other: run the
/// command; false is a failure; then the user may have cancelled; only then the bar moves and the answer is
/// applied.
class StepProgress
{
public:
    /// Shows the dialog, modal for the window @p parent.
    StepProgress(const QString& label, const QString& title, QWidget* parent);

    /// Judges a command that @p succeeded or not.
    [[nodiscard]] StepResult judge(bool succeeded) const;
    /// Walks @p steps up to the first that isn't done; the bar runs on from @p firstValue.
    [[nodiscard]] StepResult walk(const std::vector<Step>& steps, int firstValue);

    void setValue(int value) { dialog.setValue(value); }
    /// The bar shows @p count values one after the other, from @p firstValue on.
    void passThrough(int firstValue, int count);
    bool wasCanceled() const { return dialog.wasCanceled(); }
    /// Fills the bar and closes the dialog. Closing counts as cancelling, so ask wasCanceled() before.
    void finish();

private:
    QProgressDialog dialog;
};
