// The holes that are found in shapes of the kernel, and their patterns.

#include "data/modelling.h"
#include "features/hole_finder.h"
#include "features/hole_patterns.h"

#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <ShapeUpgrade_ShapeDivideClosed.hxx>
#include <gmock/gmock.h>
#include <gp.hxx>
#include <gp_Ax2.hxx>

#include <algorithm>
#include <cmath>
#include <sstream>

namespace
{

using namespace modelling;

double rounded(double value)
{
    return std::round(value * 1000) / 1000 + 0.0;
}

// Such as "counterbore 6.6 x 20 last, 11 x 6.5, at 50 30 30 to 0 0 -1".
std::string textOf(const Hole& hole)
{
    static const char* const kKinds[] = {"simple", "taper", "counterbore", "countersink", "counterdrill"};
    static const char* const kEnds[] = {"blind", "last", "next"};
    std::ostringstream text;
    text << kKinds[static_cast<int>(hole.kind)] << ' ' << rounded(hole.diameter) << " x " << rounded(hole.depth) << ' '
         << kEnds[static_cast<int>(hole.end)];
    if (hole.tipAngle > 0)
    {
        text << " tip " << rounded(hole.tipAngle);
    }
    if (hole.counterDiameter > 0)
    {
        text << ", " << rounded(hole.counterDiameter);
    }
    if (hole.counterDepth > 0)
    {
        text << " x " << rounded(hole.counterDepth);
    }
    if (hole.angle > 0)
    {
        text << ", " << rounded(hole.angle) << " deg";
    }
    if (hole.sinkDiameter > 0)
    {
        text << " from " << rounded(hole.sinkDiameter);
    }
    text << ", at " << rounded(hole.center.X()) << ' ' << rounded(hole.center.Y()) << ' ' << rounded(hole.center.Z());
    text << " to " << rounded(hole.direction.X()) << ' ' << rounded(hole.direction.Y()) << ' '
         << rounded(hole.direction.Z());
    return text.str();
}

std::vector<std::string> textsOf(const TopoDS_Shape& solid)
{
    std::vector<std::string> texts;
    for (const Hole& hole : holesOf(singleSolid(solid, "the test's shape")).holes)
    {
        texts.push_back(textOf(hole));
    }
    return texts;
}

TopoDS_Shape moved(const TopoDS_Shape& shape, double x, double y, double z)
{
    gp_Trsf where;
    where.SetTranslation(gp_Vec(x, y, z));
    return shape.Moved(TopLoc_Location(where));
}

TopoDS_Shape turned(const TopoDS_Shape& shape, const gp_Ax1& axis, double angle)
{
    gp_Trsf where;
    where.SetRotation(axis, angle);
    return shape.Moved(TopLoc_Location(where));
}

// 100 x 60 x 30, its top in z = 0, with the middle of that in the origin.
TopoDS_Shape block()
{
    return box(gp_Pnt(-50, -30, -30), gp_Pnt(50, 30, 0));
}

TopoDS_Shape drill(double radius, double depth)
{
    return revolveAboutZ({{1, 0}, {1, radius}, {-depth, radius}, {-depth, 0}});
}

TopoDS_Shape alongX(double radius, double z)
{
    return cylinder(gp_Ax1(gp_Pnt(-60, 0, z), gp::DX()), radius, 120);
}

struct Row
{
    const char* name;
    Profile tool; // z and radius
    const char* hole;
};

// What is cut out of the block from above, and what is found then.
const Row kRows[] = {
    {"blind", {{1, 0}, {1, 4}, {-20, 4}, {-20, 0}}, "simple 8 x 20 blind, at 0 0 0 to 0 0 -1"},
    {"tip", {{1, 0}, {1, 4}, {-20, 4}, {-24, 0}}, "simple 8 x 20 blind tip 90, at 0 0 0 to 0 0 -1"},
    {"cut tip", {{1, 0}, {1, 4}, {-20, 4}, {-22, 2}, {-22, 0}}, "simple 8 x 20 blind tip 90, at 0 0 0 to 0 0 -1"},
    {"through", {{1, 0}, {1, 4}, {-31, 4}, {-31, 0}}, "simple 8 x 30 last, at 0 0 0 to 0 0 -1"},
    {"taper", {{0, 0}, {0, 6}, {-30, 4}, {-30, 0}}, "taper 12 x 30 last, 7.628 deg, at 0 0 0 to 0 0 -1"},
    {"blind taper", {{0, 0}, {0, 6}, {-20, 4}, {-20, 0}}, "taper 12 x 20 blind, 11.421 deg, at 0 0 0 to 0 0 -1"},
    {"upward taper", {{0, 0}, {0, 4}, {-30, 6}, {-30, 0}}, "taper 12 x 30 last, 7.628 deg, at 0 0 -30 to 0 0 1"},
    {"dimple", {{0, 0}, {0, 4}, {-4, 0}}, "taper 8 x 4 blind, 90 deg, at 0 0 0 to 0 0 -1"},
    {"taper with a tip",
     {{0, 0}, {0, 6}, {-20, 5}, {-23, 0}},
     "taper 12 x 20 blind tip 118.072, 5.725 deg, at 0 0 0 to 0 0 -1"},
    {"taper with a cut tip",
     {{0, 0}, {0, 6}, {-20, 5}, {-22, 2}, {-22, 0}},
     "taper 12 x 20 blind tip 112.62, 5.725 deg, at 0 0 0 to 0 0 -1"},
    {"chamfered taper with a tip",
     {{0, 0}, {0, 7}, {-1, 6}, {-21, 5}, {-24, 0}},
     "taper 12 x 21 blind tip 118.072, 5.725 deg, at 0 0 0 to 0 0 -1"},
    {"chamfered taper",
     {{0, 0}, {0, 7}, {-1, 6}, {-21, 5}, {-21, 0}},
     "taper 12 x 21 blind, 5.725 deg, at 0 0 0 to 0 0 -1"},
    {"counterbore",
     {{1, 0}, {1, 7}, {-9, 7}, {-9, 4}, {-31, 4}, {-31, 0}},
     "counterbore 8 x 30 last, 14 x 9, at 0 0 0 to 0 0 -1"},
    {"counterbore from below",
     {{1, 0}, {1, 4}, {-21, 4}, {-21, 7}, {-31, 7}, {-31, 0}},
     "counterbore 8 x 30 last, 14 x 9, at 0 0 -30 to 0 0 1"},
    {"countersink",
     {{0, 0}, {0, 7}, {-3, 4}, {-31, 4}, {-31, 0}},
     "countersink 8 x 30 last, 14, 90 deg, at 0 0 0 to 0 0 -1"},
    {"counterdrill",
     {{1, 0}, {1, 7}, {-9, 7}, {-12, 4}, {-20, 4}, {-24, 0}},
     "counterdrill 8 x 20 blind tip 90, 14 x 9, 90 deg from 14, at 0 0 0 to 0 0 -1"},
    {"three steps",
     {{1, 0}, {1, 10}, {-5, 10}, {-5, 7}, {-9, 7}, {-9, 4}, {-31, 4}, {-31, 0}},
     "counterbore 8 x 30 last, 20 x 5, at 0 0 0 to 0 0 -1"},
    {"chamfered counterbore",
     {{0, 0}, {0, 8}, {-1, 7}, {-9, 7}, {-9, 4}, {-31, 4}, {-31, 0}},
     "counterbore 8 x 30 last, 14 x 9, at 0 0 0 to 0 0 -1"},
    {"thread relief",
     {{1, 0}, {1, 4}, {-14, 4}, {-14, 5}, {-20, 5}, {-20, 0}},
     "simple 8 x 20 blind, at 0 0 0 to 0 0 -1"},
    {"ring groove",
     {{1, 0}, {1, 4}, {-10, 4}, {-10, 6}, {-12, 6}, {-12, 4}, {-31, 4}, {-31, 0}},
     "simple 8 x 30 last, at 0 0 0 to 0 0 -1"},
    {"counterbores from both sides",
     {{1, 0}, {1, 6}, {-9, 6}, {-9, 4}, {-21, 4}, {-21, 7}, {-31, 7}, {-31, 0}},
     "counterbore 8 x 30 last, 14 x 9, at 0 0 -30 to 0 0 1"},
    {"broken through tip", {{1, 0}, {1, 4}, {-28, 4}, {-31, 1}, {-31, 0}}, "simple 8 x 30 last, at 0 0 0 to 0 0 -1"},
};

class HolesOf : public testing::TestWithParam<Row>
{
};

// However the kernel has split its faces, and in whatever form they are.
TEST_P(HolesOf, blockWithOneHole)
{
    const TopoDS_Shape shape = cut(block(), revolveAboutZ(GetParam().tool));
    EXPECT_THAT(textsOf(shape), testing::ElementsAre(GetParam().hole));

    ShapeUpgrade_ShapeDivideClosed split(shape);
    split.Perform();
    EXPECT_THAT(textsOf(split.Result()), testing::ElementsAre(GetParam().hole)) << "split";

    EXPECT_THAT(textsOf(BRepBuilderAPI_NurbsConvert(shape, true).Shape()), testing::ElementsAre(GetParam().hole))
        << "of B-splines";

    gp_Trsf mirror;
    mirror.SetMirror(gp_Ax2(gp_Pnt(0, 0, 0), gp::DX()));
    EXPECT_THAT(textsOf(BRepBuilderAPI_Transform(shape, mirror, true).Shape()), testing::ElementsAre(GetParam().hole))
        << "mirrored";
}

INSTANTIATE_TEST_SUITE_P(Rows, HolesOf, testing::ValuesIn(kRows), [](const auto& row) {
    std::string name = row.param.name;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
});

TEST(Holes, withABallAtTheirEndOrARoundedEdge)
{
    EXPECT_THAT(textsOf(cut(block(), join(drill(4, 20), ball(gp_Pnt(0, 0, -20), 4)))),
                testing::ElementsAre("simple 8 x 20 blind, at 0 0 0 to 0 0 -1"));
    const TopoDS_Shape rounded = fillet(cut(block(), drill(4, 20)), 1, [](const TopoDS_Edge& edge) {
        return circlesWithin(gp_Pnt(-4, -4, 0), gp_Pnt(4, 4, 0))(edge);
    });
    EXPECT_THAT(textsOf(rounded), testing::ElementsAre("simple 8 x 20 blind, at 0 0 0 to 0 0 -1"));
}

TEST(Holes, thatMeetOthersOrHollows)
{
    // Through another one; one that ends in another; one that starts on a round face.
    EXPECT_THAT(textsOf(cut(cut(block(), drill(4, 31)), alongX(3, -15))),
                testing::UnorderedElementsAre("simple 8 x 30 last, at 0 0 0 to 0 0 -1",
                                              "simple 6 x 100 last, at 50 0 -15 to -1 0 0"));
    EXPECT_THAT(textsOf(cut(cut(block(), drill(3, 15)), alongX(5, -15))),
                testing::UnorderedElementsAre("simple 6 x 10 next, at 0 0 0 to 0 0 -1",
                                              "simple 10 x 100 last, at 50 0 -15 to -1 0 0"));
    EXPECT_THAT(textsOf(cut(cylinder(gp_Ax1(gp_Pnt(-50, 0, -20), gp::DX()), 20, 100), drill(4, 15))),
                testing::ElementsAre("simple 8 x 15 blind, at 0 0 0 to 0 0 -1"));
    // Through a slot, and bored from both sides of it.
    const TopoDS_Shape fork = cut(block(), box(gp_Pnt(-60, -40, -20), gp_Pnt(40, 40, -10)));
    EXPECT_THAT(textsOf(cut(fork, drill(4, 31))), testing::ElementsAre("simple 8 x 30 last, at 0 0 0 to 0 0 -1"));
    const TopoDS_Shape both = revolveAboutZ({{1, 0}, {1, 6}, {-3, 6}, {-3, 4}, {-27, 4}, {-27, 6}, {-31, 6}, {-31, 0}});
    EXPECT_THAT(textsOf(cut(fork, both)),
                testing::UnorderedElementsAre("counterbore 8 x 10 last, 12 x 3, at 0 0 0 to 0 0 -1",
                                              "counterbore 8 x 10 last, 12 x 3, at 0 0 -30 to 0 0 1"));
    // At a slant, where the axis leaves the block.
    EXPECT_THAT(textsOf(cut(block(), turned(drill(4, 20), gp::OY(), std::atan(0.75)))),
                testing::ElementsAre("simple 8 x 20 blind, at 0 0 0 to -0.6 0 -0.8"));
}

// A little beside the middle of a counterbore, and far beside.
TEST(Holes, inTheFloorOfOthers)
{
    const TopoDS_Shape pocket = cut(block(), drill(8, 10));
    EXPECT_THAT(textsOf(cut(pocket, moved(drill(4.5, 31), 0.01, 0, 0))),
                testing::ElementsAre("counterbore 9 x 30 last, 16 x 10, at 0.01 0 0 to 0 0 -1"));
    EXPECT_THAT(textsOf(cut(pocket, moved(drill(4.5, 31), 1, 0, 0))),
                testing::UnorderedElementsAre("simple 16 x 10 blind, at 0 0 0 to 0 0 -1",
                                              "simple 9 x 20 last, at 1 0 -10 to 0 0 -1"));
    EXPECT_THAT(textsOf(cut(pocket, box(gp_Pnt(-3, -3, -31), gp_Pnt(3, 3, 0)))),
                testing::ElementsAre("simple 16 x 10 blind, at 0 0 0 to 0 0 -1"));
}

TEST(Holes, areNoBossesRoundsSlotsOrCavities)
{
    TopoDS_Shape shape = join(block(), cylinder(gp_Ax1(gp_Pnt(0, 0, -1), gp::DZ()), 8, 10));
    shape = fillet(shape, 3, straightAlong(gp::DZ(), gp_Pnt(-50, -30, -30), gp_Pnt(50, 30, 0)));
    shape = fillet(shape, 2, circlesWithin(gp_Pnt(-8, -8, 0), gp_Pnt(8, 8, 0)));
    shape = cut(shape, cylinder(gp_Ax1(gp_Pnt(30, -40, 0), gp::DY()), 3, 80)); // half of a groove
    const TopoDS_Shape slot = join(moved(drill(3, 31), -30, -10, 0), moved(drill(3, 31), -30, 10, 0));
    shape = cut(shape, join(slot, box(gp_Pnt(-33, -10, -31), gp_Pnt(-27, 10, 1))));
    shape = cut(shape, cylinder(gp_Ax1(gp_Pnt(15, 0, -20), gp::DZ()), 4, 10)); // closed
    EXPECT_THAT(textsOf(shape), testing::IsEmpty());
    // A ring around a core, and a wheel with the bore of its hub alone.
    EXPECT_THAT(textsOf(cut(block(), revolveAboutZ({{1, 5}, {1, 8}, {-10, 8}, {-10, 5}}))), testing::IsEmpty());
    TopoDS_Shape wheel =
        join(revolveAboutZ({{-5, 20}, {5, 20}, {5, 25}, {-5, 25}}), revolveAboutZ({{-5, 3}, {5, 3}, {5, 6}, {-5, 6}}));
    wheel = join(wheel, box(gp_Pnt(5, -2, -2), gp_Pnt(22, 2, 2)));
    wheel = join(wheel, box(gp_Pnt(-22, -2, -2), gp_Pnt(-5, 2, 2)));
    EXPECT_THAT(textsOf(wheel), testing::ElementsAre("simple 6 x 10 last, at 0 0 5 to 0 0 -1"));
}

// Such as "4 x 60 deg" or "3 x 2, 20 x 15"; the holes are drilled at the places.
std::vector<std::string> patterns(const std::vector<std::pair<double, double>>& places, const TopoDS_Shape& body)
{
    TopoDS_Shape shape = body;
    for (const auto& [x, y] : places)
    {
        shape = cut(shape, moved(drill(2, 10), x, y, 0));
    }
    const SolidHoles found = holesOf(singleSolid(shape, "drilled block"));
    std::vector<std::string> texts;
    for (const HolePattern& pattern : patternsOf(found.holes, found.axes))
    {
        std::ostringstream text;
        if (pattern.isCircular)
        {
            text << pattern.holes.size() << " x " << rounded(pattern.step) << " deg";
        }
        else
        {
            text << pattern.primaryCount << " x " << pattern.holes.size() / pattern.primaryCount << ", "
                 << rounded(pattern.primarySpacing) << " x " << rounded(pattern.secondarySpacing);
        }
        texts.push_back(text.str());
    }
    return texts;
}

std::vector<std::pair<double, double>> onCircle(int count, double step, double radius)
{
    std::vector<std::pair<double, double>> places;
    for (int i = 0; i < count; ++i)
    {
        const double angle = i * step * std::atan(1.0) / 45;
        places.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
    }
    return places;
}

TEST(HolePatterns, areGridsAndCircles)
{
    using testing::ElementsAre;
    EXPECT_THAT(patterns({{-20, 0}, {0, 0}, {20, 0}, {-20, 15}, {0, 15}, {20, 15}}, block()),
                ElementsAre("2 x 3, 15 x 20"));
    EXPECT_THAT(patterns({{-20, 0}, {7, 9}}, block()), ElementsAre("2 x 1, 28.46 x 0"));
    EXPECT_THAT(patterns(onCircle(5, 72, 20), block()), ElementsAre("5 x 72 deg"));
    // Four in a square, with a bore in the middle and without.
    const TopoDS_Shape bored = cut(block(), drill(8, 31));
    EXPECT_THAT(patterns(onCircle(4, 90, 20), block()), ElementsAre("2 x 2, 28.284 x 28.284"));
    EXPECT_THAT(patterns(onCircle(4, 90, 20), bored), ElementsAre("4 x 90 deg"));
    // A part of a circle; a circle and a row in one plane, and what is in neither.
    EXPECT_THAT(patterns(onCircle(5, 30, 20), bored), ElementsAre("5 x 30 deg"));
    std::vector<std::pair<double, double>> places = onCircle(6, 60, 15);
    places.insert(places.end(), {{-40, -20}, {-40, 0}, {-40, 20}, {33, 17}});
    EXPECT_THAT(patterns(places, bored), ElementsAre("6 x 60 deg", "3 x 1, 20 x 0"));
}

} // namespace
