#include "acis_kernel/acis_kernel.h"
#include "common/framing.h"
#include "common/material_units.h"
#include "host/mechanical/hole_callout.h"
#include "host/mechanical/hole_table.h"
#include "host/mechanical/mechanical_json.h"
#include "host/mechanical/mechanical_model.h"
#include "host/mechanical/stated_report.h"
#include "host/tree_output.h"
#include "vrx_api/vrx_api_exchange_object.h"

#include <gmock/gmock.h>
#include <rapidjson/document.h>

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
using EMass = vrx::EMassUnitType;
using ELength = vrx::ELengthUnitType;

const std::uint64_t kLostBody = 77;

BODY* bodyOfFaces(int count)
{
    auto* const body = new BODY;
    auto* const lump = new LUMP;
    auto* const shell = new SHELL;
    body->addPart(lump);
    lump->addPart(shell);
    for (int i = 0; i < count; ++i)
    {
        shell->addPart(new FACE);
    }
    return body;
}

// A body that is as large as it has faces, with its center at (1, 2, 3).
BodyFigures measuredByFaces(ENTITY& body, EBox)
{
    ENTITY_LIST faces;
    api_get_faces(&body, faces, PAT_CAN_CREATE, nullptr);
    BodyFigures figures;
    figures.volume = 1000.0 * faces.count();
    figures.area = 100.0 * faces.count();
    figures.centroid = {1, 2, 3};
    return figures;
}

std::shared_ptr<vrx::ExcEntity> entity(std::uint64_t body, EType type, std::uint64_t index)
{
    auto entity = std::make_shared<vrx::ExcEntity>();
    entity->setType(vrx::ExcEntity::EType::Fsp);
    entity->setFsp(std::make_shared<vrx::ExcFullSubentPath>(body, vrx::ExcSubentId(type, index)));
    return entity;
}

std::shared_ptr<vrx::ExcEntity> named(const mp::wstring& id)
{
    auto entity = std::make_shared<vrx::ExcEntity>();
    entity->setType(vrx::ExcEntity::EType::Original);
    entity->setId(id);
    return entity;
}

// The data of block 5, which has a body of twelve faces and one of three, put together and then sent and received.
class Block
{
public:
    Block()
    {
        OwnedEntities bodies;
        bodies.list().add(bodyOfFaces(12));
        bodies.list().add(bodyOfFaces(3));
        m_ids = {vrx::ExcBlockGeometry::getEntityId(bodies.list()[0]),
                 vrx::ExcBlockGeometry::getEntityId(bodies.list()[1])};
        vrx::ExcBlockGeometry geometry;
        geometry.setBlockId(5);
        geometry.own(true);
        EXPECT_TRUE(geometry.setGeometry(bodies.list(), false));
        m_bodies.add(geometry);

        structure.setUnits(ELength::Millimeter);
        block->setId(5);
        block->setName(WIDE("jaw"));
        block->setPart(true);
        structure.addBlock(block);
        data->setBlockId(5);
        data->setMiscData(misc);
        data->setManufacturingData(features);
        data->setEntityData(entities);
        features->setHasData(true);
    }

    std::uint64_t body(std::size_t position) const { return m_ids.at(position); }
    std::shared_ptr<vrx::ExcEntity> face(std::uint64_t index, std::size_t position = 0) const
    {
        return entity(body(position), EType::Face, index);
    }

    void place(bool suppressed = false)
    {
        const auto reference = std::make_shared<vrx::ExcBlockReference>();
        reference->setBlockId(5);
        reference->setName(WIDE("jaw"));
        reference->setSuppressed(suppressed);
        structure.addRootBlockReference(reference);
    }

    MechanicalModel received()
    {
        vrx::ExchangeObjectWrapper sent;
        sent.set(data);
        vrx::ExchangeObjectWrapper got;
        framing::fromText(framing::toText(sent), got);
        return {structure, {std::dynamic_pointer_cast<vrx::ExcBlockMechanicalData>(got.get())}, m_bodies};
    }

    vrx::ExcProductStructure structure;
    std::shared_ptr<vrx::ExcBlock> block = std::make_shared<vrx::ExcBlock>();
    std::shared_ptr<vrx::ExcBlockMechanicalData> data = std::make_shared<vrx::ExcBlockMechanicalData>();
    std::shared_ptr<vrx::ExcMechanicalMiscData> misc = std::make_shared<vrx::ExcMechanicalMiscData>();
    std::shared_ptr<vrx::ExcMfgData> features = std::make_shared<vrx::ExcMfgData>();
    std::shared_ptr<vrx::ExcEntityData> entities = std::make_shared<vrx::ExcEntityData>();

private:
    ReceivedBodies m_bodies{measuredByFaces};
    std::vector<std::uint64_t> m_ids;
};

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

rapidjson::Document parsed(const MechanicalModel& model, std::uint64_t id = 5)
{
    rapidjson::Document document;
    document.Parse(mechanicalJson(model, id).c_str());
    EXPECT_TRUE(document.IsObject());
    return document;
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

void addMaterial(Block& block, const mp::wstring& name, double value, EMass mass, ELength length,
                 const std::vector<std::shared_ptr<vrx::ExcEntity>>& bodies)
{
    const auto density = std::make_shared<vrx::ExcMiscMaterialProperty>();
    density->setValue(value);
    density->unit().setMass(mass, 1).setLength(length, -3);
    const auto material = std::make_shared<vrx::ExcMiscMaterial>();
    material->setName(name);
    material->set(vrx::ExcMiscMaterial::EProperty::Density, density);
    material->setPartLevelMaterial(bodies.empty());
    for (const auto& body : bodies)
    {
        material->addLinkedElement(body);
    }
    block.misc->addMaterial(material);
}

std::string treeLines(const Block& block, const MechanicalModel& model)
{
    std::ostringstream tree;
    printText(tree, block.structure, {false, {}, model});
    return tree.str();
}

TEST(Mechanical, WeighsEachBodyByItsMaterialAndEachInstance)
{
    Block block;
    block.place();
    block.place();
    block.place(true);
    addMaterial(block, WIDE("steel"), 7.85, EMass::Gram, ELength::Centimeter, {});
    // 1.5 pounds per cubic inch are 41.52 g/cm3.
    addMaterial(block, WIDE("odd"), 1.5, EMass::PoindMass, ELength::Inch,
                {entity(block.body(1), EType::Body, 0), entity(kLostBody, EType::Body, 0)});
    const MechanicalModel model = block.received();
    const double body = 12 * 7.85;
    const double odd = 3 * 1.5 * 453.59237 / 16.387064;
    EXPECT_NEAR(model.parts.at(5).mass.value_or(0) * 1000, body + odd, 1e-9);
    EXPECT_NEAR(model.mass.value_or(0) * 1000, 2 * (body + odd), 1e-9);
    EXPECT_THAT(treeLines(block, model), testing::HasSubstr("[part: materials steel, odd, 218.8 g]"));
    EXPECT_THAT(treeLines(block, model), testing::HasSubstr("1 level, mass 437.5 g\n"));
    const rapidjson::Document json = parsed(model);
    EXPECT_STREQ(json["materials"][0]["properties"][0]["unit"].GetString(), "g/cm3");
    EXPECT_EQ(json["materials"][0]["density"].GetDouble(), 7850);
    EXPECT_EQ(json["materials"][0]["bodies"].Size(), 0U);
    EXPECT_STREQ(json["materials"][1]["bodies"][0].GetString(), "b1");
}

TEST(Mechanical, KnowsNoMassOfABodyWithoutDensity)
{
    Block block;
    block.place();
    addMaterial(block, WIDE("steel"), 7.85, EMass::Gram, ELength::Centimeter, {entity(block.body(0), EType::Body, 0)});
    const MechanicalModel model = block.received();
    EXPECT_FALSE(model.mass);
    EXPECT_TRUE(parsed(model)["mass"].IsNull());
    EXPECT_THAT(treeLines(block, model), testing::HasSubstr("[part: material steel]\n1 block"));
}

TEST(Mechanical, KnowsTheUnitsOfDensities)
{
    const auto density = [](EMass mass, ELength length) {
        vrx::ExcMiscMaterialProperty property;
        property.setValue(1);
        property.unit().setMass(mass, 1).setLength(length, -3);
        return units::density(property, ELength::Inch).value_or(0);
    };
    const std::pair<EMass, double> masses[] = {
        {EMass::Unknown, 0},
        {EMass::ModelUnit, 0},
        {EMass::Centigram, 1e-5},
        {EMass::Decigram, 1e-4},
        {EMass::Gram, 1e-3},
        {EMass::Kilogram, 1},
        {EMass::PoindMass, 0.45359237},
        {EMass::Tonne, 1000},
        {EMass::Slug, 14.5939029372},
        {EMass::Lbfsec2In, 175.126835246},
    };
    for (const auto& [unit, kilograms] : masses)
    {
        EXPECT_NEAR(density(unit, ELength::Meter), kilograms, 1e-9 * kilograms);
    }
    const std::pair<ELength, double> lengths[] = {
        {ELength::Unknown, 0},         {ELength::ModelUnit, 0.0254},  {ELength::Nanometer, 1e-9},
        {ELength::Micrometer, 1e-6},   {ELength::Millimeter, 1e-3},   {ELength::Centimeter, 1e-2},
        {ELength::Decimeter, 0.1},     {ELength::Meter, 1},           {ELength::Inch, 0.0254},
        {ELength::Foot, 0.3048},       {ELength::Mile, 1609.344},     {ELength::Kilometer, 1000},
        {ELength::Milliinch, 2.54e-5}, {ELength::Microinch, 2.54e-8},
    };
    for (const auto& [unit, meters] : lengths)
    {
        const double expected = meters > 0 ? 1 / std::pow(meters, 3) : 0;
        EXPECT_NEAR(density(EMass::Kilogram, unit), expected, 1e-9 * expected);
    }
    vrx::ExcMiscMaterialProperty::Unit modulus;
    modulus.setMass(EMass::Kilogram, 1).setLength(ELength::Meter, -1).setTime(vrx::ETimeUnitType::Second, -2);
    EXPECT_EQ(units::text(modulus, ELength::Inch), WIDE("kg/(m s2)"));
    EXPECT_EQ(units::text({}, ELength::Inch), mp::wstring());
}

void state(vrx::ExcMiscData& data, const mp::wstring& name, const mp::wstring& value)
{
    data.emplaceProperty(vrx::ExcMiscProperty().setName(name).setValue(value));
}

TEST(Mechanical, IsHeldAgainstWhatTheFileStates)
{
    Block block;
    vrx::ExcMiscData& properties = block.block->miscData();
    state(properties, WIDE("volume measure"), WIDE("15000.06"));
    state(properties, WIDE("wetted area measure"), WIDE("1500"));
    state(properties, WIDE("surface area measure"), WIDE("1600"));
    state(properties, WIDE("centre point"), WIDE("1 2 3"));
    state(properties, WIDE("volume measure"), WIDE("much"));
    state(properties, WIDE("centre point"), WIDE("1 2"));
    state(properties, WIDE("independent surface area measure"), WIDE("7"));
    for (const mp::wchar* const name : {WIDE("b1"), WIDE("b2"), WIDE("b"), WIDE("b99999999999")})
    {
        const auto parameters = std::make_shared<vrx::ExcMiscNoteParameters>();
        parameters->setName(name);
        state(parameters->properties(), WIDE("centre point"), WIDE("1 2 4.5"));
        block.misc->addNoteParameters(parameters);
    }
    const MechanicalModel model = block.received();
    std::ostringstream report;
    printStated(report, model, block.structure);
    EXPECT_EQ(report.str(), "volume, area and centroid as stated, within 1e-5: jaw\n"
                            "differs from the file: jaw: area 1500, stated 1600\n"
                            "differs from the file: jaw body 2: centroid (1 2 3), stated (1 2 4.5)\n");
    const rapidjson::Document json = parsed(model);
    ASSERT_EQ(json["stated"].Size(), 5U);
    EXPECT_NEAR(json["stated"][0]["deviation"].GetDouble(), 4e-6, 1e-9);
    EXPECT_TRUE(json["stated"][0]["body"].IsNull());
    EXPECT_STREQ(json["stated"][4]["body"].GetString(), "b1");
    EXPECT_EQ(json["stated"][4]["deviation"].GetDouble(), 1.5);
    EXPECT_EQ(json["stated"][4]["found"][2].GetDouble(), 3);
    EXPECT_FALSE(json["stated"][4]["agrees"].GetBool());
}

TEST(Mechanical, HoldsAnAssemblyAgainstItsPartsInTheirPlaces)
{
    Block block;
    const auto pair = std::make_shared<vrx::ExcBlock>();
    pair->setId(6);
    pair->setName(WIDE("pair"));
    for (const double turn : {1.0, -1.0})
    {
        const auto reference = std::make_shared<vrx::ExcBlockReference>();
        reference->setBlockId(5);
        vrx::ExcTransformation place; // the second one is turned half around x and moved
        place.affine()[1].set(0, turn, 0);
        place.affine()[2].set(0, 0, turn);
        place.translation().set(turn < 0 ? 10 : 0, 0, 0);
        reference->setTransformation(place);
        pair->addBlockReference(reference);
    }
    state(pair->miscData(), WIDE("volume measure"), WIDE("30000"));
    state(pair->miscData(), WIDE("surface area measure"), WIDE("1500"));
    state(pair->miscData(), WIDE("centre point"), WIDE("6 0 0"));
    block.structure.addBlock(pair);
    const auto reference = std::make_shared<vrx::ExcBlockReference>();
    reference->setBlockId(6);
    block.structure.addRootBlockReference(reference);

    const MechanicalModel model = block.received();
    std::ostringstream report;
    printStated(report, model, block.structure);
    EXPECT_EQ(report.str(), "volume and centroid as stated, within 1e-9: pair\n"
                            "differs from the file: pair: area 3000, stated 1500\n");
    const rapidjson::Document json = parsed(model, 6);
    EXPECT_EQ(json.MemberCount(), 1U);
    ASSERT_EQ(json["stated"].Size(), 3U);
    EXPECT_EQ(json["stated"][1]["found"].GetDouble(), 3000);
    EXPECT_FALSE(json["stated"][1]["agrees"].GetBool());

    pair->blockReferences()[1]->setBlockId(7); // there is none
    std::ostringstream nothing;
    printStated(nothing, block.received(), block.structure);
    EXPECT_EQ(nothing.str(), "");
}

} // namespace
