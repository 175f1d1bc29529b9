#include "imported.h"
#include "mp/narrow.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace
{

using testing::ElementsAre;
using EProperty = vrx::ExcMiscMaterial::EProperty;
using ELineType = vrx::ExcTopologicalEntityInformation::ELineType;

// The rod is block 1, the two balls are block 3, of which the assembly in block 2 has two.
class Rod : public testing::Test
{
protected:
    Rod()
        : imported(importFile(ROD))
        , rod(*imported.mechanical.at(1))
        , balls(*imported.mechanical.at(3))
    {
    }

    Imported imported;
    const vrx::ExcBlockMechanicalData& rod;
    const vrx::ExcBlockMechanicalData& balls;
};

template <class Component>
void append(std::string& text, const Component& component)
{
    if (component)
    {
        text += ' ' + mp::toNarrow(vrx::enumToString(component->units())) + std::to_string(component->dimension());
    }
}

std::string text(const vrx::ExcMiscMaterial& material, EProperty id)
{
    const auto property = material.get(id);
    if (!property)
    {
        return "none";
    }
    char value[32];
    std::snprintf(value, sizeof value, "%.9g", property->value());
    std::string result = value;
    append(result, property->unit().mass);
    append(result, property->unit().length);
    append(result, property->unit().time);
    append(result, property->unit().temperature);
    return result;
}

// A body of a block as "b0", a face or an edge of its only body as "f0", all else by its id.
std::string text(const vrx::ExcEntity& entity, const std::vector<std::uint64_t>& bodies)
{
    if (entity.type() != vrx::ExcEntity::EType::Fsp)
    {
        return mp::toNarrow(entity.id());
    }
    const vrx::ExcSubentId& part = entity.fsp()->subentId();
    const bool isBody = part.type() == vrx::ExcSubentId::EType::Body;
    const auto body = std::find(bodies.begin(), bodies.end(), entity.fsp()->bodyId()) - bodies.begin();
    return static_cast<char>(part.type()) + std::to_string(isBody ? static_cast<std::uint64_t>(body) : part.index());
}

std::vector<std::string> texts(const std::vector<std::shared_ptr<vrx::ExcEntity>>& entities,
                               const std::vector<std::uint64_t>& bodies)
{
    std::vector<std::string> all;
    std::transform(entities.begin(), entities.end(), std::back_inserter(all),
                   [&bodies](const auto& entity) { return text(*entity, bodies); });
    return all;
}

TEST_F(Rod, IsOfMaterialsInTheirOwnUnits)
{
    ASSERT_EQ(rod.miscData()->materials().size(), 2U);
    const vrx::ExcMiscMaterial& steel = *rod.miscData()->materials()[0];
    EXPECT_EQ(steel.name(), WIDE("C45"));
    EXPECT_TRUE(steel.isPartLevelMaterial());
    EXPECT_EQ(text(steel, EProperty::Density), "7.85e-06 kilogram1 millimeter-3");
    EXPECT_EQ(text(steel, EProperty::YoungsModulus), "2.1e+11 kilogram1 meter-1 second-2");
    EXPECT_EQ(text(steel, EProperty::PoissonsRatio), "0.3");
    EXPECT_EQ(text(steel, EProperty::YieldStrength), "370000000 kilogram1 meter-1 second-2");
    EXPECT_EQ(text(steel, EProperty::TensileStrength), "630000000 kilogram1 meter-1 second-2");
    EXPECT_EQ(text(steel, EProperty::ThermalConductivity), "42 kilogram1 meter1 second-3 kelvin-1");
    EXPECT_EQ(text(steel, EProperty::ThermalExpansionCoefficient), "1.1e-05 kelvin-1");
    EXPECT_EQ(text(steel, EProperty::SpecificHeat), "460 meter2 second-2 kelvin-1");
    EXPECT_EQ(text(steel, EProperty::ShearModulus), "7.99791846e+10 kilogram1 meter-1 second-2");

    const vrx::ExcMiscMaterial& iron = *rod.miscData()->materials()[1];
    EXPECT_EQ(iron.name(), WIDE("GJL 200"));
    EXPECT_TRUE(iron.isPartLevelMaterial());
    EXPECT_EQ(text(iron, EProperty::Density), "7e-06 kilogram1 millimeter-3");
}

TEST_F(Rod, HasMaterialsAndFiguresOfSingleBodies)
{
    const auto& materials = balls.miscData()->materials();
    ASSERT_EQ(materials.size(), 2U);
    EXPECT_EQ(materials[0]->name(), WIDE("aluminium"));
    EXPECT_FALSE(materials[0]->isPartLevelMaterial());
    EXPECT_EQ(text(*materials[0], EProperty::Density), "0.0975 poind_mass1 inch-3");
    EXPECT_EQ(materials[1]->name(), WIDE("bronze"));
    EXPECT_EQ(text(*materials[1], EProperty::Density), "8.8 gram1 centimeter-3");
    EXPECT_EQ(text(*materials[1], EProperty::YieldStrength), "none");
    ASSERT_EQ(materials[0]->linkedElements().size(), 1U);
    ASSERT_EQ(materials[1]->linkedElements().size(), 1U);

    const std::uint64_t right = materials[1]->linkedElements()[0]->fsp()->bodyId();
    EXPECT_NE(materials[0]->linkedElements()[0]->fsp()->bodyId(), right);
    ASSERT_EQ(balls.miscData()->noteParameters().size(), 1U);
    const vrx::ExcMiscNoteParameters& figures = *balls.miscData()->noteParameters()[0];
    EXPECT_EQ(figures.name(), WIDE("b1"));
    ASSERT_EQ(figures.properties().properties().size(), 2U);
    EXPECT_EQ(figures.properties().properties()[0].name(), WIDE("volume measure"));
    EXPECT_EQ(figures.properties().properties()[0].value(), WIDE("523.6"));
    EXPECT_EQ(figures.properties().properties()[1].value(), WIDE("40 0 0"));

    ASSERT_EQ(balls.entityData()->data().size(), 1U);
    EXPECT_EQ(balls.entityData()->data()[0]->entity()->fsp()->bodyId(), right);
    EXPECT_TRUE(balls.entityData()->data()[0]->isHidden());
}

// The centroid is stated in the coordinates of the part.
TEST_F(Rod, HasFiguresOfBodiesWhosePartIsNoBlock)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    options->setProductStructureMode(vrx::EProductStructureMode::None);
    const Imported flat = importFile(ROD, options);
    std::vector<std::string> names;
    for (const auto& figures : flat.mechanical.at(2)->miscData()->noteParameters())
    {
        names.push_back(mp::toNarrow(figures->name()));
        EXPECT_EQ(figures->properties().properties().size(), 1U);
    }
    EXPECT_THAT(names, ElementsAre("b1", "b3"));
}

TEST_F(Rod, HasOneOfTheMaterialsForAllItsBodiesAsAComponent)
{
    const auto options = vrx::Command::newLegacyImportOptions();
    const Imported legacy = importFile(ROD, options);
    EXPECT_EQ(legacy.materials->map().at(OdDbHandle(1)).name, WIDE("C45"));
    EXPECT_FALSE(legacy.materials->map().at(OdDbHandle(3)).hasMaterial); // the balls of two materials
}

TEST_F(Rod, IsOnLayers)
{
    const auto& layers = rod.miscData()->layers();
    ASSERT_EQ(layers.size(), 2U);
    EXPECT_EQ(layers[0]->id(), 7);
    EXPECT_EQ(layers[0]->name(), WIDE("layer 007: turned"));
    const std::vector<std::uint64_t> body = {layers[0]->entities().at(0)->fsp()->bodyId()};
    EXPECT_THAT(texts(layers[0]->entities(), body), ElementsAre("b0", "f0"));
    EXPECT_EQ(layers[1]->id(), 1);
    EXPECT_EQ(layers[1]->name(), WIDE("notes"));
    EXPECT_THAT(texts(layers[1]->entities(), body), ElementsAre("1/0/notes/0"));

    ASSERT_EQ(balls.miscData()->layers().size(), 1U);
    const vrx::ExcMiscLayer& ofBalls = *balls.miscData()->layers()[0];
    EXPECT_EQ(ofBalls.id(), 2);
    EXPECT_EQ(ofBalls.name(), WIDE("balls"));
    EXPECT_EQ(ofBalls.entities().size(), 2U);

    const auto root = imported.scenes.at(3)->visualizationData()->sceneRootNodes().at(0);
    const auto bodies = root->childNodes().at(0)->childNodes().at(0)->childNodes();
    ASSERT_EQ(bodies.size(), 2U);
    EXPECT_EQ(bodies[0]->attributes(), nullptr);
    ASSERT_NE(bodies[1]->attributes(), nullptr);
    EXPECT_TRUE(bodies[1]->attributes()->isHidden());
}

TEST_F(Rod, HasNamesAndStylesOfFacesAndEdges)
{
    std::vector<std::string> lines;
    for (const auto& one : rod.entityData()->data())
    {
        std::string line = text(*one->entity(), {});
        for (const mp::wstring& name : one->persistentNames())
        {
            line += ' ' + mp::toNarrow(name);
        }
        line += one->isHidden() ? " hidden" : "";
        line += one->lineType() == ELineType::Dash && one->lineThickness() == 0.5 ? " dashed" : "";
        lines.push_back(line);
    }
    EXPECT_THAT(lines, ElementsAre("1/0/notes/0 hidden", "f0 mantle", "e0 rim dashed", "f2 hidden"));
}

TEST(InstanceStyles, GiveOneScrewItsOwnColor)
{
    const Imported vise = importFile(BENCH_VISE);
    int plates = 0;
    int painted = 0;
    for (const auto& block : vise.structure->blocks())
    {
        plates += block->name() == WIDE("jaw plate set") ? 1 : 0;
        for (const auto& reference : block->blockReferences())
        {
            const vrx::ExcColor& color = reference->color();
            const bool isPainted = color.hasRGB() && color[vrx::ExcColor::ChannelRed] == 204;
            EXPECT_TRUE(!isPainted || reference->name() == WIDE("right screw"));
            painted += isPainted ? 1 : 0;
        }
    }
    EXPECT_EQ(plates, 2);
    EXPECT_EQ(painted, 1);
    EXPECT_EQ(vise.scenes.size(), 14U); // one for each part
}

} // namespace
