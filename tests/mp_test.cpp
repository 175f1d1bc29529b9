#include "mp/narrow.h"
#include "tests/support/helpers.h"
#include "tests/support/shared_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <stdexcept>
#include <thread>

#ifdef __linux__
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#endif

using namespace mp;

namespace
{

using Buffer = SharedBuffer<char>;

std::string textOf(const SharedCopy& content)
{
    return {content.data(), content.size()};
}

TEST(Narrow, KeepsAscii)
{
    EXPECT_EQ(toNarrow(WIDE("Shared ~ 1")), "Shared ~ 1");
    EXPECT_EQ(toWide("Shared ~ 1"), WIDE("Shared ~ 1"));
    EXPECT_EQ(toNarrow(wstring()) + toNarrow(toWide(std::string_view("a\0b", 3))), std::string("a\0b", 3));
}

#ifndef _WIN32
TEST(Narrow, IsUtf8)
{
    const std::pair<wstring, const char*> texts[] = {
        {WIDE("\u007F\u0080\u07FF\u0800\uFFFF"), "7F C280 DFBF E0A080 EFBFBF"},
        {WIDE("\U00010000\U0001F529\U0010FFFF"), "F0908080 F09F94A9 F48FBFBF"},
    };
    for (const auto& [wide, hex] : texts)
    {
        EXPECT_EQ(toNarrow(wide), test::bytes(hex));
        EXPECT_EQ(toWide(test::bytes(hex)), wide);
    }
    const wchar high = 0xD800;
    const wchar low = 0xDC00;
    EXPECT_EQ(toNarrow(wstring{high, 'a', low, high}), test::bytes("EFBFBD 61 EFBFBD EFBFBD"));
}

TEST(Narrow, ReplacesEachMalformedByte)
{
    // A lone continuation, a cut sequence, an overlong one, a surrogate, a character behind the last.
    const std::pair<const char*, std::size_t> texts[] = {
        {"80", 1},     {"E282", 2},     {"C0AF", 2}, {"E08080", 3},   {"EDA080", 3},
        {"EDB080", 3}, {"F4908080", 4}, {"F5", 1},   {"FC808080", 4}, {"FF", 1},
    };
    for (const auto& [hex, replaced] : texts)
    {
        EXPECT_EQ(toWide(test::bytes(hex) + 'a'), wstring(replaced, WIDE('\uFFFD')) + WIDE('a')) << hex;
    }
}
#endif

TEST(SharedBuffer, RefusesToWorkUnopened)
{
    Buffer buffer;
    std::vector<char> bytes;
    EXPECT_EQ(test::thrownBy<SharedMemoryException>([&] { buffer.open(wstring(), true); }),
              "Shared variable name mustn't be empty");
    EXPECT_THROW(buffer.open(WIDE("../outside"), true), SharedMemoryException);
    const char* const unopened = "Shared buffer was not initialized";
    EXPECT_EQ(test::thrownBy<SharedMemoryException>([&] { buffer.write("a", 1); }), unopened);
    EXPECT_EQ(test::thrownBy<SharedMemoryException>([&] { buffer.fill(1, [](char*) {}); }), unopened);
    EXPECT_EQ(test::thrownBy<SharedMemoryException>([&] { buffer.read(bytes); }), unopened);
    EXPECT_EQ(test::thrownBy<SharedMemoryException>([&] { buffer.copy(); }), unopened);
    EXPECT_EQ(test::thrownBy<SharedMemoryException>([&] { buffer.clear(); }), unopened);
}

TEST(SharedBuffer, HoldsExactlyTheLastBytesUntilItIsRemoved)
{
    const wstring name = vrx::IExchangeObject::generateUUID();
    const std::string content("\0\x1F"
                              "abc\xFF",
                              6);
    {
        Buffer writer;
        writer.open(name, false);
        std::vector<char> bytes(3, 'x');
        writer.read(bytes);
        EXPECT_TRUE(bytes.empty());
        writer.write("a longer content", 16);
        writer.write(content.data(), content.size());
    }
    EXPECT_EQ(test::takeBuffer(name), content);
    EXPECT_EQ(test::takeBuffer(name), "");
}

TEST(SharedBuffer, IsSeenThroughTwoHandlesAndCleared)
{
    const wstring name = vrx::IExchangeObject::generateUUID();
    Buffer writer;
    Buffer reader;
    writer.open(name, true);
    reader.open(name, false);
    writer.write("abc", 3);
    std::vector<char> bytes;
    reader.read(bytes);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), "abc");
    writer.clear();
    reader.read(bytes);
    EXPECT_TRUE(bytes.empty());
}

TEST(SharedBuffer, IsCopiedAsItWasAndInPart)
{
    Buffer buffer;
    buffer.open(vrx::IExchangeObject::generateUUID(), true);
    EXPECT_EQ(buffer.copy().size(), 0U);
    SharedCopy early;
    buffer.fill(6, [&](char* out) {
        std::memcpy(out, "filled", 6);
        early = buffer.copy();
        std::memcpy(out, "FILL", 4);
    });
    const SharedCopy moved = std::move(early);
    EXPECT_EQ(textOf(moved), "filled");
    EXPECT_EQ(textOf(buffer.copy(4)), "FILL");
    EXPECT_EQ(textOf(buffer.copy(7)), "FILLed");
    EXPECT_EQ(buffer.size(), 6U);
}

TEST(SharedBuffer, ThatCanNotBeFilledIsLeftEmpty)
{
    Buffer buffer;
    buffer.open(vrx::IExchangeObject::generateUUID(), true);
    buffer.write("abc", 3);
    const auto fail = [](char* out) {
        *out = 'x';
        throw std::out_of_range("no more");
    };
    EXPECT_EQ(test::thrownBy<std::out_of_range>([&] { buffer.fill(100, fail); }), "no more");
    EXPECT_EQ(buffer.copy().size(), 0U);
    buffer.write("again", 5);
    EXPECT_EQ(textOf(buffer.copy()), "again");
}

TEST(SharedBuffer, CanNotWriteNothing)
{
    Buffer buffer;
    buffer.open(vrx::IExchangeObject::generateUUID(), true);
    buffer.write("abc", 3);
    EXPECT_THROW(buffer.write("", 0), SharedMemoryException);
    std::vector<char> bytes;
    buffer.read(bytes);
    EXPECT_TRUE(bytes.empty());
}

TEST(SharedBuffer, IsNotMadeByALook)
{
    Buffer buffer;
    const wstring missing = vrx::IExchangeObject::generateUUID();
    EXPECT_FALSE(buffer.openExisting(missing));
    EXPECT_FALSE(buffer.openExisting(missing));
    EXPECT_THROW(buffer.openExisting({}), SharedMemoryException);

    const wstring name = test::leaveBuffer("left");
    EXPECT_TRUE(buffer.openExisting(name));
    EXPECT_EQ(textOf(buffer.copy()), "left");
    EXPECT_FALSE(buffer.openExisting(missing)); // which leaves open what is open
    EXPECT_EQ(textOf(buffer.copy()), "left");
    EXPECT_EQ(test::takeBuffer(name), "left");
}

TEST(SharedBuffer, IsRemovedOnceByItsName)
{
    const wstring name = test::leaveBuffer("left");
    EXPECT_TRUE(Buffer::remove(name));
    EXPECT_FALSE(Buffer::remove(name));
    EXPECT_THROW(Buffer::remove({}), SharedMemoryException);
}

TEST(SharedBuffer, IsRemovedByOneThatFoundIt)
{
    const wstring name = test::leaveBuffer("left");
    {
        Buffer buffer;
        EXPECT_TRUE(buffer.openExisting(name));
        buffer.setRemoveOnClose(true);
    }
    EXPECT_FALSE(Buffer::remove(name));
}

TEST(SharedBuffer, IsToldOfBeforeItIsMade)
{
    const wstring name = vrx::IExchangeObject::generateUUID();
    static wstring told;
    setSharedBufferWatcher([](const wstring& text) {
        told = text;
        throw std::runtime_error(Buffer().openExisting(text) ? "it is there" : "not yet");
    });
    Buffer buffer;
    EXPECT_EQ(test::thrownBy<std::runtime_error>([&] { buffer.open(name, true); }), "not yet");
    setSharedBufferWatcher(nullptr);
    EXPECT_TRUE(told == name);
    EXPECT_FALSE(Buffer().openExisting(name));
}

TEST(SharedBuffer, TurnsTheErrorsOfTheSystem)
{
    Buffer buffer;
    EXPECT_THROW(buffer.open(wstring(5000, WIDE('n')), true), SharedMemoryException);
    EXPECT_THROW(buffer.write("a", 1), SharedMemoryException);
}

#ifdef __linux__
std::string fileOf(const wstring& name)
{
    return "/dev/shm/" + toNarrow(name);
}

TEST(SharedBuffer, IsForItsUserAlone)
{
    const mode_t before = umask(0);
    Buffer buffer;
    buffer.open(vrx::IExchangeObject::generateUUID(), true);
    umask(before);
    struct stat status = {};
    ASSERT_EQ(stat(fileOf(buffer.name()).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST(SharedBuffer, OfMoreThanTheSystemHoldsIsRefusedAndLeavesNothing)
{
    struct statvfs system = {};
    ASSERT_EQ(statvfs("/dev/shm", &system), 0);
    ASSERT_GT(system.f_blocks, 0U) << "shared memory without a limit";
    const std::uint64_t tooMuch = std::uint64_t{system.f_blocks} * system.f_frsize + 4096;
    struct stat status = {};
    std::string file;
    {
        Buffer buffer;
        buffer.open(vrx::IExchangeObject::generateUUID(), true);
        file = fileOf(buffer.name());
        EXPECT_THROW(buffer.write("not read", tooMuch), SharedMemoryException);

        // Not the size that was wanted, whose first use would kill the process that comes to read.
        ASSERT_EQ(stat(file.c_str(), &status), 0);
        ASSERT_EQ(status.st_size, 0);
        buffer.write("abc", 3);
        ASSERT_EQ(stat(file.c_str(), &status), 0);
        EXPECT_EQ(status.st_size, 3);
    }
    EXPECT_NE(stat(file.c_str(), &status), 0);
}

// An object of another program, which wrote three bytes into the middle and sized the rest only.
class SparseObject
{
public:
    SparseObject(off_t size, off_t middle)
        : m_name(vrx::IExchangeObject::generateUUID())
        , m_file(open(fileOf(m_name).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
    {
        EXPECT_EQ(ftruncate(m_file, size), 0);
        EXPECT_EQ(pwrite(m_file, "abc", 3, middle), 3);
    }
    SparseObject(const SparseObject&) = delete;
    SparseObject& operator=(const SparseObject&) = delete;
    ~SparseObject() { close(m_file); }

    const wstring& name() const { return m_name; }

    blkcnt_t blocks() const
    {
        struct stat status = {};
        EXPECT_EQ(fstat(m_file, &status), 0);
        return status.st_blocks;
    }

private:
    wstring m_name;
    int m_file;
};

// In a mapping this would be a bus error.
TEST(SharedBuffer, ThatAnotherMakesShorterEndsNoReader)
{
    const wstring name = vrx::IExchangeObject::generateUUID();
    const std::string content(100000, 'x');
    Buffer reader;
    reader.open(name, true);
    std::atomic<bool> isDone = false;
    std::thread other([&] {
        Buffer writer;
        writer.open(name, false);
        while (!isDone)
        {
            writer.write(content.data(), content.size());
            writer.clear();
        }
    });
    for (int round = 0; round < 1000; ++round)
    {
        const std::string seen = textOf(reader.copy());
        EXPECT_EQ(seen.find_first_not_of(std::string("x\0", 2)), std::string::npos);
    }
    isDone = true;
    other.join();
}

// A page that is made by looking at it is one that a full file system can't supply.
TEST(SharedBuffer, OfWhichPagesAreMissingIsReadWithoutMakingThem)
{
    constexpr std::size_t kSize = 100001;
    for (const std::size_t place : {0U, 50000U})
    {
        std::string expected(kSize, '\0');
        expected.replace(place, 3, "abc");

        const SparseObject object(kSize, static_cast<off_t>(place));
        const blkcnt_t blocks = object.blocks();
        Buffer buffer;
        buffer.open(object.name(), true);
        EXPECT_TRUE(textOf(buffer.copy()) == expected);
        std::vector<char> bytes;
        buffer.read(bytes);
        EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), expected.begin(), expected.end()));
        EXPECT_EQ(object.blocks(), blocks);
    }
}

TEST(SharedBuffer, OfWhichMostPagesAreMissingCostsThoseThatItHas)
{
    constexpr std::size_t kSize = std::size_t{1} << 30U;
    constexpr std::size_t kMiddle = kSize / 2 - 1;
    const SparseObject object(kSize, kMiddle);
    const blkcnt_t blocks = object.blocks();
    Buffer buffer;
    buffer.open(object.name(), true);
    const SharedCopy content = buffer.copy();
    ASSERT_EQ(content.size(), kSize);
    EXPECT_EQ(std::string(content.data() + kMiddle - 1, 5), std::string("\0abc\0", 5));
    EXPECT_EQ(content.data()[0] + content.data()[kSize - 1], 0);
    EXPECT_EQ(object.blocks(), blocks);
}
#endif

} // namespace
