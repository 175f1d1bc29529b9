#include "bench/table.h"

#include "bench/steps.h"

#include <cstdio>
#include <limits>

namespace bench
{

namespace
{

constexpr double kNanoseconds = 1e9;
constexpr double kMilliseconds = 1e3;

void printWanted(const char* what, double value, double wanted)
{
    if (wanted > 0)
    {
        std::printf("  %-40s %6.2f  wanted %.2f  %s\n", what, value, wanted, value <= wanted ? "kept" : "MISSED");
    }
}

class Table
{
public:
    Table(const Road& road, const ShortestTimes& times)
        : m_road(road)
        , m_times(times)
    {
    }

    double seconds(const char* step) const { return m_times.seconds(m_road, step); }

    double ratio(const char* step, const char* floor) const { return seconds(step) / seconds(floor); }

    double perByte(double seconds) const { return seconds * kNanoseconds / static_cast<double>(m_road.binary.size()); }

    void row(const char* step, double time, const char* floor) const
    {
        std::printf("  %-29s %10.3f ms %8.3f ns/byte", step, time * kMilliseconds, perByte(time));
        if (floor != nullptr)
        {
            std::printf("  %8.2f x %s", time / seconds(floor), floor);
        }
        std::printf("\n");
    }

    void row(const char* step, const char* floor) const { row(step, seconds(step), floor); }

private:
    const Road& m_road;
    const ShortestTimes& m_times;
};

} // namespace

void ShortestTimes::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs)
    {
        const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
        const auto known = m_seconds.emplace(run.run_name.function_name, seconds).first;
        known->second = seconds < known->second ? seconds : known->second;
    }
}

double ShortestTimes::seconds(const Road& road, const char* step) const
{
    const auto found = m_seconds.find(road.name + '/' + step);
    return found == m_seconds.end() ? std::numeric_limits<double>::quiet_NaN() : found->second;
}

void printTable(const Road& road, const ShortestTimes& times, const Wanted& wanted)
{
    const Table table(road, times);
    std::printf("\n%s: binary form %zu bytes, compressed %zu\n", road.name.c_str(), road.binary.size(),
                road.compressed.size());
    table.row(step::kTree, step::kCopy);
    table.row(step::kEncode, step::kCopy);
    table.row("both", table.seconds(step::kTree) + table.seconds(step::kEncode), step::kCopy);
    table.row(step::kCompress, step::kDeflate);
    table.row(step::kShare, step::kCopyCompressed);
    table.row(step::kWrite, step::kDeflate);
    table.row(step::kTake, step::kCopyCompressed);
    table.row(step::kDecompress, step::kInflate);
    table.row(step::kDecode, step::kCopy);
    table.row(step::kModel, step::kCopy);
    table.row(step::kRead, step::kInflate);
    for (const char* const floor : {step::kDeflate, step::kInflate, step::kCopy, step::kCopyCompressed})
    {
        table.row(floor, nullptr);
    }
    const double treeAndEncode = table.seconds(step::kTree) + table.seconds(step::kEncode);
    const auto binary = static_cast<double>(road.binary.size());
    printWanted("tree and binary form, ns a byte", table.perByte(treeAndEncode), wanted.treeAndEncodeNanoseconds);
    printWanted("whole write, times bare deflate", table.ratio(step::kWrite, step::kDeflate), wanted.writeToDeflate);
    printWanted("whole read, times bare inflate", table.ratio(step::kRead, step::kInflate), wanted.readToInflate);
    printWanted("whole write, ms", table.seconds(step::kWrite) * kMilliseconds, wanted.writeMilliseconds);
    printWanted("peak of a write, times the binary form", static_cast<double>(road.writePeak) / binary,
                wanted.peakToBinary);
    printWanted("peak of a read, times the binary form", static_cast<double>(road.readPeak) / binary,
                wanted.peakToBinary);
}

} // namespace bench
