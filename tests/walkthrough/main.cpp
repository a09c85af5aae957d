// brumalogger-walkthrough basic|secure|save|apply: does a job in the tool's window by itself.

#include "basicwalk.h"
#include "presetwalk.h"
#include "securewalk.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    const QString job = QApplication::arguments().value(1);
    if (job == QStringLiteral("basic"))
        return BasicWalk().run();
    if (job == QStringLiteral("secure"))
        return SecureWalk().run();
    if (job == QStringLiteral("save"))
        return SavingWalk().run();
    if (job == QStringLiteral("apply"))
        return ApplyingWalk().run();
    std::fprintf(stderr, "Usage: brumalogger-walkthrough basic|secure|save|apply\n");
    return 2;
}
