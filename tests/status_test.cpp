#include "tests/support/enum_row.h"
#include "tests/support/helpers.h"
#include "tests/support/log_capture.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_common.h"
#include "vrx_api/vrx_api_exchange_object.h"

using namespace vrx;
using test::row;

namespace
{

class StatusRows : public test::ModelRows
{
};

const char* const kDefaultProgress = R"({"progress":0,"progress_max":100,"stage":""})";

const test::ModelRow kRows[] = {
    row<ExcMessage>("MessageIsCutAtNul", R"({"message":"ab\u0000c"})", R"({"message":"ab"})"),
    row<ExcLog>("Log", R"({"message":null})", R"({"message":""})"),
    row<ExcProgress>("Progress", R"({"stage":"s","progress_max":-2147483648,"progress":2147483647})",
                     R"({"progress":2147483647,"progress_max":-2147483648,"stage":"s"})"),
    row<ExcProgress>("ProgressOfOneKey", R"({"progress":50})", R"({"progress":50,"progress_max":100,"stage":""})"),
    row<ExcProgress>("ProgressOfWrongNumbers", R"({"progress":50.0,"progress_max":2147483648,"stage":1})",
                     kDefaultProgress),
    row<ExcProgress>("ProgressKeepsTheFirstOfTwoMembers", R"({"Progress":1,"progress":2,"progress":3})",
                     R"({"progress":2,"progress_max":100,"stage":""})"),
};

TEST_P(StatusRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Status, StatusRows, testing::ValuesIn(kRows), StatusRows::nameOf);

const test::EnumRow kEnums[] = {
    test::enumRow("ExcStageFinished::EStage", R"("?")", &ExcStageFinished::stage, &ExcStageFinished::setStage,
                  {"unknown", "product_structure", "root_visualization", "visualization", "root_mechanical",
                   "mechanical", "visu_and_mech"},
                  "mechanical"),
};

class StatusEnums : public test::EnumRows
{
};

TEST_P(StatusEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Status, StatusEnums, testing::ValuesIn(kEnums), StatusEnums::nameOf);

TEST(StatusObjects, WriteNoTraceLinesButForTheStage)
{
    const test::LogCapture log;
    test::readText(*std::make_unique<ExcProgress>(), test::written(ExcProgress()));
    test::readText(*std::make_unique<ExcLog>(), test::written(ExcLog(WIDE("l"))));
    EXPECT_TRUE(log.lines("TRACE").empty());
    test::readText(*std::make_unique<ExcStageFinished>(), test::written(ExcStageFinished()));
    EXPECT_EQ(log.lines("TRACE").size(), 2U);
}

TEST(StatusObjects, CompareAndConvert)
{
    EXPECT_TRUE(ExcProgress() == ExcProgress());
    ExcProgress progress;
    progress.setProgress(1);
    ExcProgress most;
    most.setProgressMax(1);
    ExcProgress stage;
    stage.setStage(WIDE("s"));
    for (const ExcProgress& other : {progress, most, stage})
    {
        EXPECT_FALSE(ExcProgress() == other);
    }
    EXPECT_EQ(test::written(ExcMessage(WIDE("text"))), test::written(ExcLog(wstring(WIDE("text")))));
}

} // namespace
