#include "tests/support/json_text.h"
#include "tests/support/log_capture.h"
#include "tests/support/message_text.h"
#include "vrx_api/vrx_api_exchange_object.h"

#include <gmock/gmock.h>

using namespace vrx;
using test::readText;
using test::refusal;
using test::written;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace
{

// What is no entry of the map: other kinds, no handle, a handle that is none, no data, data of another kind.
std::string arrayWithOddEntries(const std::string& dataKey, const std::string& data)
{
    return R"([5,null,[],{},{")" + dataKey + "\":" + data + R"(},{"component_handle":-1,")" + dataKey + "\":" + data +
           R"(},{"component_handle":1.0,")" + dataKey + "\":" + data +
           R"(},{"component_handle":1},{"component_handle":1,")" + dataKey + R"(":[]}])";
}

LegacyMaterialMap::Material density(double value)
{
    LegacyMaterialMap::Material material;
    material.density = value;
    return material;
}

std::vector<std::pair<std::uint64_t, double>> densities(const LegacyMaterialMap& materials)
{
    std::vector<std::pair<std::uint64_t, double>> all;
    for (const auto& [handle, material] : materials.map())
    {
        all.emplace_back(handle, material.density);
    }
    return all;
}

} // namespace

TEST(LegacyMaps, AreStrictAboutTheArrayAndSilentAboutItsElements)
{
    LegacyComponentInstanceNames names;
    LegacyMaterialMap materials;
    const test::LogCapture log;
    for (const char* const text : {"{}", "null", "7"})
    {
        EXPECT_EQ(refusal([&] { readText(names, text); }),
                  "LegacyComponentInstanceNames::readObject(): Input json object is not an array");
        EXPECT_EQ(refusal([&] { readText(materials, text); }),
                  "LegacyMaterialMap::readObject(): Input json object is not an array");
    }
    readText(names, arrayWithOddEntries("component_name", R"("n")"));
    readText(materials, arrayWithOddEntries("component_material", "{}"));
    EXPECT_EQ(written(names), "[]");
    EXPECT_EQ(written(materials), "[]");
    EXPECT_THAT(log.complaints(), IsEmpty());
    EXPECT_THAT(log.lines("TRACE"), IsEmpty());
}

// Of two entries for one handle the later name counts, but the earlier material.
TEST(LegacyMaps, ReadAHandleThatIsThere)
{
    LegacyComponentInstanceNames names;
    names.addInstanceName(2, WIDE("before"));
    names.addInstanceName(3, WIDE("stays"));
    readText(names,
             R"([{"component_handle":2,"component_name":"b"},{"component_name":"a\u0000x","component_handle":1},)"
             R"({"component_handle":2,"component_name":"c"}])");
    EXPECT_THAT(names.map(), ElementsAre(Pair(1, WIDE("a")), Pair(2, WIDE("c")), Pair(3, WIDE("stays"))));

    LegacyMaterialMap materials;
    materials.addMaterial(2, density(2.5));
    readText(materials, R"([{"component_handle":2,"component_material":{"density":7.5}},)"
                        R"({"component_handle":1,"component_material":{"density":1.5}},)"
                        R"({"component_handle":1,"component_material":{"density":8.5}},)"
                        R"({"component_handle":0,"component_material":{"density":7,"name":[],"has_material":1}}])");
    EXPECT_THAT(densities(materials), ElementsAre(Pair(0, 0), Pair(1, 1.5), Pair(2, 2.5)));
}

TEST(LegacyMaps, AddReplacesAndMergeDoesNot)
{
    LegacyComponentInstanceNames names;
    LegacyComponentInstanceNames otherNames;
    EXPECT_TRUE(names.addInstanceName(1, WIDE("a")));
    EXPECT_TRUE(names.addInstanceName(1, WIDE("b")));
    otherNames.setMap({{1, WIDE("c")}, {2, WIDE("d")}});
    names.merge(otherNames);
    EXPECT_THAT(names.map(), ElementsAre(Pair(1, WIDE("b")), Pair(2, WIDE("d"))));
    names.setMap({});
    EXPECT_THAT(names.map(), IsEmpty());

    LegacyMaterialMap materials;
    LegacyMaterialMap otherMaterials;
    EXPECT_TRUE(materials.addMaterial(1, density(1)));
    EXPECT_TRUE(materials.addMaterial(1, density(2)));
    otherMaterials.setMap({{1, density(3)}, {2, density(4)}});
    materials.merge(otherMaterials);
    EXPECT_THAT(densities(materials), ElementsAre(Pair(1, 2), Pair(2, 4)));
}

TEST(LegacyMaps, WriteAllMembersOfAMaterial)
{
    LegacyMaterialMap materials;
    materials.addMaterial(7, {});
    EXPECT_EQ(written(materials), R"([{"component_handle":7,"component_material":{"has_material":false,"name":"",)"
                                  R"("density":0.0,"thermal_conductivity":0.0,"specific_heat":0.0}}])");
}
