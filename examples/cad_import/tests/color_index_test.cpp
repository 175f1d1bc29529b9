#include "looks/color_index.h"

#include <gmock/gmock.h>

#include <map>
#include <vector>

namespace
{

using testing::ElementsAre;

TEST(ColorIndex, HasTheColorsOfDrawings)
{
    const std::map<int, std::vector<int>> known = {{1, {255, 0, 0}},       {7, {255, 255, 255}},  {8, {128, 128, 128}},
                                                   {11, {255, 127, 127}},  {22, {165, 41, 0}},    {33, {165, 124, 82}},
                                                   {54, {127, 127, 0}},    {76, {38, 76, 0}},     {98, {0, 38, 0}},
                                                   {151, {127, 191, 255}}, {175, {63, 63, 127}},  {197, {57, 38, 76}},
                                                   {219, {38, 19, 38}},    {240, {255, 0, 63}},   {249, {38, 19, 23}},
                                                   {250, {51, 51, 51}},    {255, {255, 255, 255}}};
    for (const auto& [index, rgb] : known)
    {
        const vrx::ExcColor color = color_index::color(index);
        EXPECT_THAT(rgb, ElementsAre(color[vrx::ExcColor::ChannelRed], color[vrx::ExcColor::ChannelGreen],
                                     color[vrx::ExcColor::ChannelBlue]))
            << index;
    }
}

TEST(ColorIndex, FindsTheLowestIndex)
{
    EXPECT_EQ(color_index::matching(color_index::color(255)), 7);
    EXPECT_EQ(color_index::matching(color_index::color(11)), 11);
    EXPECT_EQ(color_index::matching(vrx::ExcColor(254, 0, 0)), 0);
    EXPECT_EQ(color_index::matching(vrx::ExcColor()), 0);
    EXPECT_EQ(color_index::nearest(vrx::ExcColor(254, 0, 0)), 1);
    EXPECT_EQ(color_index::nearest(vrx::ExcColor(65535, 0, 0)), 1);
    EXPECT_EQ(color_index::nearest(vrx::ExcColor(130, 131, 129)), 8);
}

} // namespace
