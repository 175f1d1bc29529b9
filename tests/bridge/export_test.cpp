#include "support.h"

#include <gmock/gmock.h>

namespace
{

TEST(Export, CarriesItsObjectsAndHearsOfThem)
{
    const test::Road road = test::road("exports", {});
    EXPECT_EQ(road.told, "peer\nmessage one\nmessage two\nresult 1\nping 1\n");
    EXPECT_EQ(road.left, 0U);
}

TEST(Export, MayBeAnsweredBeforeItsEnd)
{
    const test::Road road = test::road("exports", {"stray"});
    EXPECT_EQ(road.told, "peer\nmessage one\nresult 3\nping 1\n");
    EXPECT_EQ(road.left, 0U);
}

TEST(Export, IsOverForOneWhoRefusesWhatIsLeftOfIt)
{
    const test::Road road = test::road("exports", {"limit"});
    EXPECT_EQ(road.told, "peer\nmessage one\nresult 3\nping 1\n");
    EXPECT_EQ(road.left, 0U);
}

TEST(Export, IsAnsweredByOneThatEndsAtOnce)
{
    const test::Road road = test::road("exports-slowly", {"answer", "exit"});
    EXPECT_EQ(road.told, "peer\nmessage one\nresult 3\nping failure 0 The translator died: it exited with code 5.\n");
    EXPECT_EQ(road.left, 0U);
}

TEST(Export, LeavesNothingWhenTheTranslatorDies)
{
    const test::Road road = test::road("exports", {"die"});
    EXPECT_THAT(road.told, testing::HasSubstr("failure 0 The translator d"));
    EXPECT_EQ(road.left, 0U);
}

} // namespace
