#include "common/material_units.h"
#include "host/mechanical/stated_report.h"
#include "host/tree_output.h"
#include "mechanical_block.h"

#include <gmock/gmock.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using EType = vrx::ExcSubentId::EType;
using EMass = vrx::EMassUnitType;
using ELength = vrx::ELengthUnitType;

const std::uint64_t kLostBody = 77;

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
