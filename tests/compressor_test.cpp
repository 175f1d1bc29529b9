#include "tests/support/helpers.h"
#include "vrx_api/exchange/compressor.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

using vrx::Compressor;

namespace
{

// The text "abc" in a stored block, inside a zlib and a gzip stream.
const std::string kZlib = test::bytes("7801 01 0300FCFF 616263 024D0127");
const std::string kGzip = test::bytes("1F8B0800000000000003 01 0300FCFF 616263 C2412435 03000000");

std::string compressed(const std::string& data, int level = -1)
{
    std::string out = "replaced";
    Compressor::compress(out, data.data(), data.size(), level);
    return out;
}

std::string decompressed(const std::string& data)
{
    // A copy of the exact size, so that a sanitizer sees what is read behind the end.
    const std::vector<char> exact(data.begin(), data.end());
    std::vector<char> out = {'r', 'e', 'p', 'l', 'a', 'c', 'e', 'd'};
    Compressor::decompress(out, exact.data(), exact.size());
    return {out.begin(), out.end()};
}

// Bytes that deflate can't make smaller, between runs that it can.
std::string sample(std::size_t size)
{
    std::mt19937 random; // NOLINT(cert-msc51-cpp,bugprone-random-generator-seed): the same bytes at each run
    std::string data(size / 2, 'z');
    while (data.size() < size)
    {
        data.push_back(static_cast<char>(random() & 0xFFU));
    }
    return data;
}

TEST(Compressor, ReadsBothWrappers)
{
    EXPECT_EQ(decompressed(kZlib), "abc");
    EXPECT_EQ(decompressed(kGzip), "abc");
    EXPECT_EQ(decompressed(kGzip + "bytes behind the stream"), "abc");
}

TEST(Compressor, RoundTrips)
{
    for (const std::size_t size : {0U, 1U, 2U, 1000U, 100000U, 3000000U})
    {
        for (const std::string& data : {sample(size), std::string(size, 'a')})
        {
            for (const int level : {-1, 0, 9})
            {
                EXPECT_TRUE(decompressed(compressed(data, level)) == data) << size;
            }
        }
    }
    EXPECT_EQ(compressed("").size(), 20U);
    EXPECT_EQ(compressed("a").substr(0, 2), test::bytes("1F8B"));
}

TEST(Compressor, AStreamCutShortGivesWhatCameBefore)
{
    const std::string data = sample(100000);
    const std::string whole = compressed(data);
    for (const std::size_t size : {whole.size() - 1, whole.size() - 9, whole.size() / 2, std::size_t{100}})
    {
        const std::string part = decompressed(whole.substr(0, size));
        EXPECT_FALSE(part.empty()) << size;
        EXPECT_TRUE(data.compare(0, part.size(), part) == 0) << size;
    }
    for (std::size_t size = 1; size < kGzip.size(); ++size)
    {
        EXPECT_EQ(std::string("abc").rfind(decompressed(kGzip.substr(0, size)), 0), 0U) << size;
    }
}

TEST(Compressor, ADamagedStreamThrowsTheTextOfZlib)
{
    const auto damaged = [](std::string stream, std::size_t at) {
        stream[at] = static_cast<char>(stream[at] ^ 0x06);
        return test::thrownBy<std::runtime_error>([&] { decompressed(stream); });
    };
    EXPECT_EQ(damaged(kGzip, 0), "incorrect header check");
    EXPECT_EQ(damaged(kGzip, 10), "invalid block type");
    EXPECT_EQ(damaged(kGzip, 11), "invalid stored block lengths");
    EXPECT_EQ(damaged(kGzip, 15), "incorrect data check");
    EXPECT_EQ(damaged(kGzip, 22), "incorrect length check");
    EXPECT_EQ(damaged(kGzip, 25), "incorrect length check");
    EXPECT_EQ(damaged(kZlib, 7), "incorrect data check");
}

TEST(Compressor, RefusesWhatItCanNotDo)
{
    std::string out;
    EXPECT_EQ(test::thrownBy<std::runtime_error>([&] { Compressor::compress(out, "a", 1, 10); }),
              "deflate init failed");
    const std::uint64_t tooMuch = std::uint64_t{1} << 32;
    EXPECT_THROW(Compressor::compress(out, "a", tooMuch, -1), std::length_error);
    EXPECT_THROW(Compressor::decompress(out, "a", tooMuch), std::length_error);
}

TEST(Compressor, RefusesPlainDataAboveTheLimit)
{
    const std::string data = sample(100000);
    for (const std::string& stream : {compressed(data), compressed(std::string(100000, 'a')), kZlib, kGzip})
    {
        const std::uint64_t size = decompressed(stream).size();
        vrx::Bytes out;
        Compressor::decompress(out, stream.data(), stream.size(), size);
        EXPECT_EQ(out.size(), size);
        for (const std::uint64_t limit : {size - 1, size / 2, std::uint64_t{0}})
        {
            vrx::Bytes refused;
            EXPECT_EQ(test::thrownBy<std::length_error>(
                          [&] { Compressor::decompress(refused, stream.data(), stream.size(), limit); }),
                      "Decompressed data is above the limit of " + std::to_string(limit) + " bytes");
            EXPECT_LE(refused.capacity(), limit + 1);
        }
    }
}

TEST(Compressor, TellsCompressedDataByItsFirstTwoBytes)
{
    const auto is = [](const char* hex) {
        const std::string data = test::bytes(hex);
        return Compressor::isCompressed(data.data(), data.size());
    };
    for (const char* const hex : {"789C00", "780100", "78DA00", "785E00", "1F8B00"})
    {
        EXPECT_TRUE(is(hex)) << hex;
    }
    for (const char* const hex : {"", "78", "789C", "1F8B", "780000", "1F8A00", "9C7800", "030000", "8B1F00"})
    {
        EXPECT_FALSE(is(hex)) << hex;
    }
    EXPECT_FALSE(Compressor::isCompressed(nullptr, 5));
}

} // namespace
