// What any program of this toolkit pays to get a window of the tool's size on the screen.

#include "startwindow.h"

#include <QMainWindow>

namespace {

class EmptyWindow : public QMainWindow
{
public:
    EmptyWindow() { resize(850, 789); }
};

} // namespace

int main(int argc, char** argv)
{
    return runUntilFirstPaint<EmptyWindow>(argc, argv);
}
