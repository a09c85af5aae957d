#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

/// Ends the program once a window has been painted for the first time, and there: taking the window down is
/// not a part of the start.
class ExitAfterFirstPaint : public QObject
{
public:
    explicit ExitAfterFirstPaint(QWidget* window)
        : QObject(window)
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, this, [] { std::_Exit(EXIT_SUCCESS); });
        return QObject::eventFilter(watched, event);
    }
};

/// Shows a window of its own kind, and ends when it has been painted.
template<typename Window>
int runUntilFirstPaint(int argc, char** argv)
{
    const QApplication application(argc, argv);
    Window window;
    new ExitAfterFirstPaint(&window);
    window.show();
    return QApplication::exec();
}
