#include "imported.h"

#include <gmock/gmock.h>

namespace
{

using testing::Pair;

std::shared_ptr<vrx::LegacyImportOptions> defaults()
{
    return vrx::Command::newLegacyImportOptions();
}

TEST(Legacy, NamesComponentsAndTheirMaterials)
{
    const Imported imported = importFile(BENCH_VISE, defaults());
    ASSERT_EQ(imported.result.code(), vrx::Result::ECode::Ok);
    ASSERT_NE(imported.names, nullptr);
    ASSERT_NE(imported.materials, nullptr);

    const std::map<OdDbHandle, mp::wstring>& names = imported.names->map();
    std::size_t references = imported.structure->rootBlockReferences().size();
    for (const auto& block : imported.structure->blocks())
    {
        references += block->blockReferences().size();
    }
    ASSERT_EQ(names.size(), references);
    // The root, its ten components, and those of the next block that has any.
    EXPECT_THAT(*names.begin(), Pair(OdDbHandle(1), WIDE("bench vise")));
    EXPECT_EQ(names.at(OdDbHandle(2)), WIDE("base"));
    EXPECT_EQ(names.at(OdDbHandle(3)), WIDE("fixed jaw"));
    EXPECT_EQ(names.at(OdDbHandle(12)), WIDE("jaw"));

    const auto& materials = imported.materials->map();
    ASSERT_EQ(materials.size(), references);
    EXPECT_FALSE(materials.at(OdDbHandle(1)).hasMaterial);
    const vrx::LegacyMaterialMap::Material& base = materials.at(OdDbHandle(2));
    EXPECT_TRUE(base.hasMaterial);
    EXPECT_EQ(base.name, WIDE("EN-GJL-250"));
    EXPECT_DOUBLE_EQ(base.density, 7.2);
    EXPECT_EQ(base.thermalConductivity, 0);
}

} // namespace
