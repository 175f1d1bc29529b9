#include "tests/support/add_row.h"
#include "tests/support/enum_row.h"
#include "tests/support/helpers.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <limits>
#include <stdexcept>

using namespace vrx;
using test::addAllRow;
using test::addRow;
using test::enumRow;
using test::row;
using test::setAllRow;
using EColorType = ExcVisuMaterial::EColorType;
using ETextureType = ExcVisuMaterial::ETextureType;

namespace
{

class AppearanceRows : public test::ModelRows
{
};

class ItemRows : public test::ModelRows
{
};

const char* const kFont =
    R"({"name":"","text_height":10.0,"font_pitch":"unknown","spacing_factor":1.0,"width_scaling_factor":1.0})";
const char* const kTexture =
    R"({"method":"undefined","wrap_mode":{"u":"undefined","v":"undefined"},"mapping_mode":"undefined",)"
    R"("filter":"undefined","alpha":1.0,"file":"","name_uv":"","name":"","uv_translation":{"u":0.0,"v":0.0},)"
    R"("uv_scale":{"u":1.0,"v":1.0},"uv_rotation":{"u":0.0,"v":0.0,"w":0.0},"swap_uv":false,"use_material":false})";
const char* const kNoColor =
    "[WARNING] ExcVisuMaterial: !colorType.IsString() || !colorValue.IsArray() || colorValue.GetArray().Size() < 4";
const char* const kNoTextures = "[ERROR] ExcVisuMaterial: !textureType.IsString() || !textureArray.IsArray()";

std::string material(const std::string& colors, const std::string& bump = "[0.0,0.0,0.0]",
                     const std::string& textures = "{}")
{
    return R"({"name":"","id":"","colors":)" + colors + R"(,"shininess":0.0,"bump":)" + bump +
           R"(,"bump_factor":0.0,"normal_map":[0.0,0.0,0.0],"textures":)" + textures + "}";
}

const test::ModelRow kAppearance[] = {
    row<ExcVisuFont>("FontDefault", "{}", kFont),

    row<ExcVisuTexture>("TextureDefault", "{}", kTexture),
    row<ExcVisuTexture>("TextureOfWrongKinds",
                        R"({"wrap_mode":["clamp"],"uv_scale":2.0,"uv_rotation":null,"swap_uv":1,"alpha":0})", kTexture),
    row<ExcVisuTexture>(
        "TextureTakesEachDirectionByItself",
        R"({"wrap_mode":{"u":1,"v":"edge"},"uv_translation":{"u":1,"v":2.5},"uv_scale":{"v":0.5},)"
        R"("uv_rotation":{"w":9.5,"v":""}})",
        R"({"method":"undefined","wrap_mode":{"u":"undefined","v":"edge"},"mapping_mode":"undefined",)"
        R"("filter":"undefined","alpha":1.0,"file":"","name_uv":"","name":"","uv_translation":{"u":0.0,"v":2.5},)"
        R"("uv_scale":{"u":1.0,"v":0.5},"uv_rotation":{"u":0.0,"v":0.0,"w":9.5},"swap_uv":false,)"
        R"("use_material":false})"),

    row<ExcVisuMaterial>("MaterialDefault", "{}", material("{}")),
    row<ExcVisuMaterial>("MaterialColorsInTheOrderOfTheirNumbers",
                         R"({"colors":{"reflection":[1.0,2.0,3.0,0.5],"ambient":[4.0,5.0,6.0,7.5,8.0]}})",
                         material(R"({"ambient":[4.0,5.0,6.0,7.5],"reflection":[1.0,2.0,3.0,0.5]})")),
    row<ExcVisuMaterial>("MaterialColorChannels",
                         R"({"colors":{"diffuse":[300.7,300,-1.5,1e300],"emissive":[70000.0,-0.9,1e300,"1"]}})",
                         material(R"({"diffuse":[300.0,0.0,65535.0,1e300],"emissive":[4464.0,0.0,0.0,0.0]})")),
    row<ExcVisuMaterial>(
        "MaterialColorOfAnUnknownName",
        R"({"colors":{"ambient":[1.0,1.0,1.0,1.0],"Diffuse":[2.0,"",3.0,4.0],"transparency\u0000":[0.0,0.0,0.0,1.0]}})",
        material(R"({"ambient":[2.0,0.0,3.0,4.0],"transparency":[0.0,0.0,0.0,1.0]})")),
    row<ExcVisuMaterial>("MaterialColorsOfWrongKinds",
                         R"({"colors":{"ambient":[1.0,1.0,1.0],"diffuse":{},"specular":[0.0,0.0,0.0,0.0]}})",
                         material(R"({"specular":[0.0,0.0,0.0,0.0]})"), {kNoColor, kNoColor}),
    row<ExcVisuMaterial>("MaterialTextures",
                         R"({"textures":{"blending":[{}],"ambient":[],"diffuse":{},"specular":[3]}})",
                         material("{}", "[0.0,0.0,0.0]",
                                  R"({"specular":[)" + std::string(kTexture) + R"(],"blending":[)" + kTexture + "]}"),
                         {kNoTextures, "[ERROR] ExcVisuTexture object should have a JSON object type."}),
    row<ExcVisuMaterial>("MaterialMapsOfWrongKinds", R"({"colors":[[1.0,1.0,1.0,1.0]],"textures":null})",
                         material("{}")),
    row<ExcVisuMaterial>("MaterialBumpOfTwo", R"({"bump":[1.0,2.0]})", material("{}")),
    row<ExcVisuMaterial>("MaterialBumpOfFour", R"({"bump":[1.0,2.0,3.0,4.0]})", material("{}")),
    row<ExcVisuMaterial>("MaterialBumpWithAnInteger", R"({"bump":[1.0,2,3.0]})", material("{}", "[1.0,0.0,3.0]")),

    row<ExcVisuLineAttribute>("LineAttributeDefault", "{}", R"({"line_weight":0.0,"line_style":"undefined"})"),

    row<ExcVisuAttributes>("AttributesDefault", "{}", R"({"hidden":false})"),
    row<ExcVisuAttributes>(
        "AttributesOfWrongKindsPointAtDefaults",
        R"({"line_attribute":0,"materials":{},"hidden":"","color":[],"font":null})",
        R"({"font":)" + std::string(kFont) +
            R"(,"color":null,"hidden":false,"line_attribute":{"line_weight":0.0,"line_style":"undefined"}})",
        {"[ERROR] ExcVisuFont object should have a JSON object type.",
         "[ERROR] ExcVisuLineAttribute object should have a JSON object type."}),
};

TEST_P(AppearanceRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Visualization, AppearanceRows, testing::ValuesIn(kAppearance), AppearanceRows::nameOf);

const char* const kFace = R"({"color":null,"mechanical_id":"","id":""})";
const char* const kEdge = R"({"line_type":"unknown","color":null,"mechanical_id":""})";
const char* const kNoEdge = "[ERROR] ExcVisuEdge object should have a JSON object type.";
const char* const kMesh = R"({"display_name":"","id":"","mechanical_id":"","geometry_type":"unknown"})";
const std::string kText =
    R"({"text":"","anchor_point":[0.0,0.0,0.0],"direction":[0.0,0.0,0.0],"normal":[0.0,0.0,0.0],"color":null,"font":)" +
    std::string(kFont) + "}";

const test::ModelRow kItems[] = {
    row<ExcVisuFace>("FaceDefault", "{}", kFace),
    row<ExcVisuFace>("FaceWritesTheDoublesOfItsFloats", R"({"vertices":[0.1,4.0]})",
                     R"({"vertices":[0.10000000149011612,4.0],"color":null,"mechanical_id":"","id":""})"),
    row<ExcVisuFace>(
        "FaceNumbersKeepTheirPlaces",
        R"({"vertices":[1.5,"",2,3.0],"normals":[null,1e-300],"polygons":[{"indices":[1,2.5,3,4294967295]}]})",
        R"({"vertices":[1.5,0.0,0.0,3.0],"normals":[0.0,0.0],"polygons":[{"type":0,"indices":[1,0,3,0]}],)"
        R"("color":null,"mechanical_id":"","id":""})"),
    row<ExcVisuFace>("FacePolygonsAreObjects", R"({"polygons":[7,{"type":2},{"type":2.0,"indices":{}}]})",
                     R"({"polygons":[{"type":2},{"type":0}],"color":null,"mechanical_id":"","id":""})",
                     {"[WARNING] ExcVisuFace: polygons array item should be an object."}),

    row<ExcVisuEdge>(
        "Edge",
        R"({"mechanical_id":"m","id":"none","color":{"alpha":1},"line_type":"line_loop_filled",)"
        R"("line_indices":[1,0.5,-7],"points":[0.5,1]})",
        R"({"points":[0.5,0.0],"line_indices":[1,0,-7],"line_type":"line_loop_filled","color":{"alpha":1},)"
        R"("mechanical_id":"m"})"),
    row<ExcVisuEdge>("EdgeDefault", "{}", kEdge),

    row<ExcVisuMesh>("MeshDefault", "{}", kMesh),
    row<ExcVisuMesh>("MeshKeepsItsLengths",
                     R"({"edges":[1,{}],"faces":[{"id":"f"}],"geometry_type":"part","mechanical_id":"m","id":"i",)"
                     R"("display_name":"d"})",
                     R"({"display_name":"d","id":"i","mechanical_id":"m","geometry_type":"part",)"
                     R"("faces":[{"color":null,"mechanical_id":"","id":"f"}],"edges":[)" +
                         std::string(kEdge) + "," + kEdge + "]}",
                     {kNoEdge}),
    row<ExcVisuWire>("WireDefault", "{}", kMesh),

    row<ExcVisuText>("TextDefault", "{}", kText),

    row<ExcVisuPMI>("PMIDefault", "{}", R"({"display_name":"","id":"","mechanical_id":""})"),

    row<ExcVisuPoints>("Points",
                       R"({"color":{"rgb":[1,2,3]},"marker_style":"UNFILLED_TRIANGLE","point_indices":[3,"",-1],)"
                       R"("points":[1.5,2]})",
                       R"({"points":[1.5,0.0],"point_indices":[3,0,-1],"marker_style":"UNFILLED_TRIANGLE",)"
                       R"("color":{"rgb":[1,2,3]}})"),
    row<ExcVisuPoints>("PointsDefault", "{}", R"({"marker_style":"NOTUSED","color":null})"),
    row<ExcVisuPointSet>("PointSet",
                         R"({"points":[[],{"marker_style":"DOT"}],"geometry_type":"fta_constructed",)"
                         R"("mechanical_id":"m","id":"i","display_name":"d"})",
                         R"({"display_name":"d","id":"i","mechanical_id":"m","geometry_type":"fta_constructed",)"
                         R"("points":[{"marker_style":"NOTUSED","color":null},{"marker_style":"DOT","color":null}]})",
                         {"[ERROR] ExcVisuPoints object should have a JSON object type."}),
    row<ExcVisuPointSet>("PointSetDefault", "{}", kMesh),
};

TEST_P(ItemRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Visualization, ItemRows, testing::ValuesIn(kItems), ItemRows::nameOf);

// The number of the kind whose entry was read.
EColorType readColorType(const mp::wstring& name)
{
    const auto read =
        test::readFrom<ExcVisuMaterial>(R"({"colors":{")" + mp::toNarrow(name) + R"(":[1.0,2.0,3.0,0.5]}})");
    int number = 0;
    while (number < 10 && read.color(static_cast<EColorType>(number)).red == 0)
    {
        ++number;
    }
    return static_cast<EColorType>(number);
}

ETextureType readTextureType(const mp::wstring& name)
{
    const auto read = test::readFrom<ExcVisuMaterial>(R"({"textures":{")" + mp::toNarrow(name) + R"(":[{}]}})");
    int number = 0;
    while (number < 10 && read.textures(static_cast<ETextureType>(number)).empty())
    {
        ++number;
    }
    return static_cast<ETextureType>(number);
}

// The name of the only member under a key.
mp::wstring writtenName(const ExcVisuMaterial& material, const char* key)
{
    const JsonDocument document = test::parsed(test::written(material));
    return document[test::wide(key).c_str()].MemberBegin()->name.GetString();
}

mp::wstring writtenColorType(EColorType type)
{
    ExcVisuMaterial material;
    material.setColor(type, {});
    return writtenName(material, "colors");
}

mp::wstring writtenTextureType(ETextureType type)
{
    ExcVisuMaterial material;
    material.setTextures(type, {});
    return writtenName(material, "textures");
}

test::EnumRow wrapModeRow(const char* title, const char* text, int direction)
{
    return enumRow<ExcVisuTexture>(
        title, text, [=](const ExcVisuTexture& texture) { return texture.wrapMode(direction); },
        [=](ExcVisuTexture& texture, ExcVisuTexture::EWrapMode mode) { texture.setWrapMode(direction, mode); },
        {"undefined", "repeat", "clamp", "border", "edge", "mirror"}, "border");
}

template <class T>
test::EnumRow geometryTypeRow(const char* title)
{
    return enumRow(title, "geometry_type", &T::geometryType, &T::setGeometryType,
                   {"unknown", "part", "construction", "fta_constructed"}, "construction");
}

const test::EnumRow kEnums[] = {
    enumRow("ExcVisuFont::EPitch", "font_pitch", &ExcVisuFont::pitch, &ExcVisuFont::setPitch,
            {"unknown", "fixed", "variable"}, "fixed"),
    enumRow("ExcVisuTexture::EMethod", "method", &ExcVisuTexture::method, &ExcVisuTexture::setMethod,
            {"undefined", "decal", "modulate", "add", "replace"}, "add"),
    wrapModeRow("ExcVisuTexture::EWrapMode of U", R"({"wrap_mode":{"u":"?"}})", 0),
    wrapModeRow("ExcVisuTexture::EWrapMode of V", R"({"wrap_mode":{"v":"?"}})", 1),
    enumRow("ExcVisuTexture::EMappingMode", "mapping_mode", &ExcVisuTexture::mappingMode,
            &ExcVisuTexture::setMappingMode, {"undefined", "uv", "planar", "spherical", "cylindrical", "environment"},
            "cylindrical"),
    enumRow("ExcVisuTexture::EFilter", "filter", &ExcVisuTexture::filter, &ExcVisuTexture::setFilter,
            {"undefined", "nearest", "linear", "nearest_mipmap_nearest", "nearest_mipmap_linear",
             "linear_mipmap_linear", "linear_mipmap_nearest"},
            "linear"),
    enumRow<EColorType>("ExcVisuMaterial::EColorType", writtenColorType, readColorType,
                        {"unknown", "ambient", "diffuse", "specular", "emissive", "transparency", "reflection"},
                        "ambient"),
    enumRow<ETextureType>("ExcVisuMaterial::ETextureType", writtenTextureType, readTextureType,
                          {"unknown", "ambient", "diffuse", "specular", "emissive", "blending"}, "ambient"),
    enumRow("ExcVisuLineAttribute::ELineStyle", "line_style", &ExcVisuLineAttribute::lineStyle,
            &ExcVisuLineAttribute::setLineStyle,
            {"undefined",
             "solid_line",
             "dash_dot_line",
             "dash_line",
             "dot_line",
             "dash_dot_dot_line",
             "dash_dot_dot_dot_line",
             {8, "center_line"},
             "phantom_line"},
            "center_line"),
    enumRow("ExcVisuEdge::ELineType", "line_type", &ExcVisuEdge::lineType, &ExcVisuEdge::setLineType,
            {"unknown", "line_strip", "line_loop", "line_loop_filled"}, "line_loop"),
    geometryTypeRow<ExcVisuMesh>("EVisuGeometryType of ExcVisuMesh"),
    geometryTypeRow<ExcVisuWire>("EVisuGeometryType of ExcVisuWire"),
    geometryTypeRow<ExcVisuPointSet>("EVisuGeometryType of ExcVisuPointSet"),
    enumRow("EVisuMarkerStyle", "marker_style", &ExcVisuPoints::markerStyle, &ExcVisuPoints::setMarkerStyle,
            {"NOTUSED",
             "CROSS",
             "PLUS",
             "CONCENTRIC",
             "COINCIDENT",
             "FULLCIRCLE",
             "FULLSQUARE",
             "STAR",
             "DOT",
             "SMALLDOT",
             "MISC1",
             "MISC2",
             "FULLCIRCLE2",
             "FULLSQUARE2",
             "OPEN_ARROW",
             "UNFILLED_ARROW",
             "BLANKED_ARROW",
             "FILLED_ARROW",
             "UNFILLED_CIRCLE",
             "BLANKED_CIRCLE",
             "FILLED_CIRCLE",
             "CROSSED_CIRCLE",
             "BLANKED_SQUARE",
             "FILLED_SQUARE",
             "BLANKED_TRIANGLE",
             "FILLED_TRIANGLE",
             "MANIPULATOR_SQUARE",
             "MANIPULATOR_DIAMOND",
             "MANIPULATOR_CIRCLE",
             "MANIPULATOR_TRIANGLE",
             "DOUBLE_OPEN_ARROW",
             "WAVE",
             "DOUBLE_FILLED_ARROW",
             "FULLDOUBLEROTATEARROWBLACKBORDER",
             "FULLSQUAREBLACKBORDER",
             "FULLDIAMONDBLACKBORDER",
             {36, "FULLCIRCLEBLACKBORDER"},
             {2001, "DOUBLE_UNFILLED_ARROW"},
             "DOUBLE_BLANKED_ARROW",
             "FORE_SLASH",
             "BACK_SLASH",
             "INTEGRAL",
             "UNFILLED_DOT",
             "FILLED_DOT",
             "UNFILLED_SQUARE",
             "TOP_OPEN_ARROW",
             "BOTTOM_OPEN_ARROW",
             "TOP_FILLED_ARROW",
             "BOTTOM_FILLED_ARROW",
             {2013, "UNFILLED_TRIANGLE"}},
            "BACK_SLASH"),
};

class VisualizationEnums : public test::EnumRows
{
};

TEST_P(VisualizationEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Visualization, VisualizationEnums, testing::ValuesIn(kEnums), VisualizationEnums::nameOf);

constexpr ETextureType kDiffuse = ETextureType::Diffuse;
using SharedTexture = std::shared_ptr<ExcVisuTexture>;

void addDiffuse(ExcVisuMaterial& material, const SharedTexture& texture)
{
    material.addTexture(kDiffuse, texture);
}

void addAllDiffuse(ExcVisuMaterial& material, const std::vector<SharedTexture>& textures)
{
    material.addTextures(kDiffuse, textures);
}

void setAllDiffuse(ExcVisuMaterial& material, const std::vector<SharedTexture>& textures)
{
    material.setTextures(kDiffuse, textures);
}

const std::vector<SharedTexture>& diffuse(const ExcVisuMaterial& material)
{
    return material.textures(kDiffuse);
}

const char* const kNullTexture = "ExcVisuMaterial: attempt to add null Texture object.";
const char* const kNullMaterial = "ExcVisuAttributes: attempt to add null Material object.";
const char* const kNullFace = "ExcVisuMesh: attempt to add null Visu Face object.";
const char* const kNullMeshEdge = "ExcVisuMesh: attempt to add null Visu Edge object.";
const char* const kNullWireEdge = "ExcVisuWire: attempt to add null Visu Edge object.";
const char* const kNullPMIEdge = "ExcVisuPMI: attempt to add null Visu Edge object.";
const char* const kNullText = "ExcVisuPMI: attempt to add null Visu Text object.";
const char* const kNullElement = "ExcVisuPMI: attempt to add null Linked Element object.";
const char* const kNullPoints = "ExcVisuPointSet: attempt to add null Visu Points object.";

const test::AddRow kAdds[] = {
    addRow<ExcVisuMaterial, ExcVisuTexture>("ExcVisuMaterial::addTexture", addDiffuse, kNullTexture),
    addAllRow<ExcVisuMaterial, ExcVisuTexture>("ExcVisuMaterial::addTextures", addAllDiffuse, kNullTexture),
    setAllRow<ExcVisuMaterial, ExcVisuTexture>("ExcVisuMaterial::setTextures", setAllDiffuse, kNullTexture, diffuse),
    addRow("ExcVisuAttributes::addMaterial", &ExcVisuAttributes::addMaterial, kNullMaterial),
    addAllRow("ExcVisuAttributes::addMaterials", &ExcVisuAttributes::addMaterials, kNullMaterial),
    setAllRow("ExcVisuAttributes::setMaterials", &ExcVisuAttributes::setMaterials, kNullMaterial),
    addRow("ExcVisuMesh::addFace", &ExcVisuMesh::addFace, kNullFace),
    addAllRow("ExcVisuMesh::addFaces", &ExcVisuMesh::addFaces, kNullFace),
    setAllRow("ExcVisuMesh::setFaces", &ExcVisuMesh::setFaces, kNullFace),
    addRow("ExcVisuMesh::addEdge", &ExcVisuMesh::addEdge, kNullMeshEdge),
    addAllRow("ExcVisuMesh::addEdges", &ExcVisuMesh::addEdges, kNullMeshEdge),
    setAllRow("ExcVisuMesh::setEdges", &ExcVisuMesh::setEdges, kNullMeshEdge),
    addRow("ExcVisuWire::addEdge", &ExcVisuWire::addEdge, kNullWireEdge),
    addAllRow("ExcVisuWire::addEdges", &ExcVisuWire::addEdges, kNullWireEdge),
    setAllRow("ExcVisuWire::setEdges", &ExcVisuWire::setEdges, kNullWireEdge),
    addRow("ExcVisuPMI::addEdge", &ExcVisuPMI::addEdge, kNullPMIEdge),
    addAllRow("ExcVisuPMI::addEdges", &ExcVisuPMI::addEdges, kNullPMIEdge),
    setAllRow("ExcVisuPMI::setEdges", &ExcVisuPMI::setEdges, kNullPMIEdge),
    addRow("ExcVisuPMI::addText", &ExcVisuPMI::addText, kNullText),
    addAllRow("ExcVisuPMI::addTexts", &ExcVisuPMI::addTexts, kNullText),
    setAllRow("ExcVisuPMI::setTexts", &ExcVisuPMI::setTexts, kNullText),
    addRow("ExcVisuPMI::addLinkedElement", &ExcVisuPMI::addLinkedElement, kNullElement, &ExcVisuPMI::linkedElements),
    setAllRow("ExcVisuPMI::setLinkedElements", &ExcVisuPMI::setLinkedElements, kNullElement,
              &ExcVisuPMI::linkedElements),
    addRow("ExcVisuPointSet::addPoints of one", &ExcVisuPointSet::addPoints, kNullPoints),
    addAllRow("ExcVisuPointSet::addPoints of many", &ExcVisuPointSet::addPoints, kNullPoints),
    setAllRow("ExcVisuPointSet::setPoints", &ExcVisuPointSet::setPoints, kNullPoints),
};

class VisualizationAdds : public test::AddRows
{
};

TEST_P(VisualizationAdds, RefuseNulls)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Visualization, VisualizationAdds, testing::ValuesIn(kAdds), VisualizationAdds::nameOf);

TEST(Texture, RefusesADirectionThatItLacks)
{
    ExcVisuTexture texture;
    texture.setRotation(2, 1.5);
    EXPECT_EQ(texture.rotation(2, 0.0), 1.5);
    using Error = std::invalid_argument;
    const char* const noWrapMode = "Texture wrap mode has only 0 (U) and 1 (V) directions.";
    const char* const noTranslation = "Texture translation has only 0 (U) and 1 (V) directions.";
    const char* const noScale = "Texture scale has only 0 (U) and 1 (V) directions.";
    const char* const noRotation = "Texture rotation has only 0 (U), 1 (V) and 2 (W) directions.";
    EXPECT_EQ(test::thrownBy<Error>([&] { texture.wrapMode(2); }), noWrapMode);
    EXPECT_EQ(test::thrownBy<Error>([&] { texture.setWrapMode(-1, ExcVisuTexture::EWrapMode::Clamp); }), noWrapMode);
    EXPECT_EQ(test::thrownBy<Error>([&] { texture.translation(-1); }), noTranslation);
    EXPECT_EQ(test::thrownBy<Error>([&] { texture.setTranslation(2, 1.0); }), noTranslation);
    EXPECT_EQ(test::thrownBy<Error>([&] { texture.scale(2); }), noScale);
    EXPECT_EQ(test::thrownBy<Error>([&] { texture.setScale(-1, 1.0); }), noScale);
    EXPECT_EQ(test::thrownBy<Error>([&] { texture.rotation(3, 0.0); }), noRotation);
    EXPECT_EQ(test::thrownBy<Error>([&] { texture.setRotation(-1, 1.0); }), noRotation);
}

TEST(Material, MakesAnEntryOfWhatItIsAskedFor)
{
    ExcVisuMaterial asked;
    EXPECT_EQ(asked.color(ExcVisuMaterial::EColorType::Specular).alpha, 0.0);
    const ExcVisuMaterial& constant = asked;
    EXPECT_EQ(constant.color(ExcVisuMaterial::EColorType::Unknown).red, 0);
    EXPECT_TRUE(constant.textures(ExcVisuMaterial::ETextureType::Emissive).empty());
    EXPECT_EQ(test::written(asked), material(R"({"unknown":[0.0,0.0,0.0,0.0],"specular":[0.0,0.0,0.0,0.0]})",
                                             "[0.0,0.0,0.0]", R"({"emissive":[]})"));
}

TEST(Material, ReplacesColorsAndAppendsTextures)
{
    const char* const text = R"({"colors":{"diffuse":[1.0,2.0,3.0,4.0]},"textures":{"diffuse":[{}]}})";
    auto twice = test::readFrom<ExcVisuMaterial>(text);
    twice.setColor(ExcVisuMaterial::EColorType::Diffuse, {7, 7, 7, 7.0});
    test::readText(twice, text);
    EXPECT_EQ(test::written(twice), material(R"({"diffuse":[1.0,2.0,3.0,4.0]})", "[0.0,0.0,0.0]",
                                             R"({"diffuse":[)" + std::string(kTexture) + "," + kTexture + "]}"));
}

TEST(Material, PassesOverAMemberWhoseNameIsNoString)
{
    JsonDocument document = test::parsed(R"({"colors":{"":[1.0,1.0,1.0,1.0]},"textures":{"":[{}]}})");
    document[WIDE("colors")].MemberBegin()->name.SetNull();
    document[WIDE("textures")].MemberBegin()->name.SetNull();
    ExcVisuMaterial nameless;
    const test::LogCapture log;
    nameless.readObject(document);
    EXPECT_EQ(test::written(nameless), material("{}"));
    EXPECT_EQ(log.complaints(), (std::vector<std::string>{kNoColor, kNoTextures}));
}

TEST(Items, AreSetToTheirOwn)
{
    ExcVisuPMI pmi;
    pmi.addLinkedElement(std::make_shared<ExcEntity>());
    pmi.setLinkedElements(pmi.linkedElements());
    EXPECT_EQ(pmi.linkedElements().size(), 1U);

    ExcVisuMaterial stack;
    stack.addTexture(kDiffuse, std::make_shared<ExcVisuTexture>());
    stack.addTextures(kDiffuse, stack.textures(kDiffuse));
    EXPECT_EQ(stack.textures(kDiffuse).size(), 2U);
}

TEST(Items, HoldTheLinkedElementsThatTheyNeverWrite)
{
    const auto pmi = test::readFrom<ExcVisuPMI>(R"({"linked_elements":[{"type":"visu","id":"v"},5]})");
    ASSERT_EQ(pmi.linkedElements().size(), 2U);
    EXPECT_EQ(pmi.linkedElements()[0]->id(), WIDE("v"));
    EXPECT_EQ(pmi.linkedElements()[1]->type(), ExcEntity::EType::Unknown);
}

TEST(Items, NarrowDoublesToFloats)
{
    const auto edge = test::readFrom<ExcVisuEdge>(R"({"points":[1e300,-1e39,1e-300,16777217.0]})");
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(edge.points(), (std::vector<float>{kInfinity, -kInfinity, 0.0F, 16777216.0F}));
}

TEST(Items, TakeBuffersOver)
{
    std::vector<float> buffer = {1.0F, 2.0F};
    const float* const place = buffer.data();
    ExcVisuFace face;
    face.setVertices(std::move(buffer));
    EXPECT_EQ(face.vertices().data(), place);
    EXPECT_TRUE(buffer.empty()); // NOLINT(bugprone-use-after-move): promised
    face.setVertices(face.vertices());
    face.setVertices(const_cast<std::vector<float>&&>(face.vertices())); // NOLINT(*-const-cast): a move to itself
    EXPECT_EQ(face.vertices(), (std::vector<float>{1.0F, 2.0F}));
}

} // namespace
