// The catalogue of commands, second half: text slots, password, policies and automatic dates.

#include "device/brumaloggerinterface.h"

#include <QDebug>

namespace {

constexpr unsigned int lastTextSlot = 4;
constexpr int maxPasswordLength = 30;

QString fittingPassword(const QString& password)
{
    if (password.size() > maxPasswordLength)
        qDebug() << "Truncating password!";
    return password.left(maxPasswordLength);
}

} // namespace

bool BrumaloggerInterface::lGetText(unsigned int slot, QString* text)
{
    if (slot > lastTextSlot)
        return false;
    if (!plExchange(QString::asprintf("G%1d", static_cast<int>(slot))))
        return false;
    texts.insert(slot, reply);
    if (text)
        *text = reply;
    return true;
}

// The width counts the two characters of the command as well.
bool BrumaloggerInterface::lSetText(int slot, const QString& text, int width)
{
    const QString command = QString::asprintf("S%1d", slot) + text;
    return plExchangeForOk(command.leftJustified(width));
}

bool BrumaloggerInterface::lGetLocked(bool* locked)
{
    int lock = 0;
    if (!plExchangeForNumber(QStringLiteral("#"), &lock))
        return false;
    *locked = lock != 0;
    qDebug() << "Device is" << (*locked ? "locked." : "unlocked.");
    return true;
}

bool BrumaloggerInterface::lTryPassword(const QString& password, bool* accepted)
{
    if (!plExchangeForReply(QLatin1Char('?') + fittingPassword(password)))
        return false;
    *accepted = reply == QLatin1String("ok");
    return true;
}

bool BrumaloggerInterface::lSetPassword(const QString& password)
{
    return plExchangeForOk(QLatin1Char('!') + fittingPassword(password));
}

// A reply that is no number leaves a word of 0 behind, not the old one.
bool BrumaloggerInterface::lGetPolicies(int* policies)
{
    if (!plExchangeForReply(QStringLiteral("Go")))
        return false;
    bool converted = false;
    this->policies = reply.toInt(&converted);
    if (!converted)
        return false;
    if (policies)
        *policies = this->policies;
    qDebug() << "Brumalogger current policies:" << this->policies;
    return true;
}

bool BrumaloggerInterface::lSetPolicies(quint16 policies)
{
    qDebug() << "Writing policies:" << policies;
    return plExchangeForOk(QString::asprintf("So%06d", policies));
}

bool BrumaloggerInterface::lGetStartDate(bool* enabled, QDateTime* date)
{
    return plGetDate(QStringLiteral("Ga"), enabled, date);
}

bool BrumaloggerInterface::lGetStopDate(bool* enabled, QDateTime* date)
{
    return plGetDate(QStringLiteral("Gp"), enabled, date);
}

bool BrumaloggerInterface::lSetStartDate(bool enabled, const QDateTime& date)
{
    return plSetDate("Sa", enabled, date);
}

bool BrumaloggerInterface::lSetStopDate(bool enabled, const QDateTime& date)
{
    return plSetDate("Sp", enabled, date);
}

bool BrumaloggerInterface::plGetDate(const QString& command, bool* enabled, QDateTime* date)
{
    int seconds = 0;
    if (!plExchangeForNumber(command, &seconds))
        return false;
    *enabled = seconds != 0;
    if (!*enabled)
        return true;
    date->setOffsetFromUtc(0);
    date->setSecsSinceEpoch(seconds);
    qDebug() << "Got STA/STO timestamp:" << seconds;
    qDebug() << "Setting QDateTime:" << *date << " (" << date->toSecsSinceEpoch() << ")";
    return true;
}

bool BrumaloggerInterface::plSetDate(const char* command, bool enabled, const QDateTime& date)
{
    const qint64 seconds = enabled ? date.toSecsSinceEpoch() : 0;
    qDebug() << "Setting STA/STO timestamp:" << seconds;
    return plExchangeForOk(QString::asprintf("%s%010d", command, static_cast<qint32>(seconds)));
}
