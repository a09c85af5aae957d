// A rig for all that can happen to a read, as part of a connect and on its own.

#include "readingrig.h"

#include <QTest>

ReadingRig::ReadingRig(bool connecting, const LoggerModel& model, const QList<QByteArray>& commands)
    : connecting(connecting)
    , commands(commands)
{
    plug(model);
    if (connecting)
        return;
    press("buttonConnect");
    logger->clearExchanges();
    takeStatusLog();
}

QList<QByteArray> ReadingRig::commandsUpTo(int command) const
{
    return connecting ? QList<QByteArray>{"i"} + firstOf(commands, command) : firstOf(commands, command);
}

QStringList ReadingRig::statusesOfLostRead(const QString& ending) const
{
    QStringList read{QStringLiteral("Reading from device on ttyACM0"), ending,
                     QStringLiteral("Disconnected from ttyACM0")};
    if (!connecting)
        return read;
    return QStringList{QStringLiteral("Connecting to device... ")} + read +
           QStringList{QStringLiteral("Connected to device on ttyACM0")};
}

WindowState ReadingRig::readState() const
{
    return connecting ? connected() : idle(QStringLiteral("Read successful"), false);
}

void ReadingRig::expectFailure()
{
    WindowWords::expectReadFailed(robot);
    if (connecting)
        WindowWords::expectReadIncorrect(robot);
}

void addReadingRows(const QList<QByteArray>& commands, const QList<QByteArray>& wanted, int skipped)
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("connecting");
    for (int number = skipped + 1; number <= commands.size(); ++number) {
        const QByteArray command = commands.at(number - 1);
        if (!wanted.contains(command))
            continue;
        QTest::addRow("%d %s in a connect", number, command.constData()) << command << number << true;
        QTest::addRow("%d %s in a read", number, command.constData()) << command << number << false;
    }
}
