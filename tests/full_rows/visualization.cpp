#include "tests/full_rows/full_rows.h"
#include "tests/full_rows/shared_texts.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

using namespace vrx;

namespace test
{

namespace
{

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
const std::string kAttributes = R"({"font":)" + kFont + R"(,"color":)" + kColorText +
                                R"(,"hidden":true,"materials":[)" + kMaterial + R"(],"line_attribute":)" + kLine + "}";

const std::string kFace = R"({"vertices":[0.5,1.5],"normals":[2.5],"polygons":[{"type":4,"indices":[0,-1]}],"color":)" +
                          kColorText + R"(,"mechanical_id":"m","id":"i"})";
const std::string kEdge = R"({"points":[0.5,1.5],"line_indices":[1,-7],"line_type":"line_strip","color":)" +
                          kColorText + R"(,"mechanical_id":"m"})";
const std::string kText = R"({"text":"t","anchor_point":[1.0,2.0,3.0],"direction":[4.0,5.0,6.0],)"
                          R"("normal":[7.0,8.0,9.0],"color":)" +
                          kColorText + R"(,"font":)" + kFont + "}";
const std::string kPoints =
    R"({"points":[1.5],"point_indices":[3,-1],"marker_style":"UNFILLED_TRIANGLE","color":)" + kColorText + "}";
const std::string kIds = R"({"display_name":"d","id":"i","mechanical_id":"m")";
const std::string kGeometry = kIds + R"(,"geometry_type":"part")";
const std::string kMesh = kGeometry + R"(,"faces":[)" + kFace + R"(],"edges":[)" + kEdge + "]}";
const std::string kWire = kGeometry + R"(,"edges":[)" + kEdge + "]}";
const std::string kDrawn = kIds + R"(,"edges":[)" + kEdge + R"(],"texts":[)" + kText + "]";
const std::string kPMI = kDrawn + R"(,"linked_elements":[)" + kEntityText + "]}";
const std::string kPMIWritten = kDrawn + "}";
const std::string kPointSet = kGeometry + R"(,"points":[)" + kPoints + "]}";

// The linked elements of a PMI are only read.
std::string node(const std::string& pmi)
{
    return R"({"is_leaf":true,"attributes":)" + kAttributes + R"(,"transformation":)" + kTransformationText +
           R"(,"mesh":)" + kMesh + R"(,"wire":)" + kWire + R"(,"pmi":)" + pmi + R"(,"point_set":)" + kPointSet +
           R"(,"type":"GROUP","group_name":"g","child_nodes":[{"is_leaf":true,"type":"MESH","group_name":"h"}]})";
}

const std::string kView = kIds + R"(,"hidden":true,"origin":[1.0,2.0,3.0],"direction_u":[4.0,5.0,6.0],)"
                                 R"("direction_v":[7.0,8.0,9.0],"annotation_ids":["a","b"]})";
// A plane comes back as it was only without vectors: it reads "v" into the place of "u".
const std::string kPlane =
    R"({"origin":[1.0,2.0,3.0],"u":[0.0,0.0,0.0],"v":[0.0,0.0,0.0],"plane_coefficients":[1.0,2.0,3.0,4.0]})";
const std::string kZoomCamera =
    R"({"type":"orthographic","name":"n","orthographic_zoom_factor":0.5,"eye":[1.0,2.0,3.0],"target":[4.0,5.0,6.0],)"
    R"("up":[7.0,8.0,9.0]})";

std::string capture(const std::string& camera)
{
    return kIds + R"(,"hidden":true,"active":true,"hidden_text":"h","clipping_plane":)" + kPlane + R"(,"camera":)" +
           camera + R"(,"annotation_ids":["a"],"fta_constructed_geometry_ids":["b"],"bodies":[)" + kEntityText + "]}";
}

const std::string kCapture = capture(kCameraText);
const std::string kZoomedScene =
    R"({"visualization_data":{"units":"meter","captures":[)" + capture(kZoomCamera) + "]}}";

std::string scene(const std::string& pmi)
{
    return R"({"scene_root_nodes":[)" + node(pmi) + R"(],"units":"meter","views":[)" + kView + R"(],"captures":[)" +
           kCapture + "]}";
}

std::string ofBlock(const std::string& pmi)
{
    return R"({"block_id":18446744073709551615,"visualization_data":)" + scene(pmi) + "}";
}

std::string ofRoot(const std::string& pmi)
{
    return R"({"visualization_data":)" + scene(pmi) + "}";
}

} // namespace

std::vector<FullRow> visualizationRows()
{
    return {
        fullRow<ExcVisuFont>("ExcVisuFont", kFont),
        fullRow<ExcVisuTexture>("ExcVisuTexture", kTexture),
        fullRow<ExcVisuMaterial>("ExcVisuMaterial", kMaterial)
            .loudAbout({"colors", "textures"})
            .appends({"textures/blending"}),
        fullRow<ExcVisuLineAttribute>("ExcVisuLineAttribute", kLine),
        fullRow<ExcVisuAttributes>("ExcVisuAttributes", kAttributes),
        fullRow<ExcVisuFace>("ExcVisuFace", kFace).loudAbout({"polygons"}).appends({"vertices", "normals"}),
        fullRow<ExcVisuEdge>("ExcVisuEdge", kEdge).appends({"points", "line_indices"}),
        fullRow<ExcVisuMesh>("ExcVisuMesh", kMesh),
        fullRow<ExcVisuWire>("ExcVisuWire", kWire),
        fullRow<ExcVisuText>("ExcVisuText", kText),
        fullRow<ExcVisuPMI>("ExcVisuPMI", kPMI).writes(kPMIWritten),
        fullRow<ExcVisuPoints>("ExcVisuPoints", kPoints).appends({"points", "point_indices"}),
        fullRow<ExcVisuPointSet>("ExcVisuPointSet", kPointSet),
        fullRow<ExcVisuNode>("ExcVisuNode", node(kPMI)).writes(node(kPMIWritten)),
        fullRow<ExcVisuView>("ExcVisuView", kView),
        fullRow<ExcCamera>("ExcCamera", kCameraText).governedBy({"type"}),
        fullRow<ExcCamera>("ExcCamera of a zoom", kZoomCamera).governedBy({"type"}),
        fullRow<ExcClippingPlane>("ExcClippingPlane", kPlane).governedBy({"v"}).fixes({"u"}),
        fullRow<ExcVisuCapture>("ExcVisuCapture", kCapture),
        fullRow<ExcVisualizationData>("ExcVisualizationData", scene(kPMI)).writes(scene(kPMIWritten)),
        fullRow<ExcBlockVisualization>("ExcBlockVisualization", ofBlock(kPMI)).writes(ofBlock(kPMIWritten)),
        fullRow<ExcRootAssemblyVisualization>("ExcRootAssemblyVisualization", ofRoot(kPMI)).writes(ofRoot(kPMIWritten)),
        fullRow<ExcRootAssemblyVisualization>("ExcRootAssemblyVisualization of a zoom", kZoomedScene),
    };
}

} // namespace test
