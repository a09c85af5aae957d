// Runs two programs in turn, many times over, and compares the medians of their time and peak memory.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int warmups = 3;
constexpr int defaultRuns = 31;

struct Figures
{
    std::vector<double> milliseconds;
    std::vector<double> kibibytes;
};

struct Run
{
    double milliseconds = 0;
    double kibibytes = 0;
};

Run runOnce(const char* program)
{
    const auto begin = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execl(program, program, static_cast<char*>(nullptr));
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    if (status != 0) {
        std::fprintf(stderr, "%s failed\n", program);
        std::exit(1);
    }
    const std::chrono::duration<double, std::milli> elapsed = std::chrono::steady_clock::now() - begin;
    return {elapsed.count(), static_cast<double>(usage.ru_maxrss)};
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void print(const char* what, const char* unit, const std::vector<double>& first,
           const std::vector<double>& second)
{
    const double a = median(first);
    const double b = median(second);
    std::printf("%-12s %10.1f %-4s %10.1f %-4s ratio %.2f\n", what, a, unit, b, unit, a / b);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: compareruns PROGRAM BASELINE [RUNS]\n");
        return 2;
    }
    const int runs = argc > 3 ? std::atoi(argv[3]) : defaultRuns;
    std::array<Figures, 2> figures;
    for (int run = -warmups; run < runs; ++run) {
        for (std::size_t which = 0; which < figures.size(); ++which) {
            const Run result = runOnce(argv[1 + which]);
            if (run < 0)
                continue;
            figures.at(which).milliseconds.push_back(result.milliseconds);
            figures.at(which).kibibytes.push_back(result.kibibytes);
        }
    }
    print("time", "ms", figures[0].milliseconds, figures[1].milliseconds);
    print("peak RSS", "KiB", figures[0].kibibytes, figures[1].kibibytes);
    return 0;
}
