#include "tests/support/helpers.h"
#include "tests/support/plain_zlib.h"
#include "vrx_api/exchange/compressor.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <vector>

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

// Bytes as a model has them: names over and over, numbers that change little.
std::string modelLike(std::size_t size)
{
    std::string data;
    for (unsigned number = 0; data.size() < size; ++number)
    {
        data += "\x04guid" + std::to_string(1000 + number) + "\x05point";
        for (const std::uint64_t factor : {7U, 77U, 7919U})
        {
            data += test::littleEndian(number * factor);
        }
    }
    data.resize(size);
    return data;
}

// Whether the library makes of a stream what zlib makes of it, data or error.
void expectAsZlib(const std::string& stream, const std::string& what)
{
    test::Inflated ours;
    try
    {
        ours.data = decompressed(stream);
    }
    catch (const std::runtime_error& error)
    {
        ours.error = error.what();
    }
    EXPECT_TRUE(test::isAsZlib(ours, test::plainInflate(stream), stream)) << what << ": " << ours.error;
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
    std::vector<char> bytes = {'o', 'l', 'd'};
    Compressor::compress(bytes, "abc", 3, -1);
    EXPECT_EQ(decompressed({bytes.begin(), bytes.end()}), "abc");
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

TEST(Compressor, WritesWhatZlibReads)
{
    for (const std::size_t size : {0U, 1U, 4095U, 4096U, 200000U})
    {
        for (const std::string& data : {modelLike(size), sample(size), std::string(size, '\0')})
        {
            for (const int level : {-1, 1, 6, 9})
            {
                const std::string stream = compressed(data, level);
                const test::Inflated plain = test::plainInflate(stream);
                EXPECT_EQ(plain.error, "") << size << ", level " << level;
                EXPECT_TRUE(plain.data == data) << size << ", level " << level;
                EXPECT_LE(stream.size(), test::plainDeflate(data, level).size() * 5 / 4 + 32) << level;
            }
        }
    }
}

TEST(Compressor, ReadsWhatZlibWrites)
{
    for (const std::size_t size : {1U, 1023U, 1024U, 200000U})
    {
        for (const std::string& data : {modelLike(size), sample(size), std::string(size, '\0')})
        {
            for (const int level : {0, 1, 6, 9})
            {
                EXPECT_TRUE(decompressed(test::plainDeflate(data, level)) == data) << size << ", level " << level;
                EXPECT_TRUE(decompressed(test::plainDeflate(data, level, test::kZlibWindow)) == data) << size;
            }
        }
    }
}

TEST(Compressor, TakesADamagedStreamAsZlibDoes)
{
    const std::string data = modelLike(1500);
    for (const std::string& stream : {test::plainDeflate(data, 6), test::plainDeflate(data, 1)})
    {
        for (std::size_t size = 1; size < stream.size(); ++size)
        {
            expectAsZlib(stream.substr(0, size), "cut at " + std::to_string(size));
        }
        for (std::size_t bit = 0; bit < stream.size() * 8; ++bit)
        {
            std::string damaged = stream;
            damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << bit % 8));
            expectAsZlib(damaged, "bit " + std::to_string(bit));
        }
    }
}

TEST(Compressor, TakesAnUnusualStreamAsZlibDoes)
{
    const std::string data = modelLike(1500);
    const std::string raw = test::plainDeflate(data, 6, test::kRawWindow);
    const std::string trailer = test::gzipTrailer(data);
    const std::string whole = test::bytes("1F8B0800000000000003") + raw + trailer;
    expectAsZlib(whole, "as it should be");
    for (const char* const behind : {"b", "bytes behind it", "12345678"})
    {
        expectAsZlib(whole + behind, behind);
    }
    expectAsZlib(whole + whole, "two members");
    expectAsZlib(whole + test::plainDeflate("another", 6), "two members of their own");
    expectAsZlib(whole + trailer, "the trailer twice");

    const struct
    {
        const char* what;
        const char* header;
    } headers[] = {
        {"text flag", "1F8B0801000000000003"},
        {"header checksum", "1F8B0802000000000003A777"},
        {"wrong header checksum", "1F8B0802000000000003A877"},
        {"extra field", "1F8B0804000000000003 0300 414243"},
        {"extra field that reaches behind the end", "1F8B0804000000000003 FFFF 414243"},
        {"name", "1F8B0808000000000003 414200"},
        {"name without end", "1F8B0808000000000003 4142"},
        {"comment", "1F8B0810000000000003 414200"},
        {"all fields", "1F8B081F000000000003 0100 41 4200 4300 0000"},
        {"reserved flag", "1F8B0820000000000003"},
        {"another method", "1F8B0900000000000003"},
        {"other time, flags of the method and system", "1F8B080012345678FFFF"},
        {"zlib's dictionary", "78BB 00000001"},
    };
    for (const auto& [what, header] : headers)
    {
        std::string stream = test::bytes(header);
        expectAsZlib(stream.append(raw).append(trailer), what);
    }
}

TEST(Compressor, ASizeThatLiesCostsNoMemory)
{
    const std::string data = sample(400000);
    const std::string stream = compressed(data);
    for (const std::uint64_t told : {0U, 1U, 399999U, 400001U, 10000000U, 100000000U, 4294967295U})
    {
        const std::string lie = stream.substr(0, stream.size() - 4) + test::littleEndian(told);
        expectAsZlib(lie, std::to_string(told));
        vrx::Bytes out;
        EXPECT_THROW(Compressor::decompress(out, lie.data(), lie.size()), std::runtime_error);
        EXPECT_LE(out.capacity(), stream.size() * 64) << told;
    }
}

TEST(Compressor, RefusesWhatItCanNotDo)
{
    std::string out;
    const std::string data = sample(5000);
    for (const std::size_t size : {std::size_t{1}, data.size()})
    {
        EXPECT_EQ(test::thrownBy<std::runtime_error>([&] { Compressor::compress(out, data.data(), size, 10); }),
                  "deflate init failed");
    }
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
        Compressor::decompress(out, stream.data(), stream.size(), vrx::ReadRules::upToPlainBytes(size));
        EXPECT_EQ(out.size(), size);
        for (const std::uint64_t limit : {size - 1, size / 2, std::uint64_t{0}})
        {
            vrx::Bytes refused;
            EXPECT_EQ(test::thrownBy<std::length_error>([&] {
                          Compressor::decompress(refused, stream.data(), stream.size(),
                                                 vrx::ReadRules::upToPlainBytes(limit));
                      }),
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
    for (const char* const hex : {"", "78", "789C", "1F8B", "780000", "1F8A00", "009C00", "9C7800", "030000", "8B1F00"})
    {
        EXPECT_FALSE(is(hex)) << hex;
    }
    EXPECT_FALSE(Compressor::isCompressed(nullptr, 5));
}

} // namespace
