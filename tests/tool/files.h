#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>

namespace test
{

/// A file of the test that runs, removed at its end.
class TemporaryFile
{
public:
    explicit TemporaryFile(std::string_view bytes)
    {
        static int count = 0;
        const auto* const info = testing::UnitTest::GetInstance()->current_test_info();
        m_name = testing::TempDir() + info->test_suite_name() + '.' + info->name() + std::to_string(++count);
        for (char& c : m_name)
        {
            c = c == '/' && &c >= m_name.data() + testing::TempDir().size() ? '_' : c;
        }
        std::ofstream(m_name, std::ios::binary) << bytes;
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { std::remove(m_name.c_str()); } // NOLINT(cert-err33-c): a file that is left does no harm

    const std::string& name() const { return m_name; }

private:
    std::string m_name;
};

} // namespace test
