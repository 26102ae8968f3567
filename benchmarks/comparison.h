#pragma once

#include <QtCore/QString>

#include <chrono>
#include <functional>
#include <vector>

// The processor time of the calling thread: the time of other programs does not
// count.
struct ThreadClock
{
    using duration = std::chrono::nanoseconds;
    using rep = duration::rep;
    using period = duration::period;
    using time_point = std::chrono::time_point<ThreadClock>;
    static constexpr bool is_steady = true;

    static time_point now();
};

using Nanoseconds = std::chrono::duration<double, std::nano>;

// Does a piece of work once and returns its duration, without preparation and
// cleanup.
using Sample = std::function<Nanoseconds()>;

// Times one call of work divided by the number of operations in it.
template <typename Work> Nanoseconds timed(int operations, const Work &work)
{
    const auto start = ThreadClock::now();
    work();
    return Nanoseconds(ThreadClock::now() - start) / operations;
}

struct Comparison
{
    Nanoseconds ours;
    Nanoseconds bare;
    // Median of the ratios of neighbouring samples.
    double ratio;
};

// Alternates the two samples, rounds times, after one warm-up of each.
Comparison compare(int rounds, const Sample &ours, const Sample &bare);

double median(std::vector<double> values);

// One line of the report; a figure at or below its goal meets it.
struct Figure
{
    QString what;
    QString ours;
    QString bare;
    double value;
    double goal;
};

// Prints the figures as a table in Markdown and returns how many miss their goal.
int printTable(const std::vector<Figure> &figures);
