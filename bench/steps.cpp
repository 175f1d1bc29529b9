#include "bench/steps.h"

#include "mp/shared_buffer.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/json_value.h"

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <cstring>
#include <ctime>

namespace bench
{

namespace
{

using vrx::Bytes;
using vrx::JsonDocument;

constexpr int kGzipWindow = 15 + 16;
constexpr int kMemoryLevel = 8;

Bytef* zlibBytes(const Bytes& bytes)
{
    return reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data())); // NOLINT: zlib's input lacks a const
}

void bareDeflate(const Bytes& in, Bytes& out)
{
    z_stream stream{};
    deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, kGzipWindow, kMemoryLevel, Z_DEFAULT_STRATEGY);
    stream.next_in = zlibBytes(in);
    stream.avail_in = static_cast<uInt>(in.size());
    stream.next_out = zlibBytes(out);
    stream.avail_out = static_cast<uInt>(out.size());
    deflate(&stream, Z_FINISH);
    deflateEnd(&stream);
}

void bareInflate(const Bytes& in, Bytes& out)
{
    z_stream stream{};
    inflateInit2(&stream, kGzipWindow);
    stream.next_in = zlibBytes(in);
    stream.avail_in = static_cast<uInt>(in.size());
    stream.next_out = zlibBytes(out);
    stream.avail_out = static_cast<uInt>(out.size());
    inflate(&stream, Z_FINISH);
    inflateEnd(&stream);
}

std::shared_ptr<JsonDocument> makeTree(const Road& road)
{
    auto document = std::make_shared<JsonDocument>();
    road.object->writeObject(*document, document->GetAllocator());
    return document;
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

// Measures the work alone: not the preparation of its input, nor the end of its input and its result.
template <class Prepare, class Work>
void add(const Road& road, const char* step, int iterations, Prepare prepare, Work work)
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
    benchmark::RegisterBenchmark((road.name + '/' + step).c_str(), measure)
        ->UseManualTime()
        ->Iterations(iterations)
        ->Unit(benchmark::kMillisecond);
}

// Touched bytes for the floors to write to.
auto room(std::size_t size)
{
    return [size] { return std::make_shared<Bytes>(size, '\1'); };
}

} // namespace

void registerSteps(const Road& road, int iterations)
{
    const auto nothing = [] { return 0; };
    const auto emptyShared = [] { return std::make_shared<SharedContent>(Bytes()); };

    add(road, step::kTree, iterations, nothing, [&road](int) { return makeTree(road); });
    add(
        road, step::kEncode, iterations, [&road] { return makeTree(road); },
        [](const auto& tree) {
            Bytes bytes;
            vrx::JsonBinaryIO::write(bytes, *tree);
            return bytes;
        });
    add(road, step::kCopy, iterations, room(road.binary.size()), [&road](const auto& out) {
        std::memcpy(out->data(), road.binary.data(), road.binary.size());
        return out;
    });
    add(road, step::kDeflate, iterations, room(deflateBound(nullptr, static_cast<uLong>(road.binary.size())) + 18),
        [&road](const auto& out) {
            bareDeflate(road.binary, *out);
            return out;
        });
    add(road, step::kCompress, iterations, nothing, [&road](int) {
        Bytes out;
        vrx::Compressor::compress(out, road.binary.data(), road.binary.size(), -1);
        return out;
    });
    add(road, step::kWrite, iterations, nothing, [&road](int) { return std::make_shared<Envelope>(road.object); });
    add(road, step::kShare, iterations, emptyShared, [&road](const auto& shared) {
        share(road.compressed, *shared);
        return shared;
    });
    add(road, step::kCopyCompressed, iterations, room(road.compressed.size()), [&road](const auto& out) {
        std::memcpy(out->data(), road.compressed.data(), road.compressed.size());
        return out;
    });
    add(
        road, step::kTake, iterations, [&road] { return std::make_shared<SharedContent>(road.compressed); },
        [](const auto& shared) { return take(*shared); });
    add(road, step::kInflate, iterations, room(road.binary.size()), [&road](const auto& out) {
        bareInflate(road.compressed, *out);
        return out;
    });
    add(road, step::kDecompress, iterations, nothing, [&road](int) {
        Bytes out;
        vrx::Compressor::decompress(out, road.compressed.data(), road.compressed.size());
        return out;
    });
    add(
        road, step::kRead, iterations, [&road] { return std::make_shared<Envelope>(road); },
        [](const auto& envelope) { return envelope->read(); });
    add(road, step::kDecode, iterations, nothing, [&road](int) {
        auto document = std::make_shared<JsonDocument>();
        vrx::JsonBinaryIO::read(road.binary.data(), road.binary.size(), *document, document->GetAllocator());
        return document;
    });
    add(
        road, step::kModel, iterations, [&road] { return makeTree(road); },
        [&road](const auto& tree) {
            auto object = road.object->clone();
            object->readObject(*tree);
            return object;
        });
}

} // namespace bench
