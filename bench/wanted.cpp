#include "bench/wanted.h"

#include "bench/steps.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace bench
{

namespace
{

constexpr std::size_t kRoads = 5;

// The most that is wanted of each road; 0 where nothing is.
using Columns = std::array<double, kRoads>;

struct Line
{
    const char* name;
    double (*reached)(const Measured& road);
    Columns withLibdeflate;
    Columns withoutLibdeflate; // what does not differ is left out
};

double timesBinaryForm(const Measured& road, std::size_t bytes)
{
    return static_cast<double>(bytes) / static_cast<double>(road.times.road().binary.size());
}

constexpr Line kLines[] = {
    {"whole write, default, x bare deflate",
     [](const Measured& road) { return road.times.ratio(step::kWrite, step::kDeflate); },
     {0.50, 0.50, 0.45, 0.50},
     {1.08, 1.03, 1.08, 1.11}},
    {"whole write, fast, x bare deflate",
     [](const Measured& road) { return road.times.ratio(step::kWriteFast, step::kDeflate); },
     {0.20, 0.20, 0.15, 0.20},
     {}},
    {"whole write, none, ns a byte",
     [](const Measured& road) { return road.times.nanosecondsPerByte(step::kWriteNone); },
     {0.9, 0.9, 0.9, 1.2},
     {}},
    {"whole read, default, x bare inflate",
     [](const Measured& road) { return road.times.ratio(step::kRead, step::kInflate); },
     {1.0, 1.0, 1.0, 1.2},
     {1.82, 1.22, 1.72, 2.50}},
    {"whole read, none, ns a byte",
     [](const Measured& road) { return road.times.nanosecondsPerByte(step::kReadNone); },
     {0.7, 0.7, 0.7, 1.0},
     {}},
    {"peak of a write, x binary form",
     [](const Measured& road) { return timesBinaryForm(road, road.peaks.write); },
     {1.3, 1.3, 1.3, 1.3},
     {}},
    {"peak of a read, x binary form",
     [](const Measured& road) { return timesBinaryForm(road, road.peaks.read); },
     {1.6, 1.6, 1.8, 1.8},
     {}},
    {"whole write, default, ms",
     [](const Measured& road) { return road.times.milliseconds(step::kWrite); },
     {0, 0, 0, 0, 0.06},
     {0, 0, 0, 0, 0.06}},
    {"whole read, default, ms",
     [](const Measured& road) { return road.times.milliseconds(step::kRead); },
     {0, 0, 0, 0, 0.03},
     {0, 0, 0, 0, 0.03}},
};

#ifdef BENCH_LIBDEFLATE
constexpr const char* kBuild = "with libdeflate";
constexpr auto kWanted = &Line::withLibdeflate;
#else
constexpr const char* kBuild = "without libdeflate";
constexpr auto kWanted = &Line::withoutLibdeflate;
#endif

void printCell(double reached, double wanted)
{
    if (wanted > 0 && !std::isnan(reached))
    {
        std::printf("%10.3f of %.2f%s", reached, wanted, reached <= wanted ? "  " : " !");
    }
    else
    {
        std::printf("%20s", "");
    }
}

} // namespace

void printWanted(const std::vector<Measured>& roads)
{
    std::printf("\n%s, reached of wanted; ! marks what is missed\n%36s", kBuild, "");
    for (const Measured& road : roads)
    {
        std::printf("%18s  ", road.times.road().name.c_str());
    }
    std::printf("\n");
    for (const Line& line : kLines)
    {
        const Columns& wanted = line.*kWanted;
        if (std::all_of(wanted.begin(), wanted.end(), [](double value) { return value == 0; }))
        {
            continue;
        }
        std::printf("%-36s", line.name);
        for (std::size_t i = 0; i < roads.size(); ++i)
        {
            printCell(line.reached(roads[i]), wanted.at(i));
        }
        std::printf("\n");
    }
}

} // namespace bench
