#include "buffers/buffers.h"
#include "tests/support/json_text.h"
#include "tests/support/shared_memory.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/json_binary_io.h"

#include <boost/interprocess/mapped_region.hpp>
#include <boost/interprocess/shared_memory_object.hpp>
#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace
{

// A buffer that is removed at the end, and can be made old.
class Buffer
{
public:
    explicit Buffer(std::string_view bytes)
        : m_wide(test::leaveBuffer(bytes))
        , m_name(m_wide.begin(), m_wide.end())
    {
    }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;
    ~Buffer() { mp::SharedBuffer<char>::remove(m_wide); }

    const mp::wstring& wide() const { return m_wide; }
    const std::string& name() const { return m_name; }

    void makeOld() const
    {
        std::filesystem::last_write_time(buffers::folder() + '/' + m_name,
                                         std::filesystem::file_time_type::clock::now() - std::chrono::hours(1000));
    }

    std::optional<buffers::Buffer> find() const
    {
        const std::vector<buffers::Buffer> all = buffers::all(false);
        const auto found =
            std::find_if(all.begin(), all.end(), [this](const auto& buffer) { return buffer.name == m_name; });
        return found == all.end() ? std::nullopt : std::make_optional(*found);
    }

private:
    mp::wstring m_wide;
    std::string m_name;
};

std::string formOf(std::string_view json, bool isCompressed)
{
    std::vector<char> bytes;
    vrx::JsonBinaryIO::write(bytes, test::parsed(json));
    std::string form(bytes.begin(), bytes.end());
    if (isCompressed)
    {
        vrx::Compressor::compress(form, bytes.data(), bytes.size(), -1);
    }
    return form;
}

TEST(Buffers, AreFoundByTheFormOfTheirNames)
{
    EXPECT_TRUE(buffers::isBufferName("0840dc80-c450-42ba-936f-9912190436a7"));
    for (const char* const other : {"0840dc80-c450-12ba-936f-9912190436a7", "0840dc80-c450-42ba-c36f-9912190436a7",
                                    "0840DC80-c450-42ba-936f-9912190436a7", "0840dc80-c450-42ba-936f-9912190436a",
                                    "sem.x", "", "0840dc80-c450-42ba-936f-9912190436a7x"})
    {
        EXPECT_FALSE(buffers::isBufferName(other)) << other;
    }
    const Buffer buffer("12345");
    const auto found = buffer.find();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->size, 5U);
    EXPECT_LT(found->age.count(), 600);
    EXPECT_FALSE(found->isOpen);
}

TEST(Buffers, ClassIsGuessedByTheFirstKeys)
{
    const std::string large =
        R"({"block_id":1,"misc_data":")" + std::string(300'000, 'x') + R"(","visualization_data":1})";
    for (const bool isCompressed : {false, true})
    {
        EXPECT_EQ(
            buffers::guessedClass(Buffer(formOf(R"({"block_id":1,"visualization_data":{}})", isCompressed)).name()),
            "exc_block_visualization?");
        EXPECT_EQ(buffers::guessedClass(Buffer(formOf(large, isCompressed)).name()), "exc_block_mechanical_data?");
        EXPECT_EQ(buffers::guessedClass(Buffer(formOf("[1]", isCompressed)).name()), "?");
    }
    EXPECT_EQ(buffers::guessedClass(Buffer("no form").name()), "bodies?");
}

TEST(Buffers, OnlyUnusedOnesAreRemoved)
{
    const Buffer buffer("12345");
    buffer.makeOld();
    {
        mp::SharedBuffer<char> open;
        ASSERT_TRUE(open.openExisting(buffer.wide()));
        const auto found = buffer.find();
        ASSERT_TRUE(found && found->isOpen);
        EXPECT_EQ(buffers::removeUnused(*found), "a process has it open");
    }
    const auto found = buffer.find();
    ASSERT_TRUE(found && !found->isOpen);
    EXPECT_GT(found->age, std::chrono::hours(999));
    std::filesystem::last_write_time(buffers::folder() + '/' + buffer.name(),
                                     std::filesystem::file_time_type::clock::now());
    EXPECT_EQ(buffers::removeUnused(*found), "it was just written");
    buffer.makeOld();
    EXPECT_EQ(buffers::removeUnused(*found), "");
    EXPECT_FALSE(buffer.find());
    EXPECT_EQ(buffers::removeUnused(*found), "it is gone");
}

#ifndef _WIN32
namespace ipc = boost::interprocess;

TEST(Buffers, MappedOnesAreInUseAndLinksAreLeftAlone)
{
    const Buffer buffer("12345");
    buffer.makeOld();
    std::optional<ipc::mapped_region> region;
    {
        const ipc::shared_memory_object open(ipc::open_only, buffer.name().c_str(), ipc::read_only);
        region.emplace(open, ipc::read_only);
    }
    ASSERT_TRUE(buffer.find()->isOpen);
    region.reset();

    buffers::Buffer asked = *buffer.find();
    asked.name = mp::toNarrow(vrx::IExchangeObject::generateUUID());
    const std::string link = buffers::folder() + '/' + asked.name;
    std::filesystem::create_symlink(buffers::folder() + '/' + buffer.name(), link);
    EXPECT_EQ(buffers::removeUnused(asked), "it is gone");
    EXPECT_THAT(buffers::all(true), testing::Each(testing::Field(&buffers::Buffer::name, testing::Ne(asked.name))));
    std::filesystem::remove(link);
    EXPECT_TRUE(buffer.find());
}
#endif

} // namespace
