#include "bench/times.h"

#include <algorithm>
#include <limits>

namespace bench
{

void ShortestTimes::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs)
    {
        const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
        const auto known = m_seconds.emplace(run.run_name.function_name, seconds).first;
        known->second = std::min(known->second, seconds);
    }
}

double ShortestTimes::seconds(const Road& road, const char* step) const
{
    const auto found = m_seconds.find(road.name + '/' + step);
    return found == m_seconds.end() ? std::numeric_limits<double>::quiet_NaN() : found->second;
}

double RoadTimes::milliseconds(const char* step) const
{
    return m_times.seconds(m_road, step) * 1e3;
}

double RoadTimes::ratio(const char* step, const char* floor) const
{
    return m_times.seconds(m_road, step) / m_times.seconds(m_road, floor);
}

double RoadTimes::nanosecondsPerByte(const char* step) const
{
    return m_times.seconds(m_road, step) * 1e9 / static_cast<double>(m_road.binary.size());
}

} // namespace bench
