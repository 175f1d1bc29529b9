#include "tests/support/log_capture.h"

#include <gmock/gmock.h>

#include <sstream>
#include <thread>

using namespace kolt;

namespace
{

using testing::ElementsAre;
using testing::MatchesRegex;

std::vector<std::string> linesOf(const std::filesystem::path& path)
{
    std::ifstream file(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
    {
        lines.push_back(line);
    }
    return lines;
}

// A log of its own; afterwards the process's log is back.
class LoggerHolderTest : public testing::Test
{
protected:
    void SetUp() override { test::LogFile::instance(); }

    void TearDown() override
    {
        test::LogFile::instance().open();
        std::filesystem::remove(m_path);
    }

    static std::vector<bool> enabledLevels()
    {
        std::vector<bool> enabled;
        for (int level = kFatal; level <= kTrace; ++level)
        {
            enabled.push_back(LoggerHolder::levelEnabled(level));
        }
        return enabled;
    }

    std::filesystem::path m_path = test::LogFile::newPath();
};

TEST_F(LoggerHolderTest, LevelZeroDoesNothing)
{
    ILogger* const before = LoggerHolder::logger();
    LoggerHolder::initLogger(0, m_path.string());
    LoggerHolder::initLogger(-1, m_path.string());
    EXPECT_FALSE(std::filesystem::exists(m_path));
    EXPECT_EQ(LoggerHolder::logger(), before);
    EXPECT_TRUE(LoggerHolder::levelEnabled(kTrace));
}

TEST_F(LoggerHolderTest, BeginsAFileAndAppendsToIt)
{
    LoggerHolder::initLogger(1, m_path.string());
    EXPECT_THAT(enabledLevels(), ElementsAre(true, false, false, false, false, false));
    LoggerHolder::initLogger(3, m_path.string());
    test::LogFile::close();
    const char* const separator = R"(\[INFO\]    \[.......... ........\] =+)";
    EXPECT_THAT(linesOf(m_path),
                ElementsAre(MatchesRegex(separator), testing::EndsWith("] Logger initialized with level 1"),
                            MatchesRegex(separator), testing::EndsWith("] Logger initialized with level 3")));
    const std::string first = linesOf(m_path).front();
    EXPECT_EQ(first.substr(first.find('=')), std::string(102, '='));
}

TEST_F(LoggerHolderTest, APathThatCanNotBeOpenedTurnsTheLogOff)
{
    LoggerHolder::initLogger(6, std::filesystem::temp_directory_path().string());
    EXPECT_EQ(LoggerHolder::logger(), nullptr);
    EXPECT_FALSE(LoggerHolder::levelEnabled(kFatal));
}

// Notes the calls between the parts of the text.
class NotingLogger : public ILogger
{
public:
    bool isOpen() const override { return true; }
    std::ostream& begin(int level) override { return text << "begin " << level << ' '; }
    void lock() override { text << "lock "; }
    void unlock() override { text << " unlock"; }
    void flush() override { text << " flush"; }
    void newLine() override { text << " newLine"; }

    std::ostringstream text;
};

TEST(MTLoggerTest, GuardsOneLineOfAnyLogger)
{
    NotingLogger logger;
    {
        MTLogger line(logger);
        line.begin(kError) << 255;
    }
    std::ostringstream thread;
    thread << std::hex << std::this_thread::get_id();
    EXPECT_EQ(logger.text.str(), "lock begin 2 [" + thread.str() + "] 255 newLine flush unlock");
}

TEST(LoggerTest, TagsEachLevel)
{
    const std::filesystem::path path = test::LogFile::newPath();
    {
        Logger logger(path.string());
        for (int level = 0; level <= 7; ++level)
        {
            logger.begin(level);
            logger.newLine();
        }
    }
    std::vector<std::string> tags;
    for (const std::string& line : linesOf(path))
    {
        EXPECT_EQ(line.size(), 32U);
        tags.push_back(line.substr(0, 11));
    }
    std::filesystem::remove(path);
    EXPECT_THAT(tags, ElementsAre("[UNKNOWN] [", "[FATAL]   [", "[ERROR]   [", "[WARNING] [", "[INFO]    [",
                                  "[DEBUG]   [", "[TRACE]   [", "[UNKNOWN] ["));
}

TEST(LoggerTest, LinesOfThreadsDoNotMix)
{
    const test::LogCapture log;
    const auto writeLines = [] {
        for (int i = 0; i < 200; ++i)
        {
            MTLogger line(*LoggerHolder::logger());
            std::ostream& stream = line.begin(kDebug);
            for (int word = 0; word < 10; ++word)
            {
                stream << "word ";
            }
        }
    };
    std::thread other(writeLines);
    writeLines();
    other.join();
    const std::vector<std::string> lines = log.lines("DEBUG");
    EXPECT_EQ(lines.size(), 400U);
    EXPECT_THAT(lines, testing::Each("word word word word word word word word word word "));
}

} // namespace
