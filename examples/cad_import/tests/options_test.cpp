#include "iges_sample.h"
#include "imported.h"
#include "vrx_api/vrx_api_format_options.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

namespace
{

using Hidden = vrx::ETranslateHiddenEntitiesModeType;
using Entities = vrx::EImportEntities;

bool hasLayers(const Imported& imported)
{
    return std::any_of(imported.mechanical.begin(), imported.mechanical.end(), [](const auto& data) {
        return data.second->miscData() && !data.second->miscData()->layers().empty();
    });
}

bool readsLayers(vrx::ELayerNameProcessingModeType mode)
{
    const auto options = std::make_shared<vrx::imp::OptionsSTEP>();
    options->setLayerNameProcessingMode(mode);
    const Imported imported = importFile(BENCH_VISE, options);
    EXPECT_EQ(imported.structure->blocks().size(), 21U);
    return hasLayers(imported);
}

TEST(OptionsStep, LayerNameMode)
{
    EXPECT_TRUE(readsLayers(vrx::ELayerNameProcessingModeType::Unknown));
    EXPECT_TRUE(readsLayers(vrx::ELayerNameProcessingModeType::AsmRep));
    EXPECT_FALSE(readsLayers(vrx::ELayerNameProcessingModeType::SavedVisuRep));
}

bool readsPmi(vrx::EVisuPMIProcessingMode mode)
{
    const auto options = std::make_shared<vrx::imp::OptionsSTEP>();
    options->setVisuPMIProcessingMode(mode);
    const Imported imported = importFile(MOVED_NOTE, options);
    EXPECT_FALSE(imported.structure->blocks().empty());
    return imported.root != nullptr;
}

TEST(OptionsStep, VisuPmiMode)
{
    EXPECT_TRUE(readsPmi(vrx::EVisuPMIProcessingMode::Unknown));
    EXPECT_TRUE(readsPmi(vrx::EVisuPMIProcessingMode::All));
    EXPECT_FALSE(readsPmi(vrx::EVisuPMIProcessingMode::None));
}

class OptionsIges : public testing::Test
{
protected:
    OptionsIges()
    {
        std::string folder = testing::TempDir() + "iges_XXXXXX";
        m_folder = mkdtemp(folder.data());
        m_file = m_folder + "/sample.igs";
        writeIgesSample(m_file);
    }

    ~OptionsIges() override { std::filesystem::remove_all(m_folder); }

    Imported import(Hidden hidden, Entities entities) const
    {
        const auto options = std::make_shared<vrx::imp::OptionsIGES>();
        options->setHiddenEntitiesMode(hidden);
        options->setImportEntities(entities);
        return importFile(m_file, options);
    }

    std::string m_folder;
    std::string m_file;
};

const char kAll[] = R"(sample (sample) [assembly: 7 components]
  box (box) #ff0000 [part: 1 solid, 6 faces]
  hidden box (hidden box) hidden [part: 1 solid, 6 faces]
  pair (pair) [assembly: 2 components]
    left (left) [part: 1 solid, 6 faces]
    right (right) hidden [part: 1 solid, 6 faces]
  hidden pair (hidden pair) hidden [assembly: 2 components]
    inside (inside) [part: 1 solid, 6 faces]
    hidden inside (hidden inside) hidden [part: 1 solid, 6 faces]
  cube (cube) [part: 1 solid, 6 faces]
  sample (sample) [part: 0 faces]
  sample (sample) hidden [part: 0 faces]
)";

TEST_F(OptionsIges, AllHiddenEntitiesAreMarked)
{
    const Imported imported = import(Hidden::All, Entities::RootOnly);
    EXPECT_EQ(treeText(imported), kAll);
    EXPECT_EQ(imported.result.message(), WIDE(""));
    EXPECT_EQ(imported.scenes.size(), 9U);
    EXPECT_EQ(treeText(import(Hidden::Unknown, Entities::Unknown)), kAll);
    EXPECT_EQ(treeText(importFile(m_file)), kAll);
}

TEST_F(OptionsIges, NoHiddenEntities)
{
    const Imported imported = import(Hidden::None, Entities::RootOnly);
    EXPECT_EQ(treeText(imported), R"(sample (sample) [assembly: 4 components]
  box (box) #ff0000 [part: 1 solid, 6 faces]
  pair (pair) [assembly: 1 component]
    left (left) [part: 1 solid, 6 faces]
  cube (cube) [part: 1 solid, 6 faces]
  sample (sample) [part: 0 faces]
)");
    EXPECT_EQ(imported.scenes.size(), 4U);
}

TEST_F(OptionsIges, HiddenEntitiesWithVisibleLinks)
{
    EXPECT_EQ(treeText(import(Hidden::OnlyWithVisibleLinks, Entities::RootOnly)),
              R"(sample (sample) [assembly: 4 components]
  box (box) #ff0000 [part: 1 solid, 6 faces]
  pair (pair) [assembly: 2 components]
    left (left) [part: 1 solid, 6 faces]
    right (right) hidden [part: 1 solid, 6 faces]
  cube (cube) [part: 1 solid, 6 faces]
  sample (sample) [part: 0 faces]
)");
}

TEST_F(OptionsIges, MembersOfGroupsByThemselves)
{
    const std::string none = R"(sample (sample) [assembly: 6 components]
  box (box) #ff0000 [part: 1 solid, 6 faces]
  pair (pair) [assembly: 1 component]
    left (left) [part: 1 solid, 6 faces]
  cube (cube) [part: 1 solid, 6 faces]
  left (left) [part: 1 solid, 6 faces]
  inside (inside) [part: 1 solid, 6 faces]
  sample (sample) [part: 0 faces]
)";
    EXPECT_EQ(treeText(import(Hidden::None, Entities::RootAndNonroot)), none);

    // What only a hidden entity refers to has no visible link.
    EXPECT_EQ(treeText(import(Hidden::OnlyWithVisibleLinks, Entities::RootAndNonroot)),
              R"(sample (sample) [assembly: 7 components]
  box (box) #ff0000 [part: 1 solid, 6 faces]
  pair (pair) [assembly: 2 components]
    left (left) [part: 1 solid, 6 faces]
    right (right) hidden [part: 1 solid, 6 faces]
  cube (cube) [part: 1 solid, 6 faces]
  left (left) [part: 1 solid, 6 faces]
  right (right) hidden [part: 1 solid, 6 faces]
  inside (inside) [part: 1 solid, 6 faces]
  sample (sample) [part: 0 faces]
)");

    const Imported all = import(Hidden::All, Entities::RootAndNonroot);
    const auto& product = *all.structure->getBlockById(all.structure->rootBlockReferences()[0]->blockId());
    ASSERT_EQ(product.blockReferences().size(), 11U);
    EXPECT_EQ(product.blockReferences()[6]->name(), WIDE("right"));
    EXPECT_TRUE(product.blockReferences()[6]->isHidden());
    EXPECT_EQ(all.structure->blocks().size(), import(Hidden::All, Entities::RootOnly).structure->blocks().size());
}

TEST_F(OptionsIges, PlacesAndLayersAreTheFiles)
{
    const Imported imported = importFile(m_file);
    EXPECT_EQ(imported.structure->units(), vrx::ELengthUnitType::Millimeter);
    const auto& product = *imported.structure->getBlockById(imported.structure->rootBlockReferences()[0]->blockId());
    const vrx::ExcTransformation& place = product.blockReferences().at(4)->transformation();
    const std::array<double, 3> expected{0, 50.8, 0};
    for (std::size_t i = 0; i < 3; ++i)
    {
        EXPECT_NEAR(place.translation()[i], expected[i], 1e-9);
    }
    EXPECT_NEAR(place.affine()[0][1], -1, 1e-12);
    EXPECT_NEAR(place.affine()[1][0], 1, 1e-12);

    const auto& box = *imported.structure->getBlockById(product.blockReferences()[0]->blockId());
    const auto& layers = imported.mechanical.at(box.id())->miscData()->layers();
    ASSERT_EQ(layers.size(), 1U);
    EXPECT_EQ(layers[0]->id(), 4);
    EXPECT_EQ(layers[0]->entities().size(), 1U);
}

} // namespace
