#pragma once

#include <QList>
#include <QString>

#include <algorithm>

/// The rule for a pool, written down again: events are seconds of answers, or the mark of a time-out.
class PoolModel
{
public:
    static constexpr int timeoutMark = -1;

    explicit PoolModel(int size)
        : size(size)
    {
    }
    void take(int event)
    {
        if (!over && event == timeoutMark)
            finish(answers.size() >= size / 2);
        else if (!over)
            takeAnswer(event);
    }
    QString outcome() const
    {
        if (!over)
            return QStringLiteral("0 succesful, 0 timed out; querying, pool");
        return won ? QStringLiteral("1 succesful, 0 timed out; succesful, pool")
                   : QStringLiteral("0 succesful, 1 timed out; timed out, pool");
    }
    bool hasTime() const { return !answers.isEmpty(); }
    int latest() const { return *std::max_element(answers.begin(), answers.end()); }

private:
    void takeAnswer(int second)
    {
        answers << second;
        if (answers.size() * 4 >= size * 3 - size * 3 % 4)
            finish(true);
    }
    void finish(bool succesful)
    {
        over = true;
        won = succesful;
    }

    int size;
    QList<int> answers;
    bool over = false;
    bool won = false;
};
