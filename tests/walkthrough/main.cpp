// brumalogger-walkthrough basic|secure: does a job in the tool's window by itself.

#include "basicwalk.h"
#include "securewalk.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QString job = QApplication::arguments().value(1);
    if (job == QStringLiteral("basic"))
        return BasicWalk().run();
    if (job == QStringLiteral("secure"))
        return SecureWalk().run();
    std::fprintf(stderr, "Usage: brumalogger-walkthrough basic|secure\n");
    return 2;
}
