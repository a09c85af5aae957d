// What any program of this toolkit pays to get a window on the screen.

#include "startwindow.h"

#include <QMainWindow>

int main(int argc, char** argv)
{
    return runUntilFirstPaint<QMainWindow>(argc, argv);
}
