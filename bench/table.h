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

    double seconds(const Road& road, const char* step) const;

private:
    std::map<std::string, double> m_seconds;
};

/// What is wanted of a road, and reached; a line whose wanted value is 0 is left out.
struct Wanted
{
    double treeAndEncodeNanoseconds = 0; // a byte of the binary form
    double writeToDeflate = 0;
    double readToInflate = 0;
    double writeMilliseconds = 0;
    double peakToBinary = 0; // of a whole write and of a whole read, model objects included
};

/// Prints a road's steps beside their floors, and what is wanted of it.
void printTable(const Road& road, const ShortestTimes& times, const Wanted& wanted);

} // namespace bench
