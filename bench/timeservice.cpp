// What the time service costs: decoding an answer, finding a zone, asking a pool of seven servers.

#include "time/timemanager.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLoggingCategory>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int rounds = 21;

/// Keeps the compiler from leaving out work whose result nobody reads.
volatile qint64 sink = 0;

double median(std::vector<double> figures)
{
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

template<typename Measurement>
std::vector<double> repeated(Measurement measurement)
{
    std::vector<double> figures;
    for (int i = 0; i < rounds; i++)
        figures.push_back(measurement());
    return figures;
}

/// Prints the median nanoseconds of one call of @p work.
template<typename Work>
void printCost(const char* what, Work work)
{
    constexpr int calls = 100000;
    const auto nanoseconds = repeated([&] {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < calls; i++)
            sink = work(i);
        return static_cast<double>(timer.nsecsElapsed()) / calls;
    });
    std::printf("%-40s %8.0f ns\n", what, median(nanoseconds));
}

qint64 decode(int i)
{
    Ntp::Packet packet{};
    packet[Ntp::referenceTimestamp] = 0xE0;
    packet[Ntp::referenceTimestamp + 3] = static_cast<uchar>(i);
    return NtpReply(packet, QDateTime()).referenceTime().toMSecsSinceEpoch();
}

double poolQueryMsecs(const QStringList& hosts)
{
    TimeManager manager;
    QEventLoop loop;
    QObject::connect(&manager, &TimeManager::sQuerySuccesful, &loop, [&loop] { loop.quit(); });
    QObject::connect(&manager, &TimeManager::sQueryTimeout, &loop, [&loop] { loop.exit(1); });
    QElapsedTimer timer;
    timer.start();
    manager.queryPool(hosts);
    if (loop.exec() != 0)
        qFatal("the pool did not answer");
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));

    const QStringList servers = application.arguments().mid(1);
    if (servers.isEmpty())
        qFatal("usage: bench_time SERVER...");

    const TimeManager manager;
    const QDateTime device = manager.currentTimeUtc().addSecs(9 * 3600);
    printCost("decode an answer to its reference time", decode);
    printCost("zone of an offset", [&](int i) { return manager.matchTimeZoneByOffset(i % 43200).offset; });
    printCost("zone of a device's clock",
              [&](int) { return manager.matchTimeZoneByDateTime(device.date(), device.time()).offset; });

    const auto msecs = repeated([&] { return poolQueryMsecs(servers); });
    std::printf("%-40s %8.1f ms; the first, with its look-ups, %.1f ms\n", "pool of servers, query to result",
                median(msecs), msecs.front());
    return 0;
}
