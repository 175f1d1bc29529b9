#include "host/mechanical/hole_callout.h"
#include "host/mechanical/hole_table.h"
#include "mechanical_block.h"

#include <gmock/gmock.h>

#include <cmath>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using EType = vrx::ExcSubentId::EType;
using EEnd = vrx::ExcMfgHole::EBottomLimitExtentType;

const std::uint64_t kLostBody = 77;

std::shared_ptr<vrx::ExcEntity> named(const mp::wstring& id)
{
    auto entity = std::make_shared<vrx::ExcEntity>();
    entity->setType(vrx::ExcEntity::EType::Original);
    entity->setId(id);
    return entity;
}

template <class Data>
std::shared_ptr<vrx::ExcMfgFeatureHoleType<Data>> hole(double diameter, double depth, EEnd end,
                                                       const vrx::ExcVector3d& center,
                                                       const std::shared_ptr<vrx::ExcEntity>& face)
{
    const auto data = std::make_shared<Data>();
    data->setPrimaryDiameter(diameter);
    data->setPrimaryDepth(depth);
    data->setBottomLimitExtentType(end);
    data->setCenter(center);
    data->setDirection({0, 0, -1});
    auto feature = std::make_shared<vrx::ExcMfgFeatureHoleType<Data>>();
    feature->setHoleData(data);
    feature->addDefiningGeometry(face);
    return feature;
}

template <class Feature>
std::shared_ptr<Feature> thread(const mp::wstring& designation, double depth,
                                const std::shared_ptr<vrx::ExcEntity>& face)
{
    const auto data = std::make_shared<vrx::ExcMfgThread>();
    data->setDesignation(designation);
    data->setDiameter(10);
    data->setPitch(1.5);
    data->setDepth(depth);
    auto feature = std::make_shared<Feature>();
    feature->setThread(data);
    feature->addSideFace(face);
    return feature;
}

void addFeatures(Block& block)
{
    vrx::ExcMfgData& features = *block.features;
    const auto pattern = std::make_shared<vrx::ExcMfgFeatureUnclassified>();
    for (const std::uint64_t i : {0U, 1U, 2U, 3U})
    {
        const vrx::ExcVector3d center(i % 2 == 0 ? 0 : 36, i < 2 ? 0 : 68, 20);
        const auto tapped = hole<vrx::ExcMfgSimpleHole>(8.5, 28, EEnd::Blind, center, block.face(i));
        tapped->holeData()->setTipAngleDegrees(118);
        features.addSimpleHole(tapped);
        features.addInternalThread(thread<vrx::ExcMfgFeatureInternalThread>(WIDE("M10x1.5"), 20, block.face(i)));
        pattern->addLinkedElement(block.face(i));
    }
    const auto grid = std::make_shared<vrx::ExcMfgPatternRectangular>();
    grid->setPrimaryInstanceCount(2);
    grid->setSecondaryInstanceCount(2);
    grid->setPrimarySpacing(36);
    grid->setSecondarySpacing(68.0000000001);
    grid->setAlignmentPrimaryDirection({1, 0, 0});
    pattern->setPattern(grid);
    features.addUnclassifiedFeature(pattern);

    const auto single = hole<vrx::ExcMfgSimpleHole>(8.5, 28, EEnd::Blind, {18, 34, 20}, block.face(4));
    single->holeData()->setTipAngleDegrees(118);
    features.addSimpleHole(single);
    features.addInternalThread(thread<vrx::ExcMfgFeatureInternalThread>(WIDE("M10x1.5"), 20, block.face(4)));

    const auto circle = std::make_shared<vrx::ExcMfgFeatureUnclassified>();
    for (const std::uint64_t i : {0U, 1U})
    {
        const auto bored =
            hole<vrx::ExcMfgCounterBoreHole>(9, 12, EEnd::UpToLast, {i == 0 ? 35.0 : -15.0, 5, 7}, block.face(5 + i));
        bored->holeData()->setDiameter(15);
        bored->holeData()->setDepth(9);
        features.addCounterBoreHole(bored);
        circle->addLinkedElement(block.face(5 + i));
    }
    const auto around = std::make_shared<vrx::ExcMfgPatternCircular>();
    around->setCenterOfRotation({10, 5, 0});
    around->setAxisOfRotation({0, 0, 2});
    around->setAxialInstanceCount(2);
    around->setAxialDistanceDegrees(180);
    circle->setPattern(around);
    features.addUnclassifiedFeature(circle);

    const auto taper = hole<vrx::ExcMfgTaperHole>(12, 30, EEnd::Unknown, {}, block.face(0, 1));
    taper->holeData()->setAngle(2);
    features.addTaperHole(taper);
    const auto sunk = hole<vrx::ExcMfgCounterSinkHole>(6, 12, EEnd::UpToNext, {}, block.face(7));
    sunk->holeData()->setDiameter(12.25);
    sunk->holeData()->setTaperAngle(90);
    features.addCounterSinkHole(sunk);
    const auto drilled = hole<vrx::ExcMfgCounterDrillHole>(5, 25, EEnd::Blind, {}, block.face(8));
    drilled->holeData()->setDiameter(9);
    drilled->holeData()->setDepth(4);
    drilled->holeData()->setSinkDiameter(8);
    drilled->holeData()->setTaperAngle(120);
    features.addCounterDrillHole(drilled);

    const auto external = thread<vrx::ExcMfgFeatureExternalThread>({}, 30, block.face(9));
    external->thread()->setOrientation(vrx::ExcMfgThreading::EOrientation::LeftHanded);
    features.addExternalThread(external);
}

TEST(Mechanical, HolesAreATable)
{
    Block block;
    addFeatures(block);
    block.place();
    block.place();
    block.place(true);
    std::ostringstream table;
    printHoles(table, block.received(), block.structure);
    EXPECT_EQ(table.str(), R"(holes, lengths in millimeter
  jaw: block 5, 2 instances
    5X ⌀8.5 ↧28 TIP 118° M10x1.5 ↧20
      2 × 2 grid, 36 × 68: body 1 (0 0 20), (36 0 20), (0 68 20), (36 68 20) into (0 0 -1)
      body 1 (18 34 20) into (0 0 -1)
    ⌀12 ↧30 TAPER 2°
      body 2 (0 0 0) into (0 0 -1)
    2X ⌀9 THRU ⌴ ⌀15 ↧9
      2 on ⌀50: body 1 (35 5 7), (-15 5 7) into (0 0 -1)
    ⌀6 THRU ONE WALL ⌵ ⌀12.25 × 90°
      body 1 (0 0 0) into (0 0 -1)
    ⌀5 ↧25 ⌴ ⌀9 ↧4 ⌵ ⌀8 × 120°
      body 1 (0 0 0) into (0 0 -1)
    thread ⌀10 × 1.5 LH ↧30 external
      body 1 face 9
)");
}

TEST(Mechanical, HolesAreJson)
{
    Block block;
    addFeatures(block);
    const rapidjson::Document json = parsed(block.received());
    const auto& holes = json["holes"];
    ASSERT_EQ(holes.Size(), 10U);
    EXPECT_STREQ(holes[1]["thread"].GetString(), "M10x1.5");
    EXPECT_EQ(holes[1]["pattern"].GetInt(), 0);
    EXPECT_EQ(holes[1]["axis"]["origin"][0].GetDouble(), 36);
    EXPECT_FALSE(holes[1]["through"].GetBool());
    EXPECT_FALSE(holes[1].HasMember("counter_diameter"));
    EXPECT_STREQ(holes[5]["kind"].GetString(), "taper");
    EXPECT_EQ(holes[5]["body"].GetInt(), 1);
    EXPECT_EQ(holes[5]["taper_angle"].GetDouble(), 2);
    EXPECT_STREQ(holes[5]["faces"][0].GetString(), "1/f0");
    EXPECT_STREQ(holes[6]["end"].GetString(), "up_to_last");
    EXPECT_STREQ(holes[6]["text"].GetString(), "⌀9 THRU ⌴ ⌀15 ↧9");
    EXPECT_EQ(holes[9]["sink_diameter"].GetDouble(), 8);
    EXPECT_EQ(json["patterns"][0]["holes"].Size(), 4U);
    EXPECT_EQ(json["patterns"][1]["holes"][1].GetInt(), 7);
    EXPECT_EQ(json["patterns"][1]["diameter"].GetDouble(), 50);
    EXPECT_STREQ(json["patterns"][0]["text"].GetString(), "2 × 2 grid, 36 × 68");
    EXPECT_EQ(json["threads"][4]["hole"].GetInt(), 4);
    EXPECT_STREQ(json["threads"][4]["text"].GetString(), "M10x1.5 ↧20");
    EXPECT_TRUE(json["threads"][5]["hole"].IsNull());
    EXPECT_STREQ(json["threads"][5]["hand"].GetString(), "left");
}

TEST(Mechanical, AnArcOfHolesIsNoFullCircle)
{
    PartPattern arc;
    arc.isCircular = true;
    arc.count = 5;
    arc.diameter = 444.5;
    arc.angle = 29.9964;
    EXPECT_EQ(hole_callout::text(arc), WIDE("5 on ⌀444.5 × 30°"));
    arc.angle = 72;
    EXPECT_EQ(hole_callout::text(arc), WIDE("5 on ⌀444.5"));
}

TEST(Mechanical, LeavesOutWhatDoesNotFitTogether)
{
    Block block;
    vrx::ExcMfgData& features = *block.features;
    features.addSimpleHole(hole<vrx::ExcMfgSimpleHole>(std::nan(""), HUGE_VAL, EEnd::Blind, {std::nan(""), 0, 0},
                                                       entity(kLostBody, EType::Face, 0)));
    features.addSimpleHole(hole<vrx::ExcMfgSimpleHole>(1, 1, EEnd::Blind, {}, block.face(12)));
    features.addSimpleHole(std::make_shared<vrx::ExcMfgFeatureHoleType<vrx::ExcMfgSimpleHole>>());
    features.addInternalThread(
        thread<vrx::ExcMfgFeatureInternalThread>(WIDE("M\x1B[31m"), 1, entity(kLostBody, EType::Face, 0)));
    features.addExternalThread(std::make_shared<vrx::ExcMfgFeatureExternalThread>());
    const auto pattern = std::make_shared<vrx::ExcMfgFeatureUnclassified>();
    pattern->addLinkedElement(block.face(12));
    pattern->setPattern(std::make_shared<vrx::ExcMfgPatternCircular>());
    features.addUnclassifiedFeature(pattern);
    features.addUnclassifiedFeature(std::make_shared<vrx::ExcMfgFeatureUnclassified>());

    block.entities->addData(std::make_shared<vrx::ExcTopologicalEntityInformation>());
    for (const auto& one : {block.face(2, 1), named(WIDE("5/0/notes/3"))})
    {
        const auto hidden = std::make_shared<vrx::ExcTopologicalEntityInformation>();
        hidden->setEntity(one);
        hidden->setHidden(true);
        block.entities->addData(hidden);
    }
    for (const auto& other : {block.face(2, 1), block.face(1, 1)})
    {
        const auto layer = std::make_shared<vrx::ExcMiscLayer>();
        layer->addEntity(block.face(2, 1));
        layer->addEntity(other);
        layer->addEntity(entity(kLostBody, EType::Edge, 0));
        layer->addEntity(named(WIDE("5/0/notes/3")));
        block.misc->addLayer(layer);
    }

    const MechanicalModel model = block.received();
    const rapidjson::Document json = parsed(model);
    EXPECT_EQ(json["holes"].Size(), 2U);
    EXPECT_TRUE(json["holes"][0]["diameter"].IsNull());
    EXPECT_TRUE(json["holes"][0]["body"].IsNull());
    EXPECT_EQ(json["holes"][1]["faces"].Size(), 0U);
    EXPECT_EQ(json["patterns"].Size(), 0U);
    EXPECT_EQ(json["threads"].Size(), 1U);
    EXPECT_EQ(json["entities"].Size(), 2U);
    EXPECT_TRUE(json["layers"][0]["hidden"].GetBool());
    EXPECT_FALSE(json["layers"][1]["hidden"].GetBool());
    EXPECT_STREQ(json["layers"][1]["entities"][2].GetString(), "5/0/notes/3");
    std::ostringstream table;
    printHoles(table, model, block.structure);
    EXPECT_THAT(table.str(), testing::HasSubstr("M [31m ↧1 internal\n"));
}

} // namespace
