#include "bench/heap_peak.h"
#include "bench/models.h"
#include "bench/steps.h"
#include "bench/table.h"

#include <cstdio>
#include <cstdlib>

// usage: vrx_api_bench [ROUNDS] [flags of Google Benchmark]
// Each round measures every step once; the shortest time of each counts.
int main(int argc, char** argv)
{
    constexpr int kRounds = 3;
    constexpr int kManyIterations = 1000;
    benchmark::Initialize(&argc, argv);
    const int rounds = argc > 1 ? std::atoi(argv[1]) : kRounds;

    // More than the scene takes at once, several times over.
    constexpr std::size_t kHeap = std::size_t{1} << 31;
    bench::holdHeap(kHeap);
    std::printf("Making the models and looking at the memory that their ways take\n");
    const bench::Road scene("scene", bench::makeScene);
    const bench::Road structure("structure", bench::makeStructure);
    const bench::Road drawing("drawing", bench::makeDrawing);
    const bench::Road tiny("tiny", bench::makeTiny);
    bench::registerSteps(scene, 1);
    bench::registerSteps(structure, 1);
    bench::registerSteps(drawing, 1);
    bench::registerSteps(tiny, kManyIterations);

    bench::ShortestTimes times;
    for (int round = 0; round < rounds; ++round)
    {
        benchmark::RunSpecifiedBenchmarks(&times);
    }

    bench::Wanted wanted;
    wanted.treeAndEncodeNanoseconds = 1.8;
    wanted.writeToDeflate = 1.12;
    wanted.readToInflate = 2.4;
    wanted.peakToBinary = 3.2;
    bench::printTable(scene, times, wanted);
    wanted.readToInflate = 2.7;
    bench::printTable(structure, times, wanted);
    bench::printTable(drawing, times, wanted);
    bench::Wanted wantedOfTiny;
    wantedOfTiny.writeMilliseconds = 0.15;
    bench::printTable(tiny, times, wantedOfTiny);
    return 0;
}
