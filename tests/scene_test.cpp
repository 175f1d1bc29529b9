#include "tests/support/add_row.h"
#include "tests/support/enum_row.h"
#include "tests/support/model_row.h"
#include "vrx_api/exchange/exchange_object_wrapper.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

using namespace vrx;
using test::addAllRow;
using test::addRow;
using test::enumRow;
using test::row;
using test::setAllRow;

namespace
{

class SceneRows : public test::ModelRows
{
};

const char* const kNode = R"({"is_leaf":false,"type":"UNDEFINED","group_name":""})";
const char* const kNoNode = "[ERROR] ExcVisuNode object should have a JSON object type.";
const char* const kMesh = R"({"display_name":"","id":"","mechanical_id":"","geometry_type":"unknown"})";
const char* const kView = R"({"display_name":"","id":"","mechanical_id":"","hidden":false,"origin":[0.0,0.0,0.0],)"
                          R"("direction_u":[0.0,0.0,0.0],"direction_v":[0.0,0.0,0.0]})";
const char* const kNoVector = "[ERROR] Exchange vector/point (2D/3D) object should have a JSON array type.";
const char* const kCamera =
    R"({"type":"undefined","name":"","eye":[0.0,0.0,0.0],"target":[0.0,0.0,0.0],"up":[0.0,0.0,0.0]})";
const char* const kNoPlane = "[ERROR] ExcClippingPlane object should have a JSON object type.";
const std::string kCapture =
    R"({"display_name":"","id":"","mechanical_id":"","hidden":false,"active":false,"hidden_text":"",)"
    R"("clipping_plane":null,"camera":)" +
    std::string(kCamera) + "}";

const test::ModelRow kRows[] = {
    row<ExcVisuNode>("NodeDefault", "{}", kNode),
    row<ExcVisuNode>("NodeOfWrongKindsPointsAtDefaults",
                     R"({"mesh":5,"transformation":null,"is_leaf":0,"type":3,"child_nodes":{}})",
                     R"({"is_leaf":false,"transformation":{"affine":[[1.0,0.0,0.0],[0.0,1.0,0.0],[0.0,0.0,1.0]],)"
                     R"("translation":[0.0,0.0,0.0]},"mesh":)" +
                         std::string(kMesh) + R"(,"type":"UNDEFINED","group_name":""})",
                     {"[ERROR] ExcVisuMesh object should have a JSON object type."}),
    row<ExcVisuNode>(
        "NodeKeepsTheNumberOfItsChildren", R"({"child_nodes":[1,{"mesh":0,"child_nodes":[null]},"",{"wire":0}]})",
        R"({"is_leaf":false,"type":"UNDEFINED","group_name":"","child_nodes":[)" + std::string(kNode) +
            R"(,{"is_leaf":false,"mesh":)" + kMesh + R"(,"type":"UNDEFINED","group_name":"","child_nodes":[)" + kNode +
            "]}," + kNode + R"(,{"is_leaf":false,"wire":)" + kMesh + R"(,"type":"UNDEFINED","group_name":""}]})",
        {kNoNode, "[ERROR] ExcVisuMesh object should have a JSON object type.", kNoNode, kNoNode,
         "[ERROR] ExcVisuWire object should have a JSON object type."}),

    row<ExcVisuView>("ViewSkipsWhatIsNoText", R"({"annotation_ids":["a",7,"b\u0000c",null]})",
                     R"({"display_name":"","id":"","mechanical_id":"","hidden":false,"origin":[0.0,0.0,0.0],)"
                     R"("direction_u":[0.0,0.0,0.0],"direction_v":[0.0,0.0,0.0],"annotation_ids":["a","b"]})"),
    row<ExcVisuView>("ViewDefault", "{}", kView),

    row<ExcCamera>("CameraDefault", "{}", kCamera),
    row<ExcCamera>("CameraWritesNoParameterWhenUndefined",
                   R"({"perspective_view_angle":45.0,"orthographic_zoom_factor":2.0})", kCamera),
    row<ExcCamera>("CameraPerspective",
                   R"({"up":[7.0,8.0,9.0],"target":[4.0,5.0,6.0],"eye":[1.0,2.0,3.0],"orthographic_zoom_factor":2.0,)"
                   R"("perspective_view_angle":45.0,"name":"n","type":"perspective"})",
                   R"({"type":"perspective","name":"n","perspective_view_angle":45.0,"eye":[1.0,2.0,3.0],)"
                   R"("target":[4.0,5.0,6.0],"up":[7.0,8.0,9.0]})"),

    row<ExcClippingPlane>("PlaneDefaultIsNull", "{}", "null"),
    row<ExcClippingPlane>("PlaneTakesVIntoU", R"({"v":[0.0,1.0,0.0],"u":[1.0,0.0,0.0],"origin":[1.0,2.0,3.0]})",
                          R"({"origin":[1.0,2.0,3.0],"u":[0.0,1.0,0.0],"v":[0.0,0.0,0.0]})"),
    row<ExcClippingPlane>("PlaneOfAVectorOfAnyKind", R"({"u":[1.0],"v":null})",
                          R"({"origin":[0.0,0.0,0.0],"u":[1.0,0.0,0.0],"v":[0.0,0.0,0.0]})", {kNoVector}),
    row<ExcClippingPlane>("PlaneCoefficients", R"({"plane_coefficients":[1.0,2.0,3.0,4.0,5.0]})",
                          R"({"plane_coefficients":[1.0,2.0,3.0,4.0]})"),
    row<ExcClippingPlane>("PlaneCoefficientsEndEarly", R"({"plane_coefficients":[1.0,2.0]})",
                          R"({"plane_coefficients":[1.0,2.0,0.0,0.0]})"),
    row<ExcClippingPlane>("PlaneCoefficientsEndAtAnInteger", R"({"plane_coefficients":[1.0,2,3.0,4.0]})",
                          R"({"plane_coefficients":[1.0,0.0,0.0,0.0]})"),
    row<ExcClippingPlane>("PlaneOfNoCoefficients", R"({"plane_coefficients":[]})",
                          R"({"plane_coefficients":[0.0,0.0,0.0,0.0]})"),
    row<ExcClippingPlane>("PlaneInBothForms", R"({"plane_coefficients":[1.0,2.0,3.0,4.0],"origin":[1.0,2.0,3.0]})",
                          R"({"origin":[1.0,2.0,3.0],"u":[0.0,0.0,0.0],"v":[0.0,0.0,0.0],)"
                          R"("plane_coefficients":[1.0,2.0,3.0,4.0]})"),

    row<ExcVisuCapture>("CaptureDefault", "{}", kCapture),
    row<ExcVisuCapture>("CaptureWithoutPlaneIsLogged", kCapture, kCapture, {kNoPlane}),
    row<ExcVisuCapture>(
        "Capture",
        R"({"bodies":[{"type":"visu","id":"v"},5],"fta_constructed_geometry_ids":["f",null],)"
        R"("annotation_ids":["a",7,"b\u0000c"],"camera":{"name":"c"},"clipping_plane":{"origin":[1.0]},)"
        R"("hidden_text":"t","active":true,"hidden":true,"mechanical_id":"m","id":"i",)"
        R"("display_name":"d"})",
        R"({"display_name":"d","id":"i","mechanical_id":"m","hidden":true,"active":true,)"
        R"("hidden_text":"t","clipping_plane":{"origin":[1.0,0.0,0.0],"u":[0.0,0.0,0.0],)"
        R"("v":[0.0,0.0,0.0]},"camera":{"type":"undefined","name":"c","eye":[0.0,0.0,0.0],)"
        R"("target":[0.0,0.0,0.0],"up":[0.0,0.0,0.0]},"annotation_ids":["a","","b"],)"
        R"("fta_constructed_geometry_ids":["f",""],)"
        R"("bodies":[{"type":"visu","id":"v"},{"type":"unknown"}]})",
        {"[ERROR] ExcEntity object should have a JSON object type."}),

    row<ExcVisualizationData>("DataDefault", "{}", R"({"units":"unknown"})"),
    row<ExcVisualizationData>("Data", R"({"captures":[{}],"views":[{}],"units":"inch","scene_root_nodes":[{},[]]})",
                              R"({"scene_root_nodes":[)" + std::string(kNode) + "," + kNode +
                                  R"(],"units":"inch","views":[)" + kView + R"(],"captures":[)" + kCapture + "]}",
                              {kNoNode}),

    row<ExcBlockVisualization>("BlockDefault", "{}", R"({"block_id":0})"),
    row<ExcBlockVisualization>("BlockOfWrongKinds", R"({"block_id":-1,"visualization_data":null})",
                               R"({"block_id":0,"visualization_data":{"units":"unknown"}})",
                               {"[ERROR] ExcVisualizationData object should have a JSON object type."}),
    row<ExcRootAssemblyVisualization>("Root", R"({"block_id":1,"visualization_data":{"units":"mile"}})",
                                      R"({"visualization_data":{"units":"mile"}})"),
    row<ExcRootAssemblyVisualization>("RootDefault", "{}", "{}"),
};

TEST_P(SceneRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Visualization, SceneRows, testing::ValuesIn(kRows), SceneRows::nameOf);

const test::EnumRow kEnums[] = {
    enumRow("ExcVisuNode::EType", "type", &ExcVisuNode::type, &ExcVisuNode::setType,
            {"UNDEFINED",
             "ROOT",
             "GROUP",
             "GEOMETRY",
             "MESHES",
             "MESH",
             "WIRES",
             "WIRE",
             "POINTS",
             "POINTSET",
             "PMI",
             "FTA_CONSTRUCTED_GEOMETRY",
             "NOTES",
             "NOTE",
             "FLAGNOTE",
             "NOA",
             "DATUMS",
             "DATUM_SIMPLE",
             "DATUM_TARGET",
             "DATUM_UNKNOWN",
             "DIMENSIONS",
             "DIMENSION_BASIC",
             "DIMENSION_LENGTH",
             "DIMENSION_DISTANCE",
             "DIMENSION_LINEAR",
             "DIMENSION_ORIENTED_LINEAR",
             "DIMENSION_DIAMETER",
             "DIMENSION_RADIUS",
             "DIMENSION_ANGLE",
             "DIMENSION_ORIENTED_ANGLE",
             "DIMENSION_COORDINATE_3D",
             "DIMENSION_CHAMFER",
             "DIMENSION_UNKNOWN",
             "GEOMTOLS",
             "GEOMTOL_STRAIGHTNESS",
             {35, "GEOMTOL_FLATNESS"},
             "GEOMTOL_CIRCULARITY",
             "GEOMTOL_CYLINDRICITY",
             "GEOMTOL_PROFILE_LINE",
             "GEOMTOL_PROFILE_SURFACE",
             "GEOMTOL_COMP_PROFILE_SURFACE",
             "GEOMTOL_PATTERN_LOCATION",
             "GEOMTOL_PARALLELISM",
             "GEOMTOL_ANGULARITY",
             "GEOMTOL_PERPENDICULARITY",
             "GEOMTOL_POSITION",
             "GEOMTOL_POSITION_LINE",
             "GEOMTOL_POSITION_SURFACE",
             "GEOMTOL_COMP_POSITION",
             "GEOMTOL_TOLERANCE",
             "GEOMTOL_CONCENTRICITY",
             "GEOMTOL_SYMMETRY",
             "GEOMTOL_RUNOUT_CIRCULAR",
             "GEOMTOL_RUNOUT_TOTAL",
             "GEOMTOL_NOTE_ONLY",
             "GEOMTOL_UNKNOWN",
             "ROUGHNESSES",
             "ROUGHNESS",
             {58, "DRAWINGSHEET"},
             "ACTIVEDRAWINGSHEET",
             {60, "DRAWINGSHEETS"}},
            "ACTIVEDRAWINGSHEET"),
    enumRow("ExcCamera::EType", "type", &ExcCamera::type, &ExcCamera::setType,
            {"undefined", "perspective", "orthographic"}, "orthographic"),
};

class SceneEnums : public test::EnumRows
{
};

TEST_P(SceneEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Visualization, SceneEnums, testing::ValuesIn(kEnums), SceneEnums::nameOf);

const char* const kNullChild = "ExcVisuNode: attempt to add null child Visu Node object.";
const char* const kNullElement = "ExcVisuCapture: attempt to add null Linked Element object.";
const char* const kNullRoot = "ExcVisualizationData: attempt to add null Scene Root Visu Node object.";
const char* const kNullView = "ExcVisualizationData: attempt to add null Visu View object.";
const char* const kNullCapture = "ExcVisualizationData: attempt to add null Visu Capture object.";

const test::AddRow kAdds[] = {
    addRow("ExcVisuNode::addChildNode", &ExcVisuNode::addChildNode, kNullChild),
    addAllRow("ExcVisuNode::addChildNodes", &ExcVisuNode::addChildNodes, kNullChild),
    setAllRow("ExcVisuNode::setChildNodes", &ExcVisuNode::setChildNodes, kNullChild),
    addRow("ExcVisuCapture::addLinkedElement", &ExcVisuCapture::addLinkedElement, kNullElement),
    setAllRow("ExcVisuCapture::setLinkedElements", &ExcVisuCapture::setLinkedElements, kNullElement),
    addRow("ExcVisualizationData::addSceneRootNode", &ExcVisualizationData::addSceneRootNode, kNullRoot),
    addAllRow("ExcVisualizationData::addSceneRootNodes", &ExcVisualizationData::addSceneRootNodes, kNullRoot),
    setAllRow("ExcVisualizationData::setSceneRootNodes", &ExcVisualizationData::setSceneRootNodes, kNullRoot),
    addRow("ExcVisualizationData::addView", &ExcVisualizationData::addView, kNullView),
    addAllRow("ExcVisualizationData::addViews", &ExcVisualizationData::addViews, kNullView),
    setAllRow("ExcVisualizationData::setViews", &ExcVisualizationData::setViews, kNullView),
    addRow("ExcVisualizationData::addCapture", &ExcVisualizationData::addCapture, kNullCapture),
    addAllRow("ExcVisualizationData::addCaptures", &ExcVisualizationData::addCaptures, kNullCapture),
    setAllRow("ExcVisualizationData::setCaptures", &ExcVisualizationData::setCaptures, kNullCapture),
};

class SceneAdds : public test::AddRows
{
};

TEST_P(SceneAdds, RefuseNulls)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Visualization, SceneAdds, testing::ValuesIn(kAdds), SceneAdds::nameOf);

TEST(ClippingPlane, KeepsItsVAndItsFlagsOnReading)
{
    ExcClippingPlane plane;
    plane.setVectorV(ExcVector3d(0.5, 0.5, 0.5));
    plane.setCoefficient(ExcClippingPlane::CoefficientB, 2.0).setCoefficient(ExcClippingPlane::CoefficientD, 4.0);
    plane.setHasCoefficients(true);
    test::readText(plane, R"({"v":[0.0,1.0,0.0]})");
    EXPECT_EQ(test::written(plane), R"({"origin":[0.0,0.0,0.0],"u":[0.0,1.0,0.0],"v":[0.5,0.5,0.5],)"
                                    R"("plane_coefficients":[0.0,2.0,0.0,4.0]})");
    test::readText(plane, "{}");
    EXPECT_TRUE(plane.hasPlane());
    EXPECT_TRUE(plane.hasCoefficients());
}

TEST(Scene, ANodeReadAgainHasANewMeshAndMoreChildren)
{
    auto node = test::readFrom<ExcVisuNode>(R"({"child_nodes":[{}],"mesh":{}})");
    const std::shared_ptr<ExcVisuMesh> mesh = node.mesh();
    test::readText(node, R"({"child_nodes":[{"type":"PMI"},{"type":"NOTE"}],"mesh":{}})");
    EXPECT_NE(node.mesh(), mesh);
    EXPECT_EQ(node.childNodes()[1]->type(), ExcVisuNode::EType::PMI);
    EXPECT_EQ(node.childNodes()[2]->type(), ExcVisuNode::EType::NOTE);
}

TEST(Scene, CrossesThroughSharedMemory)
{
    const auto sent = std::make_shared<ExcBlockVisualization>();
    test::readText(*sent,
                   R"({"block_id":7,"visualization_data":{"scene_root_nodes":[{"mesh":{"faces":[)"
                   R"({"vertices":[0.1,-2.5,1e38],"polygons":[{"type":3,"indices":[0,1,2]}]}]}}],"units":"inch"}})");
    const auto root = std::make_shared<ExcRootAssemblyVisualization>();
    root->setVisualizationData(sent->visualizationData());
    for (const std::shared_ptr<IExchangeObject>& object :
         {std::shared_ptr<IExchangeObject>(sent), std::shared_ptr<IExchangeObject>(root)})
    {
        ExchangeObjectWrapper envelope;
        envelope.set(object);
        wstringstream stream;
        envelope.writeObject(stream);
        ExchangeObjectWrapper received;
        received.readObject(stream);
        ASSERT_NE(received.get(), nullptr);
        EXPECT_TRUE(received.get()->isLoaded());
        EXPECT_EQ(received.get()->objectName(), object->objectName());
        EXPECT_EQ(test::written(*received.get()), test::written(*object));
    }
}

// Far more levels than a stack holds.
constexpr std::size_t kDeep = 100000;

JsonDocument deepTree()
{
    std::string text;
    for (std::size_t i = 0; i < kDeep; ++i)
    {
        text += R"({"child_nodes":[{"type":"NOTE"},)";
    }
    text += R"({"type":"ROOT"})";
    for (std::size_t i = 0; i < kDeep; ++i)
    {
        text += "]}";
    }
    return test::parsed(text);
}

TEST(Scene, IsReadWrittenCopiedAndEndedAtAnyDepth)
{
    test::LogFile::close(); // a trace line a node and direction
    const auto node = std::make_shared<ExcVisuNode>();
    node->readObject(deepTree());
    JsonDocument document;
    node->writeObject(document, document.GetAllocator());
    ExcVisuNode copy;
    copy.readObject(document);
    const ExcVisuNode sharing = copy;
    ExcVisuNode below = *sharing.childNodes()[1];
    EXPECT_EQ(sharing.childNodes()[0]->type(), ExcVisuNode::EType::NOTE);
    copy = ExcVisuNode();

    // The walk down lets go of all that it has passed.
    std::shared_ptr<ExcVisuNode> deepest = sharing.childNodes()[1];
    below = ExcVisuNode();
    std::size_t levels = 1;
    while (deepest->childNodes().size() == 2)
    {
        deepest = deepest->childNodes()[1];
        ++levels;
    }
    EXPECT_EQ(levels, kDeep);
    EXPECT_EQ(deepest->type(), ExcVisuNode::EType::ROOT);
    test::LogFile::instance().open();
}

} // namespace
