#pragma once

#include "tests/support/helpers.h"
#include "tests/support/json_text.h"
#include "tests/support/log_capture.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace test
{

/// A case of a model class: what a fresh object reads, what it writes afterwards, and what is logged meanwhile.
struct ModelRow
{
    std::string name;
    std::shared_ptr<vrx::IJsonObject> (*make)();
    std::string in;
    std::string out;
    std::vector<std::string> log;

    friend std::ostream& operator<<(std::ostream& stream, const ModelRow& row) { return stream << row.name; }
};

template <class T>
ModelRow row(std::string name, std::string in, std::string out, std::vector<std::string> log = {})
{
    return {std::move(name), [] { return std::shared_ptr<vrx::IJsonObject>(std::make_shared<T>()); }, std::move(in),
            std::move(out), std::move(log)};
}

/// One test a row: instantiate it in the test file of the classes, with a table of rows.
class ModelRows : public testing::TestWithParam<ModelRow>
{
public:
    static std::string nameOf(const testing::TestParamInfo<ModelRow>& info) { return testName(info.param.name); }

    static void check(const ModelRow& row)
    {
        const vrx::JsonDocument document = parsed(row.in);
        ASSERT_FALSE(document.HasParseError()) << row.in;
        const std::shared_ptr<vrx::IJsonObject> object = row.make();
        const LogCapture log;
        object->readObject(document);
        EXPECT_EQ(written(*object), row.out);
        EXPECT_EQ(log.complaints(), row.log);
    }
};

} // namespace test
