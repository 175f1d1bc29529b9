#include "bench/held_heap.h"
#include "bench/models.h"
#include "bench/peaks.h"
#include "bench/road.h"
#include "bench/steps.h"
#include "bench/table.h"
#include "bench/times.h"
#include "bench/wanted.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace
{

using bench::EPolygon;

constexpr int kManyIterations = 1000;
constexpr std::size_t kFaces = 200;
constexpr std::size_t kGigabyte = std::size_t{1} << 30;

const bench::Model kModels[] = {
    {"scene", [] { return bench::makeScene(EPolygon::Triangle, kFaces); }},
    {"scene by faces", [] { return bench::makeScene(EPolygon::Face, kFaces); }},
    {"structure", bench::makeStructure},
    {"PMI", bench::makePmi, bench::makePmiReadable},
    {"tiny", bench::makeTiny},
};

bench::ShortestTimes measure(int rounds)
{
    bench::ShortestTimes times;
    for (int round = 0; round < rounds; ++round)
    {
        benchmark::RunSpecifiedBenchmarks(&times);
    }
    return times;
}

void measureRoads(int rounds)
{
    std::printf("Making the models and looking at the memory that their ways take\n");
    std::vector<bench::Peaks> peaks;
    for (const bench::Model& model : kModels)
    {
        peaks.push_back(bench::peaksOf(model));
    }
    // More than the scenes take at once.
    bench::holdHeap(3 * kGigabyte);
    std::vector<bench::Road> roads(std::begin(kModels), std::end(kModels));
    for (const bench::Road& road : roads)
    {
        const bool isTiny = road.binary.size() < 1U << 16U;
        bench::registerSteps(road, isTiny ? kManyIterations : 1);
    }

    const bench::ShortestTimes times = measure(rounds);
    std::vector<bench::Measured> measured;
    for (std::size_t i = 0; i < roads.size(); ++i)
    {
        measured.push_back({bench::RoadTimes(roads[i], times), peaks[i]});
        bench::printSteps(measured.back().times);
    }
    bench::printWanted(measured);
}

// Two scenes, of 20 MB and of 2 GB of binary form.
void measureGrowth(int rounds)
{
    constexpr std::size_t kFewFaces = 15;
    constexpr std::size_t kManyFaces = 1500;
    constexpr int kSeveralIterations = 5;
    bench::holdHeap(8 * kGigabyte);
    const bench::Road few({"20 MB scene", [] { return bench::makeScene(EPolygon::Triangle, kFewFaces); }});
    const bench::Road many({"2 GB scene", [] { return bench::makeScene(EPolygon::Triangle, kManyFaces); }});
    bench::registerWhole(few, kSeveralIterations);
    bench::registerWhole(many, 1);
    const bench::ShortestTimes times = measure(rounds);
    bench::printGrowth(bench::RoadTimes(few, times), bench::RoadTimes(many, times));
}

} // namespace

// usage: vrx_api_bench [--growth] [ROUNDS] [flags of Google Benchmark]
// Each round measures every step once; the shortest time of each counts.
int main(int argc, char** argv)
{
    constexpr int kRounds = 3;
    benchmark::Initialize(&argc, argv);
    const bool growth = argc > 1 && std::strcmp(argv[1], "--growth") == 0;
    const int place = growth ? 2 : 1;
    const int rounds = argc > place ? std::atoi(argv[place]) : kRounds;
    if (growth)
    {
        measureGrowth(rounds);
    }
    else
    {
        measureRoads(rounds);
    }
    return 0;
}
