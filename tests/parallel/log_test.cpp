#include "kolt/log.h"
#include "tests/parallel/threads.h"
#include "tests/support/log_capture.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <gtest/gtest.h>

#include <map>
#include <regex>

namespace
{

constexpr int kLines = 100;

// What a level has in the file: lines that are whole. One that is mixed with another counts as "mixed".
std::map<std::string, int> takeLines(const std::filesystem::path& path)
{
    const std::regex whole(R"(\[([A-Z]+)\] *\[[0-9. :]+\] \[[0-9a-f]+\] thread \d line \d+ x{100}\r?)");
    std::map<std::string, int> counts;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
    {
        std::smatch match;
        if (line.find("thread ") != std::string::npos)
        {
            ++counts[std::regex_match(line, match, whole) ? match[1].str() : "mixed"];
        }
    }
    file.close();
    std::filesystem::remove(path);
    return counts;
}

void logInThreads()
{
    test::inThreads([](int number) {
        for (int line = 0; line < kLines; ++line)
        {
            for (int level = kolt::kFatal; level <= kolt::kTrace; ++level)
            {
                kolt::log(level, "thread ", number, " line ", line, ' ', std::string(100, 'x'));
            }
            vrx::ExcBlock().readObject(vrx::JsonValue()); // says so, and leaves its trace
        }
    });
}

// The log is set up before the threads start. When they are done another one may take its place.
TEST(ThreadsLog, WholeLinesAtAllLevels)
{
    const std::filesystem::path first = test::LogFile::newPath();
    const std::filesystem::path second = test::LogFile::newPath();
    kolt::LoggerHolder::initLogger(kolt::kTrace, first.string());
    logInThreads();
    kolt::LoggerHolder::initLogger(kolt::kWarning, second.string());
    logInThreads();
    test::LogFile::close();
    logInThreads();

    constexpr int kAll = kLines * test::kThreads;
    const std::map<std::string, int> upToWarnings = {{"FATAL", kAll}, {"ERROR", kAll}, {"WARNING", kAll}};
    std::map<std::string, int> all = upToWarnings;
    all.insert({{"INFO", kAll}, {"DEBUG", kAll}, {"TRACE", kAll}});
    EXPECT_EQ(takeLines(first), all);
    EXPECT_EQ(takeLines(second), upToWarnings);
}

} // namespace
