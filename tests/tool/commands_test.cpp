#include "capture/capture_writer.h"
#include "commands/commands.h"
#include "files.h"
#include "tests/support/child_process.h"
#include "tests/support/helpers.h"
#include "tests/support/shared_memory.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using test::TemporaryFile;

// What a command prints, and its exit code.
std::string output(const tool::Command& command, const std::vector<std::string>& words)
{
    std::ostringstream out;
    std::streambuf* const before = std::cout.rdbuf(out.rdbuf());
    int code = 0;
    try
    {
        tool::Arguments arguments(words);
        code = command.run(arguments);
    }
    catch (...)
    {
        std::cout.rdbuf(before);
        throw;
    }
    std::cout.rdbuf(before);
    return out.str() + "exit code " + std::to_string(code);
}

class Show : public testing::Test
{
protected:
    Show()
    {
        capture::CaptureWriter writer(m_file.name(), true);
        writer.fromHost(WIDE("{\"command\":\"x\"}"));
        writer.buffer(WIDE("b"), "\0bodies", 7);
        writer.fromTranslator(WIDE("{\"exchange_object_name\":\"exc_block_geometry\",\"exchange_object_data\":"
                                   "{\"shared_acis_buffer_name\":\"b\",\"block_id\":3,\"acis_body_ids\":[1,2]}}"));
        writer.fromTranslator(WIDE("{\"code\":\"ok\"}"));
    }

    std::string show(std::vector<std::string> words) const
    {
        words.push_back(m_file.name());
        const std::string text = output(tool::kShow, words);
        return std::regex_replace(text, std::regex("[0-9.]+ s from"), "0 s from");
    }

    TemporaryFile m_file{""};
};

TEST_F(Show, TellsOfEachMessage)
{
    EXPECT_EQ(show({"--summary"}), "#1 0 s from the host: command\n"
                                   "#2 0 s from the translator: exc_block_geometry, buffer 7 bytes, block 3, "
                                   "acis_body_ids 2\n"
                                   "#3 0 s from the translator: result\n"
                                   "exit code 0");
    EXPECT_EQ(show({"--only", "result"}), "#3 0 s from the translator: result\n{\n  \"code\": \"ok\"\n}\nexit code 0");
}

TEST_F(Show, FindsWhatIsPointedAt)
{
    EXPECT_EQ(show({"--at", "2:/acis_body_ids"}), "[1, 2]\nexit code 0");
    EXPECT_EQ(show({"--at", "/block_id"}),
              "#2 0 s from the translator: exc_block_geometry, buffer 7 bytes\n3\nexit code 0");
    EXPECT_EQ(show({"--raw", "--at", "2:"}), std::string("\0bodies", 7) + "exit code 0");
    EXPECT_EQ(show({"--raw", "--only=command"}), "{\"command\":\"x\"}\nexit code 0");
    EXPECT_EQ(show({"--raw", "--at", "2"}), std::string("\0bodies", 7) + "exit code 0");
    EXPECT_EQ(show({"--at=2"}), show({"--at=2:"}));
    EXPECT_THROW(show({"--at", "9:"}), tool::InputError);
    EXPECT_THROW(show({"--at", "/nowhere"}), tool::InputError);
    EXPECT_THROW(show({"--color", "sometimes"}), tool::UsageError);
}

TEST_F(Show, PassesNoOptionOver)
{
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{{"--raw", "--at", "2:/nowhere"},
                                                                                       {"--raw", "--at", ""},
                                                                                       {"--summary", "--at", "2"},
                                                                                       {"--summary", "--raw"},
                                                                                       {"--summary", "--all"},
                                                                                       {"--raw", "--all"},
                                                                                       {"--at", "0:"},
                                                                                       {"--at", "2x"}})
    {
        EXPECT_THROW(show(words), tool::UsageError) << testing::PrintToString(words);
    }
}

TEST_F(Show, ARecordingThatIsCutIsToldBesidesTheOutput)
{
    std::filesystem::resize_file(m_file.name(), std::filesystem::file_size(m_file.name()) - 1);
    const std::string warning = "vrx: " + m_file.name() + ": the recording is cut\n";
    testing::internal::CaptureStderr();
    EXPECT_THAT(show({"--only=command", "--raw"}), testing::StartsWith("{\"command\":\"x\"}\nexit"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), warning);
    testing::internal::CaptureStderr();
    EXPECT_EQ(output(tool::kDiff, {m_file.name(), m_file.name()}), "exit code 0");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), warning + warning);
}

TEST(DiffLines, TellInWhichInputThePlaceIs)
{
    const TemporaryFile a(R"({"x":[{"id":1}]})");
    const TemporaryFile b(R"({"x":[{"id":1},{"id":9}]})");
    EXPECT_EQ(output(tool::kDiff, {a.name(), b.name()}), "/x/1 in B (id 9): only in B: {...}\nexit code 1");
    EXPECT_THAT(output(tool::kDiff, {"--json", a.name(), b.name()}), testing::HasSubstr(R"("pointer_in": "B")"));
}

// GoogleTest's own regular expressions have no sets on Windows.
testing::Matcher<const std::string&> matches(const std::string& pattern)
{
    return testing::ResultOf(
        "search for " + pattern,
        [pattern](const std::string& text) { return std::regex_search(text, std::regex(pattern)); }, testing::IsTrue());
}

TEST(Clean, TriesWithoutRemoving)
{
    const mp::wstring name = test::leaveBuffer("12345");
    const std::string narrow(name.begin(), name.end());
    EXPECT_THAT(output(tool::kClean, {"--dry-run", "--older-than", "0s"}),
                testing::HasSubstr("would remove " + narrow + ", 5 bytes, "));
    EXPECT_THAT(output(tool::kClean, {"--dry-run"}),
                matches("kept " + narrow + ", 5 bytes, [0-9]* s old: it is younger than 60 min"));
    EXPECT_THAT(output(tool::kList, {}), matches(narrow + " +5 +[0-9]+ s .*bodies\\?"));
    EXPECT_EQ(test::takeBuffer(name), "12345");
}

TEST(Arguments, OperandsStandBehindTheEndOfOptionsToo)
{
    const std::vector<std::string> words = {"--known", "a", "b", "--known=", "--", "--known", "-c"};
    tool::Arguments arguments(words);
    EXPECT_EQ(arguments.takeAll("--known"), (std::vector<std::string>{"a", ""}));
    EXPECT_EQ(arguments.takeOperand(""), "b");
    EXPECT_EQ(arguments.takeOperand(""), "--known");
    EXPECT_TRUE(arguments.hasOperand());
    EXPECT_EQ(arguments.takeOperand(""), "-c");
    EXPECT_NO_THROW(arguments.end());
}

TEST(Arguments, WhatNobodyKnowsIsTold)
{
    const auto refusal = [](const tool::Command& command, const std::vector<std::string>& words) {
        return test::thrownBy<tool::UsageError>([&] { output(command, words); });
    };
    EXPECT_EQ(refusal(tool::kShow, {"--bogus"}), "unknown argument: --bogus");
    EXPECT_EQ(refusal(tool::kShow, {}), "WHAT is missing");
    EXPECT_EQ(refusal(tool::kCheck, {"--ignore=", "x"}), "unknown code: ");
    EXPECT_EQ(refusal(tool::kCheck, {"--known", "", "x"}), "unknown class: ");
    EXPECT_EQ(refusal(tool::kCheck, {"--known", "Foo/bar", "x"}), "unknown class: Foo");
}

#ifdef __linux__ // which has a disk that is always full
TEST(Output, LostOutputIsNoSuccess)
{
    EXPECT_EQ(test::ChildProcess({"sh", "-c", VRX_TOOL " schema > /dev/full 2> /dev/null"}).wait(), tool::kUnreadable);
    EXPECT_EQ(
        test::ChildProcess({"bash", "-c", "trap '' PIPE; " VRX_TOOL " schema | true; exit ${PIPESTATUS[0]}"}).wait(),
        tool::kSuccess);
}
#endif

using Options = std::map<std::string, std::set<std::string>>;

std::string contentOf(const std::string& name)
{
    std::ifstream file(VRX_TOOL_SOURCE + ("/" + name));
    return {std::istreambuf_iterator<char>(file), {}};
}

std::set<std::string> optionsIn(const std::string& text)
{
    static const std::regex option("(?:^|[\\s\\[('])(--?[a-z][-a-z]*)");
    std::set<std::string> options;
    for (std::sregex_iterator found(text.begin(), text.end(), option); found != std::sregex_iterator(); ++found)
    {
        options.insert((*found)[1]);
    }
    options.erase("--help");
    options.erase("-h");
    return options;
}

Options optionsOfHelp()
{
    Options options;
    for (const tool::Command* const command : tool::allCommands())
    {
        options[command->name] = optionsIn(command->help);
    }
    return options;
}

// Each command has a subsection, which the next one or a section ends.
Options optionsOfManual()
{
    Options options;
    std::istringstream lines(contentOf("vrx.1"));
    std::string command;
    for (std::string line; std::getline(lines, line);)
    {
        line = std::regex_replace(line, std::regex("\\\\-"), "-");
        if (line.compare(0, 3, ".SS") == 0 || line.compare(0, 3, ".SH") == 0)
        {
            command = line[2] == 'S' ? line.substr(4) : "";
        }
        if (!command.empty())
        {
            options[command].merge(optionsIn(line));
        }
    }
    return options;
}

Options optionsOfCompletion()
{
    Options options;
    const std::string text = contentOf("vrx.bash");
    const std::regex entry("([a-z]+)\\) options='([^']*)'");
    for (std::sregex_iterator found(text.begin(), text.end(), entry); found != std::sregex_iterator(); ++found)
    {
        options[(*found)[1]] = optionsIn((*found)[2]);
    }
    return options;
}

TEST(Documentation, HelpManualAndCompletionNameTheSame)
{
    EXPECT_EQ(optionsOfManual(), optionsOfHelp());
    EXPECT_EQ(optionsOfCompletion(), optionsOfHelp());
}

} // namespace
