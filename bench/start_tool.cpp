// The tool's start, up to the first paint of its window.

#include "app/mainwindow.h"
#include "startwindow.h"

int main(int argc, char** argv)
{
    return runUntilFirstPaint<MainWindow>(argc, argv);
}
