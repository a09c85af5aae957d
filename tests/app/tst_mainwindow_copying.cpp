// Copying a label of the device panel by its context menu.

#include "procedurerig.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <utility>

namespace {

void choose(QMenu* menu)
{
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
}

void leave(QMenu* menu)
{
    QTest::keyClick(menu, Qt::Key_Escape);
}

/// Answers menus: takes down what they offer, then does with them what it was told.
class MenuRobot : public QObject
{
    Q_OBJECT

public:
    explicit MenuRobot(std::function<void(QMenu* menu)> answer)
        : answerMenu(std::move(answer))
    {
        timer.setSingleShot(true);
        connect(&timer, &QTimer::timeout, this, &MenuRobot::answer);
        qApp->installEventFilter(this);
    }
    QStringList offered;
    QList<QPoint> positions;
    QList<QWidget*> parents;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* menu = event->type() == QEvent::Show ? qobject_cast<QMenu*>(watched) : nullptr;
        if (menu) {
            open = menu;
            timer.start(0); // its own event loop isn't running yet
        }
        return false;
    }

private:
    void answer()
    {
        for (const QAction* action : open->actions())
            offered << action->text();
        positions << open->pos();
        parents << open->parentWidget();
        answerMenu(open);
    }

    std::function<void(QMenu*)> answerMenu;
    QMenu* open = nullptr;
    QTimer timer;
};

void rightClick(WindowRig& rig, QWidget* widget)
{
    QTest::mouseClick(rig.window.windowHandle(), Qt::RightButton, {},
                      widget->mapTo(&rig.window, widget->rect().center()));
}

} // namespace

class TestMainWindowCopying : public QObject
{
    Q_OBJECT

private slots:
    void copiesLabelsAsShown_data();
    void copiesLabelsAsShown();
    void copiesWhatWasRead();
    void leavingTheMenuCopiesNothing();
    void closingTheWindowEndsTheMenu();
};

void TestMainWindowCopying::copiesLabelsAsShown_data()
{
    QTest::addColumn<QString>("expected");
    for (const char* name :
         {"labelSerial", "labelFirmwareVersion", "labelDeviceName", "labelHardwareRevision", "labelType"})
        QTest::newRow(name) << " - ";
    QTest::newRow("labelLastReset") << "-";
}

void TestMainWindowCopying::copiesLabelsAsShown()
{
    ProcedureRig rig;
    auto* label = rig.find<QLabel>(QTest::currentDataTag());
    label->show(); // labelLastReset isn't to be seen yet
    QCoreApplication::processEvents();
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    QCursor::setPos(rig.window.mapToGlobal(QPoint(300, 200)));

    const MenuRobot menus(choose);
    rightClick(rig, label);
    QCOMPARE(menus.offered, QStringList("Copy as text..."));
    QCOMPARE(menus.parents, QList<QWidget*>({&rig.window}));
    QCOMPARE(menus.positions, QList<QPoint>({QCursor::pos()}));
    QTEST(QGuiApplication::clipboard()->text(), "expected");
}

void TestMainWindowCopying::copiesWhatWasRead()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    const MenuRobot menus(choose);
    for (const auto& [name, text] :
         {std::pair("labelDeviceName", "Brumalogger USB"), std::pair("labelFirmwareVersion", "1.1.9"),
          std::pair("labelSerial", "BL-0042"), std::pair("labelHardwareRevision", "2.4"),
          std::pair("labelType", "Single-use")}) {
        rightClick(rig, rig.find<QLabel>(name));
        QCOMPARE(QGuiApplication::clipboard()->text(), QString::fromLatin1(text));
    }
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowCopying::leavingTheMenuCopiesNothing()
{
    ProcedureRig rig;
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    const MenuRobot menus(leave);
    rightClick(rig, rig.find<QLabel>("labelType"));
    QCOMPARE(menus.offered.size(), 1);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
}

void TestMainWindowCopying::closingTheWindowEndsTheMenu()
{
    ProcedureRig rig;
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    const MenuRobot menus([&rig](QMenu*) { rig.window.close(); });
    rightClick(rig, rig.find<QLabel>("labelType"));
    QCOMPARE(menus.offered.size(), 1);
    QCOMPARE(rig.window.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly), QList<QMenu*>());
    QVERIFY(!rig.window.isVisible());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
}

QTEST_MAIN(TestMainWindowCopying)
#include "tst_mainwindow_copying.moc"
