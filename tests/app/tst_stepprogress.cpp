// The steps of a procedure under their progress dialog: the order of things, the two ways to stop, the end.

#include "app/stepprogress.h"

#include <QProgressBar>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <memory>

class TestStepProgress : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void showsDialog();
    void judges_data();
    void judges();
    void walksInOrder();
    void walksStepsWithoutResult();
    void walksNoSteps();
    void stopsAtFailure();
    void stopsAtCancel();
    void failureGoesBeforeCancel();
    void noticesCancelAtTheNextStep();
    void runsOnAfterWalk();
    void finishes();
    void finishesAfterCancel();

private:
    Step step(const QString& name, bool succeeds = true);
    void pressCancel();

    std::unique_ptr<QWidget> window;
    std::unique_ptr<StepProgress> progress;
    QProgressDialog* dialog = nullptr;
    QStringList log; ///< what happened, in its order
};

void TestStepProgress::init()
{
    window = std::make_unique<QWidget>();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    progress = std::make_unique<StepProgress>(QStringLiteral("Reading from device"),
                                              QStringLiteral("The title"), window.get());
    dialog = window->findChild<QProgressDialog*>();
    QVERIFY(dialog);
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    log.clear();
    connect(dialog->findChild<QProgressBar*>(), &QProgressBar::valueChanged, this,
            [this](int value) { log << QStringLiteral("value %1").arg(value); });
}

void TestStepProgress::cleanup()
{
    progress.reset();
    window.reset();
}

Step TestStepProgress::step(const QString& name, bool succeeds)
{
    return {[this, name, succeeds] {
                log << QStringLiteral("run ") + name;
                return succeeds;
            },
            [this, name] { log << QStringLiteral("apply ") + name; }};
}

void TestStepProgress::pressCancel()
{
    QTest::mouseClick(dialog->findChild<QPushButton*>(), Qt::LeftButton);
}

void TestStepProgress::showsDialog()
{
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->labelText(), QStringLiteral("Reading from device"));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("The title"));
    QCOMPARE(dialog->parentWidget(), window.get());
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
    QCOMPARE(dialog->minimum(), 0);
    QCOMPARE(dialog->maximum(), 17);
    QCOMPARE(dialog->findChild<QPushButton*>()->text(), QStringLiteral("Cancel"));
    QVERIFY(!progress->wasCanceled());
}

void TestStepProgress::judges_data()
{
    QTest::addColumn<bool>("succeeded");
    QTest::addColumn<bool>("cancelled");
    QTest::addColumn<int>("expected");
    QTest::newRow("success") << true << false << int(StepResult::Done);
    QTest::newRow("failure") << false << false << int(StepResult::Failed);
    QTest::newRow("success and cancel") << true << true << int(StepResult::Cancelled);
    QTest::newRow("failure and cancel") << false << true << int(StepResult::Failed);
}

void TestStepProgress::judges()
{
    QFETCH(const bool, succeeded);
    QFETCH(const bool, cancelled);
    if (cancelled)
        pressCancel();
    QCOMPARE(progress->wasCanceled(), cancelled);
    QTEST(int(progress->judge(succeeded)), "expected");
    QCOMPARE(log, QStringList());
}

void TestStepProgress::walksInOrder()
{
    QVERIFY(progress->walk({step("a"), step("b"), step("c")}, 3) == StepResult::Done);
    QCOMPARE(log, QStringList({"run a", "value 3", "apply a", "run b", "value 4", "apply b", "run c",
                               "value 5", "apply c"}));
    QVERIFY(dialog->isVisible());
}

void TestStepProgress::walksStepsWithoutResult()
{
    Step bare = step("a");
    bare.apply = nullptr;
    QVERIFY(progress->walk({bare, step("b")}, 0) == StepResult::Done);
    QCOMPARE(log, QStringList({"run a", "value 0", "run b", "value 1", "apply b"}));
}

void TestStepProgress::walksNoSteps()
{
    QVERIFY(progress->walk({}, 5) == StepResult::Done);
    QCOMPARE(log, QStringList());
}

void TestStepProgress::stopsAtFailure()
{
    QVERIFY(progress->walk({step("a"), step("b", false), step("c")}, 1) == StepResult::Failed);
    QCOMPARE(log, QStringList({"run a", "value 1", "apply a", "run b"}));
    QCOMPARE(dialog->value(), 1);
}

void TestStepProgress::stopsAtCancel()
{
    Step cancelled = step("b");
    cancelled.run = [this] {
        log << "run b";
        pressCancel();
        return true;
    };
    QVERIFY(progress->walk({step("a"), cancelled, step("c")}, 1) == StepResult::Cancelled);
    QCOMPARE(log, QStringList({"run a", "value 1", "apply a", "run b"}));
}

void TestStepProgress::failureGoesBeforeCancel()
{
    Step both = step("a");
    both.run = [this] {
        pressCancel();
        return false;
    };
    QVERIFY(progress->walk({both, step("b")}, 0) == StepResult::Failed);
    QCOMPARE(log, QStringList());
}

// Nothing is torn out of a step: the command of the next one still goes out.
void TestStepProgress::noticesCancelAtTheNextStep()
{
    Step cancelled = step("a");
    cancelled.apply = [this] { pressCancel(); };
    QVERIFY(progress->walk({cancelled, step("b"), step("c")}, 0) == StepResult::Cancelled);
    QCOMPARE(log, QStringList({"run a", "value 0", "run b"}));
}

void TestStepProgress::runsOnAfterWalk()
{
    QVERIFY(progress->walk({step("a")}, 0) == StepResult::Done);
    progress->setValue(1);
    QVERIFY(progress->walk({step("b")}, 2) == StepResult::Done);
    QCOMPARE(log, QStringList({"run a", "value 0", "apply a", "value 1", "run b", "value 2", "apply b"}));
}

void TestStepProgress::finishes()
{
    QVERIFY(progress->walk({step("a")}, 0) == StepResult::Done);
    progress->finish();
    QCOMPARE(log, QStringList({"run a", "value 0", "apply a", "value 17"}));
    QVERIFY(!dialog->isVisible());
}

void TestStepProgress::finishesAfterCancel()
{
    QVERIFY(progress->walk({step("a")}, 0) == StepResult::Done);
    pressCancel();
    QVERIFY(progress->wasCanceled());
    progress->finish();
    QVERIFY(!dialog->isVisible());
}

QTEST_MAIN(TestStepProgress)
#include "tst_stepprogress.moc"
