#include "mp/shared_buffer.h"
#include "tests/full_rows/full_rows.h"
#include "tests/parallel/threads.h"
#include "tests/support/json_text.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/exchange_object_registry.h"
#include "vrx_api/exchange/exchange_object_wrapper.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/shape.h"
#include "vrx_api/vrx_api_command.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <set>

using namespace vrx;
using test::inThreads;
using test::require;

namespace
{

std::string formOf(const IExchangeObject& object)
{
    Bytes bytes;
    JsonBinaryIO::write(bytes, object);
    return {bytes.begin(), bytes.end()};
}

std::shared_ptr<IExchangeObject> crossed(const std::shared_ptr<IExchangeObject>& object, ECompression compression)
{
    ExchangeObjectWrapper envelope;
    envelope.set(object);
    envelope.setCompression(compression);
    mp::wstringstream stream;
    envelope.writeObject(stream);
    ExchangeObjectWrapper other;
    other.readObject(stream);
    return other.get();
}

// Each thread has objects of its own of every class. It is the first use of the classes in this process, too.
TEST(Threads, EachReadAndWriteTheirOwnObjects)
{
    inThreads([](int number) {
        for (const test::FullRow& row : test::allFullRows())
        {
            const std::shared_ptr<IJsonObject> made = row.make();
            test::readText(*made, row.in);
            require(test::written(*made) == row.out, row.title);
            const auto object = std::dynamic_pointer_cast<IExchangeObject>(made);
            if (object != nullptr && object->binary())
            {
                const auto fromText = object->clone();
                test::readText(*fromText, row.out);
                const auto fromMemory = crossed(object, static_cast<ECompression>(number % 3));
                require(formOf(*fromMemory) == formOf(*fromText), row.title);
            }
        }
    });
}

TEST(Threads, LookUpClassesAndMakeNames)
{
    std::mutex mutex;
    std::set<wstring> all;
    constexpr std::size_t kNames = 200;
    inThreads([&](int) {
        std::set<wstring> made;
        for (std::size_t i = 0; i < kNames; ++i)
        {
            made.insert(IExchangeObject::generateUUID());
            for (const wstring& name : ExchangeObjectRegistry::instance().names())
            {
                const auto object = ExchangeObjectRegistry::instance().get(name);
                require(object != nullptr && ClassShape::find(typeOf(*object)) != nullptr, "a class is missing");
            }
        }
        const std::lock_guard<std::mutex> lock(mutex);
        all.insert(made.begin(), made.end());
    });
    EXPECT_EQ(all.size(), kNames * test::kThreads);
}

TEST(Threads, CompressAndDecompress)
{
    inThreads([](int number) {
        for (std::size_t size = 100; size < 100000; size *= 3)
        {
            std::string plain(size, 'a');
            for (std::size_t i = 0; i < size; i += 7)
            {
                plain[i] = static_cast<char>(i * static_cast<std::size_t>(number + 1) / 5);
            }
            for (const int level : {-1, 1})
            {
                std::string out;
                std::string again;
                Compressor::compress(out, plain.data(), plain.size(), level);
                Compressor::decompress(again, out.data(), out.size());
                require(again == plain, "other data came out");
            }
        }
    });
}

std::atomic<int> heardByFirst = 0;
std::atomic<int> heardBySecond = 0;

TEST(Threads, ExchangeTheWatcherWhileBuffersAreMade)
{
    constexpr int kBuffers = 50;
    mp::setSharedBufferWatcher([](const wstring&) { ++heardByFirst; });
    inThreads([](int number) {
        for (int i = 0; i < kBuffers; ++i)
        {
            if (number == 0)
            {
                mp::setSharedBufferWatcher([](const wstring&) { ++heardBySecond; });
            }
            mp::SharedBuffer<char> buffer;
            buffer.open(IExchangeObject::generateUUID(), true);
        }
    });
    mp::setSharedBufferWatcher(nullptr);
    EXPECT_EQ(heardByFirst + heardBySecond, kBuffers * test::kThreads);
    EXPECT_GE(heardBySecond, kBuffers);
}

} // namespace
