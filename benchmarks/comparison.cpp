#include "comparison.h"

#include <QtCore/QTextStream>

#include <algorithm>
#include <cstdio>
#include <ctime>

ThreadClock::time_point ThreadClock::now()
{
    std::timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time_point(std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

Comparison compare(int rounds, const Sample &ours, const Sample &bare)
{
    ours();
    bare();
    std::vector<double> oursTaken;
    std::vector<double> bareTaken;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        // The order alternates: the first sample changes the caches and the heap for the
        // second.
        const bool oursFirst = round % 2 == 0;
        const Nanoseconds first = oursFirst ? ours() : bare();
        const Nanoseconds second = oursFirst ? bare() : ours();
        oursTaken.push_back((oursFirst ? first : second).count());
        bareTaken.push_back((oursFirst ? second : first).count());
        ratios.push_back(oursTaken.back() / bareTaken.back());
    }
    return {Nanoseconds(median(oursTaken)), Nanoseconds(median(bareTaken)), median(ratios)};
}

int printTable(const std::vector<Figure> &figures)
{
    QTextStream out(stdout);
    out << "| What | Here | Bare Qt | Figure | Goal | |\n|---|---|---|---|---|---|\n";
    int missed = 0;
    for (const Figure &figure : figures) {
        const bool isMet = figure.value <= figure.goal;
        missed += isMet ? 0 : 1;
        const auto number = [](double value) {
            return value < 10 ? QString::number(value, 'f', 2) : QString::number(value, 'f', 0);
        };
        out << "| " << figure.what << " | " << figure.ours << " | " << figure.bare << " | "
            << number(figure.value) << " | " << number(figure.goal) << " | "
            << (isMet ? "met" : "missed") << " |\n";
    }
    return missed;
}
