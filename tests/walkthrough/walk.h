#pragma once

#include "app/mainwindow.h"
#include "support/dialogrobot.h"
#include "support/windowrig.h"

#include <QString>

/// A job done in the tool's window, with mouse and keyboard, as an operator would. Leaves a picture of every
/// stage in the current folder and says on the terminal what it has come to.
class Walk
{
public:
    virtual ~Walk() = default;
    /// Shows the window, waits for the reference time and does the job. 0 if the window said what it should
    /// at every stage, else 1.
    int run();

protected:
    virtual bool doJob() = 0;

    template<typename Widget>
    Widget* find(const char* name) const
    {
        return child<Widget>(window, name);
    }
    void press(const char* button) const;
    void pressKeys(Qt::Key keyWithControl);
    /// False if the status bar says something else than @p expected, or if a box was not as expected.
    bool check(const QString& stage, const QString& expected);
    bool fail(const QString& stage) const;
    QString status() const;
    static bool isOnScreen(const QWidget& dialog);
    static void takePicture(const QWidget& shown, const QString& name);

    MainWindow window;
    DialogRobot robot;
};

/// Selects all of @p line and types over it.
void typeOver(QLineEdit* line, const QString& text);
