#include "checking/import_checker.h"
#include "input/input.h"
#include "printing/item_lines.h"
#include "tests/full_rows/full_rows.h"
#include "tests/support/json_text.h"
#include "vrx_api/exchange/exchange_object.h"

#include <gmock/gmock.h>

#include <map>
#include <string>
#include <vector>

namespace
{

// What each exchange class writes after it has read its first full text.
std::map<mp::wstring, std::string> writtenRows()
{
    std::map<mp::wstring, std::string> rows;
    for (const test::FullRow& row : test::allFullRows())
    {
        if (const auto object = std::dynamic_pointer_cast<vrx::IExchangeObject>(row.make()))
        {
            rows.emplace(object->objectName(), row.out);
        }
    }
    return rows;
}

std::string readAndWritten(const input::Item& item)
{
    for (const test::FullRow& row : test::allFullRows())
    {
        const auto object = std::dynamic_pointer_cast<vrx::IExchangeObject>(row.make());
        if (object != nullptr && object->objectName() == item.head.objectName && item.object() != nullptr)
        {
            object->readObject(*item.object());
            return test::written(*object);
        }
    }
    return "nothing";
}

// The capture was made by make_frozen of version 0.1 and stays as it is.
TEST(FrozenCapture, IsReadShownAndSound)
{
    std::vector<std::string> lines;
    // In these texts ids and indices are any numbers.
    checking::Findings findings([&lines](const checking::Finding& finding) { lines.push_back(finding.sentence); },
                                {checking::ECode::DanglingId, checking::ECode::IndexOutside});
    const checking::KnownKeys known;
    checking::ImportChecker checker(known, findings);
    std::map<mp::wstring, std::string> found;
    std::map<vrx::EMessageKind, int> kinds;
    const input::Recording recording =
        input::readItems(VRX_TOOL_TEST_DATA "/full_rows.vrxcap", [&](const input::Item& item) {
            checker.take(item);
            ++kinds[item.head.kind];
            EXPECT_NE(printing::summary(item, {}), "");
            if (item.head.kind == vrx::EMessageKind::Envelope)
            {
                found[item.head.objectName] = readAndWritten(item);
            }
        });
    checker.end(recording);
    EXPECT_THAT(lines, testing::IsEmpty());
    EXPECT_FALSE(recording.isCut);
    EXPECT_EQ(found, writtenRows());
    EXPECT_EQ(kinds[vrx::EMessageKind::Command], 2);
    EXPECT_EQ(kinds[vrx::EMessageKind::Result], 1);
    EXPECT_EQ(kinds[vrx::EMessageKind::Info], 1);
}

} // namespace
