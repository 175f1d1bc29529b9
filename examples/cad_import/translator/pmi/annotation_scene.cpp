#include "pmi/annotation_scene.h"

#include "common/scene_conventions.h"
#include "kernel/occt_transformation.h"
#include "looks/scene_nodes.h"
#include "looks/tessellation.h"
#include "mp/narrow.h"
#include "pmi/annotation_type.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace
{

using EType = vrx::ExcVisuNode::EType;

EType typeOf(const DrawnAnnotation& annotation)
{
    return annotation.about.empty() ? EType::NOTE : annotationType(annotation.about.front());
}

bool isDrawn(const DrawnAnnotation& annotation, const ProductPlaces& places)
{
    const bool isEmpty = annotation.drawing.lines.empty() && annotation.drawing.triangles.empty();
    return !isEmpty && (!annotation.product || places.find(annotation.product) != nullptr);
}

gp_XYZ normalOf(const Drawing& drawing, const std::array<std::size_t, 3>& triangle)
{
    const gp_XYZ& first = drawing.vertices[triangle[0]].XYZ();
    return (drawing.vertices[triangle[1]].XYZ() - first) ^ (drawing.vertices[triangle[2]].XYZ() - first);
}

// Filled areas are flat: one normal is that of all.
gp_XYZ normalOf(const DrawnAnnotation& annotation)
{
    if (annotation.plane)
    {
        return annotation.plane->Direction().XYZ();
    }
    gp_XYZ sum;
    for (const auto& triangle : annotation.drawing.triangles)
    {
        sum += normalOf(annotation.drawing, triangle);
    }
    const double length = sum.Modulus();
    return length > 0 ? sum / length : sum;
}

void append(std::vector<float>& numbers, const gp_XYZ& vector)
{
    for (int i = 1; i <= 3; ++i)
    {
        numbers.push_back(static_cast<float>(vector.Coord(i)));
    }
}

std::shared_ptr<vrx::ExcVisuMesh> meshOf(const DrawnAnnotation& annotation)
{
    const gp_XYZ normal = normalOf(annotation);
    std::vector<float> vertices;
    std::vector<float> normals;
    for (const gp_Pnt& vertex : annotation.drawing.vertices)
    {
        append(vertices, vertex.XYZ());
        append(normals, normal);
    }
    vrx::ExcVisuFace::Polygon triangles{scene_conventions::kTriangles, {}};
    for (std::array<std::size_t, 3> corners : annotation.drawing.triangles)
    {
        if (normalOf(annotation.drawing, corners).Dot(normal) < 0)
        {
            std::swap(corners[1], corners[2]);
        }
        triangles.indices.insert(triangles.indices.end(), corners.begin(), corners.end());
    }
    const auto face = std::make_shared<vrx::ExcVisuFace>();
    face->setVertices(std::move(vertices));
    face->setNormals(std::move(normals));
    face->setPolygons({std::move(triangles)});
    face->setColor(annotation.color);
    auto mesh = std::make_shared<vrx::ExcVisuMesh>();
    mesh->addFace(face);
    return mesh;
}

void draw(vrx::ExcVisuNode& node, const DrawnAnnotation& annotation, const mp::wstring& mechanicalId)
{
    const auto pmi = std::make_shared<vrx::ExcVisuPMI>();
    for (const std::vector<gp_Pnt>& line : annotation.drawing.lines)
    {
        const std::shared_ptr<vrx::ExcVisuEdge> edge = tessellation::polyline(line);
        edge->setColor(annotation.color);
        pmi->addEdge(edge);
    }
    pmi->setDisplayName(annotation.name);
    pmi->setId(annotationId(annotation.record.id()));
    pmi->setMechanicalId(mechanicalId);
    node.setLeaf(true);
    node.setPMI(pmi);
    if (!annotation.drawing.triangles.empty())
    {
        node.setMesh(meshOf(annotation));
    }
}

} // namespace

mp::wstring annotationId(int record)
{
    return mp::toWide("a" + std::to_string(record));
}

std::shared_ptr<vrx::ExcVisuNode> annotationScene(const std::vector<DrawnAnnotation>& annotations,
                                                  const ProductPlaces& places,
                                                  const std::map<int, mp::wstring>& mechanicalIds)
{
    const std::shared_ptr<vrx::ExcVisuNode> root = scene_nodes::make(EType::PMI);
    for (const EType group : {EType::DATUMS, EType::DIMENSIONS, EType::GEOMTOLS, EType::NOTES})
    {
        const std::shared_ptr<vrx::ExcVisuNode> groupNode = scene_nodes::make(group);
        for (const DrawnAnnotation& annotation : annotations)
        {
            const EType type = typeOf(annotation);
            if (annotationGroup(type) != group || !isDrawn(annotation, places))
            {
                continue;
            }
            const auto mechanicalId = mechanicalIds.find(annotation.record.id());
            const std::shared_ptr<vrx::ExcVisuNode> node = scene_nodes::addTo(*groupNode, type);
            draw(*node, annotation, mechanicalId != mechanicalIds.end() ? mechanicalId->second : mp::wstring());
            const ProductPlaces::Place* const place = places.find(annotation.product);
            if (place != nullptr && !place->location.IsIdentity())
            {
                node->setTransformation(
                    std::make_shared<vrx::ExcTransformation>(occt_transformation::of(place->location)));
            }
        }
        if (!groupNode->childNodes().empty())
        {
            root->addChildNode(groupNode);
        }
    }
    return root->childNodes().empty() ? nullptr : root;
}
