#include "tests/support/json_text.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/vrx_api.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

using namespace vrx;
using test::parsed;
using test::written;

namespace
{

// A class with its full text. Under the governing key, if there is one, stands what decides about the other keys. A
// strict class may refuse a text by an exception, whereupon nothing is expected of its keys.
struct Subject
{
    std::string name;
    std::shared_ptr<IJsonObject> (*make)();
    std::string text;
    std::string governingKey;
    bool strict = false;

    friend std::ostream& operator<<(std::ostream& stream, const Subject& subject) { return stream << subject.name; }
};

template <class T>
Subject subject(const char* name, const std::string& text, const char* governingKey = "")
{
    return {name, [] { return std::shared_ptr<IJsonObject>(std::make_shared<T>()); }, text, governingKey};
}

// A message, which goes to and from a stream, as an object.
template <class T>
class Message : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override
    {
        JsonDocument document;
        document.CopyFrom(value, document.GetAllocator());
        mp::wistringstream stream(test::wide(test::textOf(document)));
        m_message.readObject(stream);
    }

    void writeObject(JsonValue& value, JsonAllocator& allocator) const override
    {
        mp::wostringstream stream;
        m_message.writeObject(stream);
        value.CopyFrom(parsed(mp::toNarrow(stream.str())), allocator);
    }

private:
    T m_message;
};

Subject strict(Subject subject)
{
    subject.strict = true;
    return subject;
}

// The settings of a command, whose classes only the factories know.
template <auto Make>
Subject settings(const char* name, const char* text)
{
    return {name, [] { return std::shared_ptr<IJsonObject>(Make()); }, text, "", true};
}

const std::string kTransformation =
    R"({"affine":[[2.0,0.0,0.0],[0.0,2.0,0.0],[0.0,0.0,2.0]],"translation":[1.0,2.0,3.0]})";
const std::string kColor = R"({"rgb":[1,2,3],"alpha":4})";
const std::string kFont =
    R"({"name":"n","text_height":2.5,"font_pitch":"variable","spacing_factor":1.5,"width_scaling_factor":3.5})";
const std::string kTexture =
    R"({"method":"modulate","wrap_mode":{"u":"repeat","v":"mirror"},"mapping_mode":"spherical","filter":"nearest",)"
    R"("alpha":0.5,"file":"f","name_uv":"q","name":"n","uv_translation":{"u":1.5,"v":2.5},"uv_scale":{"u":3.5,"v":4.5},)"
    R"("uv_rotation":{"u":5.5,"v":6.5,"w":7.5},"swap_uv":true,"use_material":true})";
const std::string kMaterial =
    R"({"name":"n","id":"i","colors":{"diffuse":[1.0,2.0,3.0,0.5]},"shininess":0.5,"bump":[1.0,2.0,3.0],)"
    R"("bump_factor":1.5,"normal_map":[4.0,5.0,6.0],"textures":{"blending":[)" +
    kTexture + "]}}";
const std::string kLine = R"({"line_weight":2.5,"line_style":"phantom_line"})";
const std::string kAttributes = R"({"font":)" + kFont + R"(,"color":)" + kColor + R"(,"hidden":true,"materials":[)" +
                                kMaterial + R"(],"line_attribute":)" + kLine + "}";
const std::string kFace = R"({"vertices":[0.5,1.5],"normals":[2.5],"polygons":[{"type":4,"indices":[0,-1]}],"color":)" +
                          kColor + R"(,"mechanical_id":"m","id":"i"})";
const std::string kEdge = R"({"points":[0.5,1.5],"line_indices":[1,-7],"line_type":"line_strip","color":)" + kColor +
                          R"(,"mechanical_id":"m"})";
const std::string kText = R"({"text":"t","anchor_point":[1.0,2.0,3.0],"direction":[4.0,5.0,6.0],)"
                          R"("normal":[7.0,8.0,9.0],"color":)" +
                          kColor + R"(,"font":)" + kFont + "}";
const std::string kPoints =
    R"({"points":[1.5],"point_indices":[3,-1],"marker_style":"UNFILLED_TRIANGLE","color":)" + kColor + "}";
const std::string kIds = R"({"display_name":"d","id":"i","mechanical_id":"m")";
const std::string kGeometry = kIds + R"(,"geometry_type":"part")";
const std::string kMesh = kGeometry + R"(,"faces":[)" + kFace + R"(],"edges":[)" + kEdge + "]}";
const std::string kWire = kGeometry + R"(,"edges":[)" + kEdge + "]}";
const std::string kPMI = kIds + R"(,"edges":[)" + kEdge + R"(],"texts":[)" + kText + "]}";
const std::string kPointSet = kGeometry + R"(,"points":[)" + kPoints + "]}";
const std::string kNode = R"({"is_leaf":true,"attributes":)" + kAttributes + R"(,"transformation":)" + kTransformation +
                          R"(,"mesh":)" + kMesh + R"(,"wire":)" + kWire + R"(,"pmi":)" + kPMI + R"(,"point_set":)" +
                          kPointSet + R"(,"type":"GROUP","group_name":"g","child_nodes":[)" +
                          R"({"is_leaf":true,"type":"MESH","group_name":"h"}]})";
const std::string kView = kIds + R"(,"hidden":true,"origin":[1.0,2.0,3.0],"direction_u":[4.0,5.0,6.0],)"
                                 R"("direction_v":[7.0,8.0,9.0],"annotation_ids":["a","b"]})";
// A plane comes back as it was only without vectors: it reads "v" into the place of "u".
const std::string kPlane =
    R"({"origin":[1.0,2.0,3.0],"u":[0.0,0.0,0.0],"v":[0.0,0.0,0.0],"plane_coefficients":[1.0,2.0,3.0,4.0]})";
const std::string kPlaces = R"("eye":[1.0,2.0,3.0],"target":[4.0,5.0,6.0],"up":[7.0,8.0,9.0]})";
const std::string kCamera = R"({"type":"perspective","name":"n","perspective_view_angle":0.5,)" + kPlaces;
const std::string kZoomCamera = R"({"type":"orthographic","name":"n","orthographic_zoom_factor":0.5,)" + kPlaces;
const std::string kCapture = kIds + R"(,"hidden":true,"active":true,"hidden_text":"h","clipping_plane":)" + kPlane +
                             R"(,"camera":)" + kCamera +
                             R"(,"annotation_ids":["a"],"fta_constructed_geometry_ids":["b"],)"
                             R"("bodies":[{"type":"visu","id":"v"}]})";
const std::string kScene = R"({"scene_root_nodes":[)" + kNode + R"(],"units":"meter","views":[)" + kView +
                           R"(],"captures":[)" + kCapture + "]}";
const std::string kFormat = R"({"description":"d","extensions":["e"],"filters":["f;g"]})";

const Subject kSubjects[] = {
    subject<ExcMessage>("Message", R"({"message":"m"})"),
    subject<ExcLog>("Log", R"({"message":"m"})"),
    subject<ExcProgress>("Progress", R"({"progress":3,"progress_max":7,"stage":"s"})"),
    subject<ExcTransformation>("Transformation", kTransformation),
    subject<ExcColor>("Color", kColor, "rgb"),
    subject<ExcMiscProperty>("Property", R"({"name":"n","type":"integer","value":"1"})"),
    subject<ExcSubentId>("SubentId", R"({"type":"f","index":2})"),
    subject<ExcFullSubentPath>("Path",
                               R"({"block_references":["a","b"],"body_id":7,"subent_id":{"type":"f","index":2}})"),
    subject<ExcEntity>("EntityOfPath", R"({"type":"fsp","fsp":{"body_id":7,"subent_id":{"type":"f","index":2}}})",
                       "type"),
    subject<ExcEntity>("EntityOfAnOriginal", R"({"type":"original","description":"d","id":"i"})", "type"),
    subject<ExcBlockReference>("BlockReference",
                               R"({"guid":"g","persistent_id":"p","persistent_name":"q","block_id":5,"name":"n",)"
                               R"("transformation":)" +
                                   kTransformation + R"(,"color":)" + kColor +
                                   R"(,"hidden":true,"suppressed":true,)"
                                   R"("misc_data":[{"name":"a","type":"integer","value":"1"}]})"),
    subject<ExcBlock>("Block",
                      R"({"id":5,"name":"n","storage_name":"s","world_orientation":"up_y",)"
                      R"("misc_data":[{"name":"a","type":"integer","value":"1"}],"is_part":true,)"
                      R"("block_references":[{"guid":"g","persistent_id":"","persistent_name":"","block_id":5,)"
                      R"("name":"n","transformation":{"affine":[[1.0,0.0,0.0],[0.0,1.0,0.0],[0.0,0.0,1.0]],)"
                      R"("translation":[0.0,0.0,0.0]},"color":null,"hidden":false,"suppressed":false}]})"),
    subject<ExcProductStructure>(
        "ProductStructure",
        R"({"product_name":"p","product_configuration_name":"c",)"
        R"("misc_data":[{"name":"a","type":"integer","value":"1"}],"units":"meter","world_orientation":"up_z",)"
        R"("blocks":[{"id":5,"name":"n","world_orientation":"up_y","is_part":true}],)"
        R"("root_block_references":[{"guid":"g","persistent_id":"","persistent_name":"","block_id":5,)"
        R"("name":"n","transformation":{"affine":[[1.0,0.0,0.0],[0.0,1.0,0.0],[0.0,0.0,1.0]],)"
        R"("translation":[0.0,0.0,0.0]},"color":null,"hidden":false,"suppressed":false}]})"),
    subject<ExcBlockGeometry>(
        "BlockGeometry", R"({"block_id":5,"shared_acis_buffer_name":null,"acis_body_ids":[7,18446744073709551615]})"),

    subject<ExcVisuFont>("Font", kFont),
    subject<ExcVisuTexture>("Texture", kTexture),
    subject<ExcVisuMaterial>("Material", kMaterial),
    subject<ExcVisuLineAttribute>("LineAttribute", kLine),
    subject<ExcVisuAttributes>("Attributes", kAttributes),
    subject<ExcVisuFace>("Face", kFace),
    subject<ExcVisuEdge>("Edge", kEdge),
    subject<ExcVisuMesh>("Mesh", kMesh),
    subject<ExcVisuWire>("Wire", kWire),
    subject<ExcVisuText>("Text", kText),
    subject<ExcVisuPMI>("PMI", kPMI),
    subject<ExcVisuPoints>("Points", kPoints),
    subject<ExcVisuPointSet>("PointSet", kPointSet),
    subject<ExcVisuNode>("Node", kNode),
    subject<ExcVisuView>("View", kView),
    subject<ExcCamera>("Camera", kCamera, "type"),
    subject<ExcCamera>("ZoomCamera", kZoomCamera, "type"),
    subject<ExcClippingPlane>("ClippingPlane", kPlane, "v"),
    subject<ExcVisuCapture>("Capture", kCapture),
    subject<ExcVisualizationData>("Scene", kScene),
    subject<ExcBlockVisualization>("BlockVisualization",
                                   R"({"block_id":18446744073709551615,"visualization_data":)" + kScene + "}"),
    subject<ExcRootAssemblyVisualization>("RootVisualization", R"({"visualization_data":)" + kScene + "}"),

    subject<imp::OptionsIGES>("IGES", R"({"operation_type":"import","format_type":"IGES",)"
                                      R"("import_entities":"root_only","hidden_entities_mode":"none"})"),
    subject<imp::OptionsSTEP>("STEP", R"({"operation_type":"import","format_type":"STEP",)"
                                      R"("layer_name_mode":"saved_visu_rep","visu_pmi_mode":"none"})"),
    subject<imp::OptionsJT>("JT", R"({"operation_type":"import","format_type":"JT",)"
                                  R"("edges_mode":"none","user_prop_mode":"translate_none"})"),
    subject<imp::OptionsParasolid>(
        "Parasolid", R"({"operation_type":"import","format_type":"parasolid","hidden_entities_mode":"none"})"),

    settings<Command::newImportOptions>("ImportOptions",
                                        R"({"file":"f","format_options":[{"operation_type":"import",)"
                                        R"("format_type":"JT","edges_mode":"all","user_prop_mode":"unknown"}]})"),
    settings<Command::newExportOptions>("ExportOptions", R"({"file":"f","format_version":"v","geometry_flags":-3})"),
    strict(subject<Message<Command>>("Command", R"({"ferrant_interface":"connect","command":"ping"})")),
    strict(subject<Message<Result>>("Result", R"({"code":"warning","message":"m","is_finished":true})")),
    strict(subject<Format>("Format", kFormat)),
    strict(subject<Message<FerrantInfo>>("FerrantInfo",
                                         R"({"name":"n","version":"v","ferrant_interface":"legacy",)"
                                         R"("thirdparty_cores":[{"name":"k","version":"1"}],"parasolid_mode":"kernel",)"
                                         R"("import_formats":[)" +
                                             kFormat + R"(],"export_formats":[)" + kFormat + "]}")),
};

class Mutation : public testing::TestWithParam<Subject>
{
};

std::string textOfValue(const JsonValue& value)
{
    JsonDocument document;
    document.CopyFrom(value, document.GetAllocator());
    return test::textOf(document);
}

// What an object writes, key by key.
std::map<std::string, std::string> membersOf(const IJsonObject& object)
{
    std::map<std::string, std::string> members;
    const JsonDocument document = parsed(written(object));
    if (document.IsObject())
    {
        for (const auto& member : document.GetObject())
        {
            members[mp::toNarrow(member.name.GetString())] = textOfValue(member.value);
        }
    }
    return members;
}

struct Reading
{
    std::shared_ptr<IJsonObject> object;
    bool refused = false;
};

Reading readInto(const Subject& subject, const JsonDocument& document)
{
    Reading reading{subject.make()};
    try
    {
        reading.object->readObject(document);
    }
    catch (const std::invalid_argument& error)
    {
        EXPECT_TRUE(subject.strict) << error.what();
        reading.refused = true;
    }
    return reading;
}

// Reads a document directly, and by way of its binary form.
Reading readBothWays(const Subject& subject, const JsonDocument& document)
{
    Reading reading = readInto(subject, document);

    std::vector<char> form;
    JsonBinaryIO::write(form, document);
    JsonDocument decoded;
    JsonBinaryIO::read(form.data(), form.size(), decoded, decoded.GetAllocator());
    const Reading other = readInto(subject, decoded);
    EXPECT_EQ(reading.refused, other.refused);
    EXPECT_EQ(written(*reading.object), written(*other.object));
    return reading;
}

// Each kind of JSON, and values at the bounds of fields.
const char* const kReplacements[] = {"null",       "true",       "false",  "0",     "-1",
                                     "7",          "4294967296", "1.0",    "1e300", R"("")",
                                     R"("other")", "[]",         "[null]", "[1]",   "[1.0]",
                                     R"(["x"])",   "[[]]",       "[{}]",   "{}",    R"({"type":1,"rgb":{}})"};

TEST_P(Mutation, OfOneKeyLeavesTheOthers)
{
    const Subject& subject = GetParam();
    const auto whole = subject.make();
    test::readText(*whole, subject.text);
    ASSERT_EQ(written(*whole), subject.text) << "the text is not full";
    const auto wholeMembers = membersOf(*whole);
    const auto defaultMembers = membersOf(*subject.make());

    for (const auto& [key, unused] : wholeMembers)
    {
        const mp::wstring wideKey = test::wide(key);
        const auto check = [&, &changed = key](const JsonDocument& document, bool removed) {
            const Reading reading = readBothWays(subject, document);
            auto members = membersOf(*reading.object);
            if (reading.refused || changed == subject.governingKey)
            {
                return;
            }
            auto expected = wholeMembers;
            expected.erase(changed);
            if (removed && defaultMembers.count(changed) != 0)
            {
                EXPECT_EQ(members[changed], defaultMembers.at(changed)) << changed;
            }
            members.erase(changed);
            EXPECT_EQ(members, expected) << textOfValue(document);
        };

        JsonDocument removed = parsed(subject.text);
        removed.EraseMember(wideKey.c_str());
        check(removed, true);
        for (const char* const replacement : kReplacements)
        {
            JsonDocument replaced = parsed(subject.text);
            replaced[wideKey.c_str()].CopyFrom(parsed(replacement), replaced.GetAllocator());
            check(replaced, false);
        }
    }
}

TEST_P(Mutation, OfTheWholeValueLeavesTheDefault)
{
    const Subject& subject = GetParam();
    for (const char* const replacement : {"null", "true", "0", "1.5", "\"\"", "[]", "[{}]", "{}"})
    {
        EXPECT_EQ(written(*readBothWays(subject, parsed(replacement)).object), written(*subject.make())) << replacement;
    }
}

std::string nameOf(const testing::TestParamInfo<Subject>& info)
{
    return info.param.name;
}
INSTANTIATE_TEST_SUITE_P(Classes, Mutation, testing::ValuesIn(kSubjects), nameOf);

} // namespace
