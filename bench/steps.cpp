#include "bench/steps.h"

#include "bench/envelope.h"
#include "bench/floors.h"
#include "mp/shared_buffer.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_value.h"

#include <benchmark/benchmark.h>

#include <ctime>

namespace bench
{

namespace
{

using vrx::Bytes;
using vrx::ECompression;
using vrx::JsonDocument;

std::shared_ptr<JsonDocument> makeTree(const Road& road)
{
    auto document = std::make_shared<JsonDocument>();
    road.object->writeObject(*document, document->GetAllocator());
    return document;
}

std::shared_ptr<JsonDocument> decodeTree(const Road& road)
{
    auto document = std::make_shared<JsonDocument>();
    vrx::JsonBinaryIO::read(road.binary.data(), road.binary.size(), *document, document->GetAllocator());
    return document;
}

Bytes encode(const Road& road)
{
    Bytes bytes;
    vrx::JsonBinaryIO::write(bytes, *road.object);
    return bytes;
}

std::shared_ptr<vrx::IExchangeObject> decode(const Road& road, const vrx::ReadRules& rules)
{
    auto object = road.object->clone();
    vrx::JsonBinaryIO::read(road.binary.data(), road.binary.size(), *object, rules);
    return object;
}

void share(const Bytes& content, const SharedContent& shared)
{
    mp::SharedBuffer<char> buffer;
    buffer.open(shared.name(), false);
    buffer.write(content.data(), content.size());
}

std::vector<char> take(const SharedContent& shared)
{
    std::vector<char> bytes;
    mp::SharedBuffer<char> buffer;
    buffer.open(shared.name(), false);
    buffer.read(bytes);
    return bytes;
}

double processorSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

int nothing()
{
    return 0;
}

/// Registers the steps of one road. What is measured is the work alone: not the preparation of its input, nor the end
/// of its input and its result.
class Steps
{
public:
    Steps(const Road& road, int iterations)
        : m_road(road)
        , m_iterations(iterations)
    {
    }

    template <class Prepare, class Work>
    void add(const char* step, Prepare prepare, Work work) const
    {
        const auto measure = [prepare, work](benchmark::State& state) {
            for (auto iteration : state)
            {
                static_cast<void>(iteration);
                auto input = prepare();
                const double start = processorSeconds();
                auto result = work(input);
                state.SetIterationTime(processorSeconds() - start);
                benchmark::DoNotOptimize(result);
            }
        };
        benchmark::RegisterBenchmark((m_road.name + '/' + step).c_str(), measure)
            ->UseManualTime()
            ->Iterations(m_iterations)
            ->Unit(benchmark::kMillisecond);
    }

    void addWhole(const char* write, const char* read, ECompression compression) const
    {
        add(write, nothing, [&road = m_road, compression](int) {
            return std::make_shared<Envelope>(written(road.object, compression));
        });
        add(
            read, [&road = m_road, compression] { return std::make_shared<Envelope>(road.envelope(compression)); },
            [](const auto& envelope) { return envelope->read(); });
    }

    void addShared(const char* write, const char* read, const Bytes& content) const
    {
        add(
            write, [] { return std::make_shared<SharedContent>(Bytes()); },
            [&content](const auto& shared) {
                share(content, *shared);
                return shared;
            });
        add(
            read, [&content] { return std::make_shared<SharedContent>(content); },
            [](const auto& shared) { return take(*shared); });
    }

    void add(const Floor& floor) const
    {
        add(
            floor.step, [&road = m_road] { return std::make_shared<Bytes>(roomForFloors(road), '\1'); },
            [&in = m_road.*floor.in, work = floor.work](const auto& out) {
                work(in, *out);
                return out;
            });
    }

private:
    const Road& m_road;
    int m_iterations;
};

} // namespace

void registerWhole(const Road& road, int iterations)
{
    const Steps steps(road, iterations);
    steps.addWhole(step::kWrite, step::kRead, ECompression::AsTold);
    steps.addWhole(step::kWriteFast, step::kReadFast, ECompression::Fast);
    steps.addWhole(step::kWriteNone, step::kReadNone, ECompression::None);
}

void registerSteps(const Road& road, int iterations)
{
    registerWhole(road, iterations);
    const Steps steps(road, iterations);
    for (const Floor& floor : floors())
    {
        steps.add(floor);
    }
    steps.addShared(step::kShare, step::kTake, road.compressed);
    steps.addShared(step::kSharePlain, step::kTakePlain, road.binary);
    steps.add(step::kTree, nothing, [&road](int) { return makeTree(road); });
    steps.add(
        step::kEncodeTree, [&road] { return makeTree(road); },
        [](const auto& tree) {
            Bytes bytes;
            vrx::JsonBinaryIO::write(bytes, *tree);
            return bytes;
        });
    steps.add(step::kEncode, nothing, [&road](int) { return encode(road); });
    steps.add(step::kCompress, nothing, [&road](int) {
        Bytes out;
        vrx::Compressor::compress(out, road.binary.data(), road.binary.size(), -1);
        return out;
    });
    steps.add(step::kDecompress, nothing, [&road](int) {
        Bytes out;
        vrx::Compressor::decompress(out, road.compressed.data(), road.compressed.size());
        return out;
    });
    steps.add(step::kDecodeTree, nothing, [&road](int) { return decodeTree(road); });
    steps.add(
        step::kModel, [&road] { return decodeTree(road); },
        [&road](const auto& tree) {
            auto object = road.object->clone();
            object->readObject(*tree);
            return object;
        });
    steps.add(step::kDecode, nothing, [&road](int) { return decode(road, {}); });
    steps.add(step::kDecodeStrictly, nothing, [&road](int) { return decode(road, vrx::ReadRules::strict()); });
}

} // namespace bench
