#include "bench/table.h"

#include "bench/steps.h"

#include <cmath>
#include <cstdio>

namespace bench
{

namespace
{

struct Line
{
    const char* step;
    const char* floor;
};

constexpr Line kLines[] = {
    {step::kWrite, step::kDeflate},
    {step::kWriteFast, step::kDeflate},
    {step::kWriteNone, step::kCopy},
    {step::kEncode, step::kCopy},
    {step::kTree, step::kCopy},
    {step::kEncodeTree, step::kCopy},
    {step::kCompress, step::kDeflate},
    {step::kShare, step::kCopyCompressed},
    {step::kSharePlain, step::kCopy},
    {step::kRead, step::kInflate},
    {step::kReadFast, step::kInflate},
    {step::kReadNone, step::kCopy},
    {step::kTake, step::kCopyCompressed},
    {step::kTakePlain, step::kCopy},
    {step::kDecompress, step::kInflate},
    {step::kDecode, step::kCopy},
    {step::kDecodeStrictly, step::kCopy},
    {step::kDecodeTree, step::kCopy},
    {step::kModel, step::kCopy},
    {step::kDeflate, nullptr},
    {step::kDeflateFast, step::kDeflate},
    {step::kLibdeflate, step::kDeflate},
    {step::kLibdeflateFast, step::kDeflate},
    {step::kInflate, nullptr},
    {step::kLibdeflateInflate, step::kInflate},
    {step::kCopy, nullptr},
    {step::kCopyCompressed, nullptr},
};

} // namespace

void printSteps(const RoadTimes& times)
{
    const Road& road = times.road();
    std::printf("\n%s: binary form %zu bytes, compressed %zu, fast %zu\n", road.name.c_str(), road.binary.size(),
                road.compressed.size(), road.compressedFast.size());
    for (const Line& line : kLines)
    {
        const double milliseconds = times.milliseconds(line.step);
        if (std::isnan(milliseconds))
        {
            continue;
        }
        std::printf("  %-34s %10.3f ms %8.3f ns/byte", line.step, milliseconds, times.nanosecondsPerByte(line.step));
        if (line.floor != nullptr && !std::isnan(times.milliseconds(line.floor)))
        {
            std::printf("  %8.2f x %s", times.ratio(line.step, line.floor), line.floor);
        }
        std::printf("\n");
    }
}

void printGrowth(const RoadTimes& small, const RoadTimes& large)
{
    std::printf("\n%-28s %18s %18s\n", "ns a byte", small.road().name.c_str(), large.road().name.c_str());
    for (const char* const step :
         {step::kWrite, step::kWriteFast, step::kWriteNone, step::kRead, step::kReadFast, step::kReadNone})
    {
        const double few = small.nanosecondsPerByte(step);
        const double many = large.nanosecondsPerByte(step);
        std::printf("%-28s %18.2f %18.2f   %.2f x\n", step, few, many, many / few);
    }
}

} // namespace bench
