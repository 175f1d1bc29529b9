#pragma once

#include "bench/road.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace bench
{

/// Shows the runs as they come and keeps the shortest time of each benchmark.
class ShortestTimes : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Not a number for what was not measured.
    double seconds(const Road& road, const char* step) const;

private:
    std::map<std::string, double> m_seconds;
};

/// The times of one road, against its floors and its size.
class RoadTimes
{
public:
    RoadTimes(const Road& road, const ShortestTimes& times)
        : m_road(road)
        , m_times(times)
    {
    }

    const Road& road() const { return m_road; }
    double milliseconds(const char* step) const;
    double ratio(const char* step, const char* floor) const;
    double nanosecondsPerByte(const char* step) const; // of the binary form

private:
    const Road& m_road;
    const ShortestTimes& m_times;
};

} // namespace bench
