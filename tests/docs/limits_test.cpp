// What docs/limits.md promises and no other test shows.

#include "tests/full_rows/full_rows.h"
#include "tests/support/json_text.h"
#include "vrx_api/exchange/json_binary_io.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <random>

using namespace vrx;

namespace
{

std::int64_t bitsOf(double number)
{
    std::int64_t bits = 0;
    std::memcpy(&bits, &number, sizeof(bits));
    return bits;
}

TEST(Limits, NumbersInTextsAreReadToTheirLastTwoBits)
{
    std::mt19937_64 random(20);
    std::uniform_real_distribution<double> lengths(-1e4, 1e4);
    std::uniform_real_distribution<double> exponents(-300, 300);
    JsonDocument document;
    document.SetArray();
    for (int i = 0; i < 50000; ++i)
    {
        const double length = lengths(random);
        document.PushBack(length, document.GetAllocator());
        document.PushBack(length * std::pow(10.0, exponents(random)), document.GetAllocator());
    }
    const JsonDocument read = test::parsed(test::textOf(document));
    ASSERT_EQ(read.Size(), document.Size());
    for (rapidjson::SizeType i = 0; i < read.Size(); ++i)
    {
        const double number = document[i].GetDouble();
        ASSERT_LE(std::abs(bitsOf(read[i].GetDouble()) - bitsOf(number)), 2) << number;
    }
}

TEST(Limits, KeysOfLaterVersionsArePassedOver)
{
    for (const test::FullRow& row : test::allFullRows())
    {
        JsonDocument document = test::parsed(row.in);
        if (!document.IsObject())
        {
            continue;
        }
        document.AddMember(WIDE("key_of_a_later_version"), JsonValue(rapidjson::kArrayType), document.GetAllocator());
        const auto byTree = row.make();
        byTree->readObject(document);
        EXPECT_EQ(test::written(*byTree), row.out) << row.title;

        Bytes form;
        JsonBinaryIO::write(form, document);
        const auto direct = row.make();
        JsonBinaryIO::read(form.data(), form.size(), *direct, ReadRules::strict());
        EXPECT_EQ(test::written(*direct), row.out) << row.title;
    }
}

} // namespace
