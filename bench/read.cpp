// Full reads of a logger through the window: their length against the sum of their waits, and the longest
// time for which the event loop stood still meanwhile. Runs beside the simulated logger, which is a process
// of its own.

#include "app/mainwindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int reads = 15;
/// The opening pause and the 15 commands of a basic logger, in fast mode.
constexpr double sumOfWaits = 16 * 75.0;
constexpr double nanosPerMilli = 1e6;

/// A timer of one millisecond, and the longest gap between two of its ticks.
class Heartbeat : public QObject
{
public:
    explicit Heartbeat(QObject* parent = nullptr)
        : QObject(parent)
    {
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, this, [this] { beat(); });
    }

    void start()
    {
        longest = 0;
        sinceLastBeat.start();
        timer.start(1);
    }

    double stop()
    {
        beat();
        timer.stop();
        return static_cast<double>(longest) / nanosPerMilli;
    }

private:
    void beat()
    {
        longest = std::max(longest, sinceLastBeat.nsecsElapsed());
        sinceLastBeat.restart();
    }

    QTimer timer;
    QElapsedTimer sinceLastBeat;
    qint64 longest = 0;
};

void print(const char* what, std::vector<double> values, const char* unit)
{
    std::sort(values.begin(), values.end());
    std::printf("%-34s min %8.2f  median %8.2f  max %8.2f %s\n", what, values.front(),
                values[values.size() / 2], values.back(), unit);
}

double readOnce(QPushButton* readButton)
{
    QElapsedTimer timer;
    timer.start();
    readButton->click();
    return static_cast<double>(timer.nsecsElapsed()) / nanosPerMilli;
}

int measure(const MainWindow& window)
{
    window.findChild<QPushButton*>(QStringLiteral("buttonConnect"))->click();
    auto* readButton = window.findChild<QPushButton*>(QStringLiteral("buttonRead"));
    std::vector<double> lengths;
    std::vector<double> excesses;
    std::vector<double> stalls;
    Heartbeat heartbeat; // for reads of its own: it lengthens them
    for (int i = 0; i < reads; ++i) {
        if (!readButton->isEnabled()) {
            std::fprintf(stderr, "the logger could not be read\n");
            return 1;
        }
        lengths.push_back(readOnce(readButton));
        excesses.push_back((lengths.back() / sumOfWaits - 1) * 100);
        heartbeat.start();
        readOnce(readButton);
        stalls.push_back(heartbeat.stop());
    }
    print("full read", lengths, "ms");
    print("above the sum of its waits", excesses, "%");
    print("longest standstill of the loop", stalls, "ms");
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    MainWindow window;
    window.show();
    int result = 1;
    QTimer begin;
    begin.setSingleShot(true);
    QObject::connect(&begin, &QTimer::timeout, &window, [&] {
        result = measure(window);
        QApplication::quit();
    });
    begin.start(0);
    QApplication::exec();
    return result;
}
