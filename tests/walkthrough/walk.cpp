// What the walks share.

#include "walk.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTest>
#include <QWindow>

#include <cstdio>

namespace {

constexpr int timePatience = 30000; // milliseconds

} // namespace

int Walk::run()
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 1;
    const QString fetched =
        MainWindow::tr("Successfully fetched time and date from %1.").arg(QStringLiteral("time.google.com"));
    if (!QTest::qWaitFor([&] { return status() == fetched; }, timePatience))
        fail(QStringLiteral("time"));
    else if (doJob())
        return 0;
    return 1;
}

void Walk::press(const char* button) const
{
    QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton);
}

void Walk::pressKeys(Qt::Key keyWithControl)
{
    QApplication::setActiveWindow(&window); // there is no window manager to do it
    QTest::keyClick(&window, keyWithControl, Qt::ControlModifier);
}

bool Walk::check(const QString& stage, const QString& expected)
{
    takePicture(window, stage);
    if (status() != expected || !robot.problems().isEmpty())
        return fail(stage);
    std::printf("%s: %s\n", qPrintable(stage), qPrintable(expected));
    return true;
}

bool Walk::fail(const QString& stage) const
{
    std::fprintf(stderr, "%s: the status is \"%s\"\n%s\n", qPrintable(stage), qPrintable(status()),
                 qPrintable(robot.problems()));
    return false;
}

QString Walk::status() const
{
    return find<QStatusBar>("statusBar")->currentMessage();
}

bool Walk::isOnScreen(const QWidget& dialog)
{
    const QWindow* shown = dialog.windowHandle();
    return shown && shown->isVisible() && shown->isExposed();
}

void Walk::takePicture(const QWidget& shown, const QString& name)
{
    QCoreApplication::processEvents();
    QGuiApplication::primaryScreen()->grabWindow(shown.winId()).save(name + QStringLiteral(".png"));
}

void typeOver(QLineEdit* line, const QString& text)
{
    line->setFocus();
    line->selectAll();
    for (const QChar letter : text) // keyClicks() knows no letters beyond ASCII
        QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, QString(letter), Qt::NoModifier);
}
