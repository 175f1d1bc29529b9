#include "scene_json.h"

#include "base64.h"
#include "camera_json.h"
#include "common/scene_conventions.h"
#include "page_json.h"
#include "placement.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <iterator>
#include <memory>
#include <vector>

namespace scene_json
{

namespace
{

using Edges = std::vector<std::shared_ptr<vrx::ExcVisuEdge>>;

// A node with what the nodes above it give to it.
struct Item
{
    std::shared_ptr<vrx::ExcVisuNode> node;
    Placement placement;
    vrx::ExcColor color; // of the nodes below the root: the root's is the block's own
};

const vrx::ExcVisuAttributes* attributesOf(const vrx::ExcVisuNode& node)
{
    return node.attributes().get();
}

// Goes over all nodes that are not hidden, with a stack of its own: a tree can be deep.
void visit(const vrx::ExcVisualizationData& scene, const std::function<void(const Item&)>& take)
{
    std::vector<Item> waiting;
    for (const std::shared_ptr<vrx::ExcVisuNode>& root : scene.sceneRootNodes())
    {
        waiting.push_back({root, root->transformation() ? Placement(*root->transformation()) : Placement(), {}});
    }
    std::reverse(waiting.begin(), waiting.end());
    while (!waiting.empty())
    {
        const Item item = waiting.back();
        waiting.pop_back();
        if (attributesOf(*item.node) && attributesOf(*item.node)->isHidden())
        {
            continue;
        }
        take(item);
        const std::vector<std::shared_ptr<vrx::ExcVisuNode>> children = item.node->childNodes();
        for (auto child = children.rbegin(); child != children.rend(); ++child)
        {
            Item below{*child, item.placement, item.color};
            if ((*child)->transformation())
            {
                below.placement = item.placement * Placement(*(*child)->transformation());
            }
            if (attributesOf(**child) && attributesOf(**child)->color())
            {
                below.color = *attributesOf(**child)->color();
            }
            waiting.push_back(below);
        }
    }
}

vrx::ExcColor rootColor(const vrx::ExcVisualizationData& scene)
{
    for (const std::shared_ptr<vrx::ExcVisuNode>& root : scene.sceneRootNodes())
    {
        if (attributesOf(*root) && attributesOf(*root)->color())
        {
            return *attributesOf(*root)->color();
        }
    }
    return {};
}

// Each piece of a polyline as two points.
void appendSegments(std::vector<float>& segments, const Edges& edges, const Placement& placement)
{
    for (const std::shared_ptr<vrx::ExcVisuEdge>& edge : edges)
    {
        const std::size_t count = edge->points().size() / 3;
        std::vector<std::int32_t> indices = edge->lineIndices();
        if (edge->lineType() != vrx::ExcVisuEdge::ELineType::LineStrip && !indices.empty())
        {
            indices.push_back(indices.front());
        }
        std::vector<float> points;
        for (std::size_t i = 1; i < indices.size(); ++i)
        {
            for (const std::int32_t index : {indices[i - 1], indices[i]})
            {
                if (index >= 0 && static_cast<std::size_t>(index) < count)
                {
                    const auto first = edge->points().begin() + std::ptrdiff_t{index} * 3;
                    points.insert(points.end(), first, first + 3);
                }
            }
            points.resize(points.size() / 6 * 6);
        }
        placement.appendPoints(segments, points);
    }
}

// The triangles of faces, on the points of them all.
struct Triangles
{
    // Returns how many triangles the face has.
    unsigned append(const vrx::ExcVisuFace& face, const Placement& placement)
    {
        const auto firstVertex = static_cast<std::uint32_t>(positions.size() / 3);
        const std::size_t firstIndex = indices.size();
        placement.appendPoints(positions, face.vertices());
        for (const vrx::ExcVisuFace::Polygon& polygon : face.polygons())
        {
            if (polygon.type == scene_conventions::kTriangles)
            {
                append(polygon.indices, firstVertex, face.vertices().size() / 3);
            }
        }
        return static_cast<unsigned>((indices.size() - firstIndex) / 3);
    }

    // The triangles among these whose corners all are vertices of their face.
    void append(const std::vector<std::int32_t>& corners, std::uint32_t firstVertex, std::size_t vertices)
    {
        for (std::size_t i = 0; i + 3 <= corners.size(); i += 3)
        {
            const std::int32_t* const triangle = &corners[i];
            if (std::all_of(triangle, triangle + 3, [vertices](std::int32_t index) {
                    return index >= 0 && static_cast<std::size_t>(index) < vertices;
                }))
            {
                std::transform(triangle, triangle + 3, std::back_inserter(indices), [firstVertex](std::int32_t index) {
                    return firstVertex + static_cast<std::uint32_t>(index);
                });
            }
        }
    }

    void write(PageJson& json) const
    {
        json.field("positions", base64Of(positions));
        json.field("triangles", base64Of(indices));
    }

    std::vector<float> positions;
    std::vector<std::uint32_t> indices;
};

class ShapeWriter
{
public:
    void add(const Item& item)
    {
        if (item.node->mesh())
        {
            addMesh(*item.node->mesh(), item);
        }
        if (item.node->wire())
        {
            for (const std::shared_ptr<vrx::ExcVisuEdge>& edge : item.node->wire()->edges())
            {
                addEdge(edge, item.placement);
            }
        }
    }

    std::string text(const vrx::ExcColor& color)
    {
        PageJson json;
        json.StartObject();
        json.color(color);
        m_triangles.write(json);
        json.field("normals", base64Of(m_normals));
        json.field("segments", base64Of(m_segments));
        json.Key("meshes");
        array(json, m_meshes);
        json.Key("faces");
        array(json, m_faces);
        json.Key("edges");
        array(json, m_edges);
        json.EndObject();
        return json.text();
    }

private:
    static void array(PageJson& json, const std::vector<std::string>& objects)
    {
        json.StartArray();
        for (const std::string& object : objects)
        {
            json.raw(object);
        }
        json.EndArray();
    }

    void addMesh(const vrx::ExcVisuMesh& mesh, const Item& item)
    {
        for (const std::shared_ptr<vrx::ExcVisuFace>& face : mesh.faces())
        {
            addFace(*face, item.placement);
        }
        for (const std::shared_ptr<vrx::ExcVisuEdge>& edge : mesh.edges())
        {
            addEdge(edge, item.placement);
        }
        PageJson json;
        json.StartObject();
        json.field("id", mesh.id());
        json.field("mechanicalId", mesh.mechanicalId());
        json.field("name", mesh.displayName());
        json.color(item.color);
        json.EndObject();
        m_meshes.push_back(json.text());
    }

    void addFace(const vrx::ExcVisuFace& face, const Placement& placement)
    {
        const unsigned triangles = m_triangles.append(face, placement);
        placement.appendDirections(m_normals, face.normals());
        m_normals.resize(m_triangles.positions.size());
        PageJson json;
        json.StartObject();
        json.field("id", face.id());
        json.field("mechanicalId", face.mechanicalId());
        json.Key("mesh");
        json.Uint64(m_meshes.size());
        json.Key("triangles");
        json.Uint(triangles);
        json.color(face.color());
        json.EndObject();
        m_faces.push_back(json.text());
    }

    void addEdge(const std::shared_ptr<vrx::ExcVisuEdge>& edge, const Placement& placement)
    {
        const std::size_t before = m_segments.size();
        appendSegments(m_segments, {edge}, placement);
        PageJson json;
        json.StartObject();
        json.field("mechanicalId", edge->mechanicalId());
        json.Key("begin"); // among the numbers of all segments
        json.Uint64(before);
        json.Key("end");
        json.Uint64(m_segments.size());
        json.EndObject();
        m_edges.push_back(json.text());
    }

    Triangles m_triangles;
    std::vector<float> m_normals;
    std::vector<float> m_segments;
    std::vector<std::string> m_meshes;
    std::vector<std::string> m_faces;
    std::vector<std::string> m_edges;
};

void annotation(PageJson& json, const Item& item)
{
    const vrx::ExcVisuPMI& pmi = *item.node->pmi();
    std::vector<float> segments;
    appendSegments(segments, pmi.edges(), item.placement);
    Triangles fillings;
    vrx::ExcColor color;
    if (item.node->mesh())
    {
        for (const std::shared_ptr<vrx::ExcVisuFace>& face : item.node->mesh()->faces())
        {
            fillings.append(*face, item.placement);
            color = face->color();
        }
    }
    if (segments.empty() && fillings.indices.empty())
    {
        return;
    }
    json.StartObject();
    json.field("id", pmi.id());
    json.field("mechanicalId", pmi.mechanicalId());
    json.field("name", pmi.displayName());
    json.color(pmi.edges().empty() ? color : pmi.edges().front()->color());
    json.field("segments", base64Of(segments));
    fillings.write(json);
    json.EndObject();
}

template <class View>
void viewHead(PageJson& json, const View& view)
{
    json.field("id", view.id());
    json.field("name", view.displayName());
    json.Key("annotationIds");
    json.StartArray();
    for (const mp::wstring& id : view.annotationIds())
    {
        json.value(id);
    }
    json.EndArray();
}

void captureObject(PageJson& json, const vrx::ExcVisuCapture& capture)
{
    json.StartObject();
    viewHead(json, capture);
    cameraJson(json, capture.camera());
    // Of the plane's two forms only the coefficients arrive whole.
    if (capture.clippingPlane().hasCoefficients())
    {
        json.numbers("clipping", capture.clippingPlane().coefficients());
    }
    json.EndObject();
}

void viewObject(PageJson& json, const vrx::ExcVisuView& view)
{
    const vrx::ExcVector3d& u = view.directionU();
    const vrx::ExcVector3d& v = view.directionV();
    vrx::ExcCamera plane;
    plane.setTarget(view.origin());
    plane.setEye({view.origin()[0] + u[1] * v[2] - u[2] * v[1], view.origin()[1] + u[2] * v[0] - u[0] * v[2],
                  view.origin()[2] + u[0] * v[1] - u[1] * v[0]});
    plane.setUp(v);
    json.StartObject();
    viewHead(json, view);
    cameraJson(json, plane);
    json.EndObject();
}

} // namespace

std::string shape(const vrx::ExcVisualizationData& scene)
{
    ShapeWriter writer;
    visit(scene, [&writer](const Item& item) { writer.add(item); });
    return writer.text(rootColor(scene));
}

std::string annotations(const vrx::ExcVisualizationData& scene)
{
    PageJson json;
    json.StartArray();
    visit(scene, [&json](const Item& item) {
        if (item.node->pmi())
        {
            annotation(json, item);
        }
    });
    json.EndArray();
    return json.text();
}

std::string views(const vrx::ExcVisualizationData& scene)
{
    PageJson json;
    json.StartArray();
    for (const std::shared_ptr<vrx::ExcVisuCapture>& capture : scene.captures())
    {
        captureObject(json, *capture);
    }
    for (const std::shared_ptr<vrx::ExcVisuView>& view : scene.views())
    {
        const bool captured =
            std::any_of(scene.captures().begin(), scene.captures().end(),
                        [&view](const auto& capture) { return capture->displayName() == view->displayName(); });
        if (!captured)
        {
            viewObject(json, *view);
        }
    }
    json.EndArray();
    return json.text();
}

} // namespace scene_json
