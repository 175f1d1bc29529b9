#include "common/framing.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

namespace
{

// A pipe whose write end the test closes when it wants to.
class FramingTest : public testing::Test
{
protected:
    FramingTest()
    {
        if (::pipe(m_ends) != 0)
        {
            throw std::runtime_error("no pipe");
        }
    }
    ~FramingTest() override
    {
        ::close(m_ends[0]);
        closeWriter();
    }

    int reader() const { return m_ends[0]; }
    int writer() const { return m_ends[1]; }

    void put(const std::string& bytes)
    {
        ASSERT_EQ(::write(writer(), bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }

    void closeWriter()
    {
        if (m_ends[1] >= 0)
        {
            ::close(m_ends[1]);
            m_ends[1] = -1;
        }
    }

private:
    int m_ends[2] = {-1, -1};
};

TEST_F(FramingTest, CarriesAnyUnitsOneFrameBehindTheOther)
{
    mp::wstring odd = WIDE("a\u4E2D");
    odd += mp::wchar(0);
    odd += mp::wchar(0xD800);
    odd += mp::wchar(0xFFFF);
    framing::write(writer(), odd);
    framing::write(writer(), {});
    closeWriter();
    EXPECT_EQ(framing::read(reader()), odd);
    EXPECT_EQ(framing::read(reader()), mp::wstring());
    EXPECT_EQ(framing::read(reader()), std::nullopt);
}

TEST_F(FramingTest, HasTheBytesThatItsCommentStates)
{
    put(std::string("\2\0\0\0A\0\x2D\x4E", 8));
    EXPECT_EQ(framing::read(reader()), mp::wstring(WIDE("A\u4E2D")));
}

TEST_F(FramingTest, RefusesPipesThatEndWithinAFrame)
{
    put(std::string("\2\0\0\0A\0", 6));
    closeWriter();
    EXPECT_THROW(framing::read(reader()), std::runtime_error);
}

TEST_F(FramingTest, RefusesPipesThatEndWithinACount)
{
    put(std::string("\2\0", 2));
    closeWriter();
    EXPECT_THROW(framing::read(reader()), std::runtime_error);
}

TEST_F(FramingTest, RefusesTextThatIsNoFrame)
{
    put("a stray line of text");
    EXPECT_THROW(framing::read(reader()), std::runtime_error);
}

} // namespace
