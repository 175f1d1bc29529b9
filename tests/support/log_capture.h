#pragma once

#include "kolt/logger.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace test
{

/// The log of the whole test process, at the trace level, in a file that goes with the process.
class LogFile
{
public:
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    static LogFile& instance()
    {
        static LogFile file;
        return file;
    }

    const std::filesystem::path& path() const { return m_path; }

    /// Makes this file the process's log again, after a test that used another or another level.
    void open(int level = kolt::kTrace) const { kolt::LoggerHolder::initLogger(level, m_path.string()); }

    /// Drops what has been logged.
    void clear() const { std::filesystem::resize_file(m_path, 0); }

    /// Closes the log: Windows keeps an open file from being removed.
    static void close() { kolt::LoggerHolder::initLogger(kolt::kFatal, std::string()); }

    static std::filesystem::path newPath()
    {
        return std::filesystem::temp_directory_path() /
               ("vrx_api_tests-" + std::to_string(std::random_device()()) + ".log");
    }

private:
    LogFile() { open(); }
    ~LogFile()
    {
        close();
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }

    std::filesystem::path m_path = newPath();
};

/// What has been logged since this object was made.
class LogCapture
{
public:
    LogCapture()
        : m_mark(std::filesystem::file_size(LogFile::instance().path()))
    {
    }

    /// The texts of the lines whose tag is this one, such as "ERROR".
    std::vector<std::string> lines(const std::string& tag) const
    {
        std::vector<std::string> found;
        forEachLine([&](const std::string& line) {
            if (line.rfind('[' + tag + ']', 0) == 0)
            {
                found.push_back(textOf(line));
            }
        });
        return found;
    }

    /// The tags and texts of all lines.
    std::vector<std::string> all() const
    {
        std::vector<std::string> found;
        forEachLine(
            [&](const std::string& line) { found.push_back(line.substr(0, line.find(']') + 1) + ' ' + textOf(line)); });
        return found;
    }

    /// The same of all lines but trace lines.
    std::vector<std::string> complaints() const
    {
        std::vector<std::string> found = all();
        found.erase(std::remove_if(found.begin(), found.end(),
                                   [](const std::string& line) { return line.rfind("[TRACE]", 0) == 0; }),
                    found.end());
        return found;
    }

private:
    template <class Function>
    void forEachLine(Function function) const
    {
        std::ifstream file(LogFile::instance().path(), std::ios::binary);
        file.seekg(static_cast<std::streamoff>(m_mark));
        for (std::string line; std::getline(file, line);)
        {
            if (!line.empty() && line.back() == '\r')
            {
                line.pop_back();
            }
            function(line);
        }
    }

    // Behind the tag, the time and the thread, each in brackets.
    static std::string textOf(const std::string& line)
    {
        std::size_t position = 0;
        for (int i = 0; i < 3; ++i)
        {
            position = line.find("] ", position) + 2;
        }
        // The tag is padded, so that the time's bracket may stand further on.
        return line.substr(position);
    }

    std::uintmax_t m_mark;
};

} // namespace test
