#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

/// Ends the program once a window has been painted for the first time.
class QuitAfterFirstPaint : public QObject
{
public:
    explicit QuitAfterFirstPaint(QWidget* window)
        : QObject(window)
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return QObject::eventFilter(watched, event);
    }
};

/// Shows a window of its own kind, and ends when it has been painted.
template<typename Window>
int runUntilFirstPaint(int argc, char** argv)
{
    const QApplication application(argc, argv);
    Window window;
    new QuitAfterFirstPaint(&window);
    window.show();
    return QApplication::exec();
}
