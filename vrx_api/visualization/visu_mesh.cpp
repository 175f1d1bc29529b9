#include "vrx_api/visualization/visu_mesh.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"
#include "vrx_api/visualization/visu_geometry_type_table.h"

namespace vrx
{

template <class Self, class Fields>
void ExcVisuMesh::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("display_name"), self.m_displayName);
    fields.always(WIDE("id"), identity(EIdSpace::None, self.m_id));
    fields.always(WIDE("mechanical_id"), self.m_mechanicalId);
    fields.always(WIDE("geometry_type"), self.m_geometryType);
    fields.filled(WIDE("faces"), self.m_faces);
    fields.filled(WIDE("edges"), self.m_edges);
}
template struct Described<ExcVisuMesh>;

void ExcVisuMesh::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuMesh");
}

void ExcVisuMesh::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

static constexpr const char* kNullFace = "ExcVisuMesh: attempt to add null Visu Face object.";
static constexpr const char* kNullEdge = "ExcVisuMesh: attempt to add null Visu Edge object.";

void ExcVisuMesh::addFace(const std::shared_ptr<ExcVisuFace>& face)
{
    add(m_faces, face, kNullFace);
}

void ExcVisuMesh::addFaces(const std::vector<std::shared_ptr<ExcVisuFace>>& faces)
{
    addAll(m_faces, faces, kNullFace);
}

void ExcVisuMesh::setFaces(const std::vector<std::shared_ptr<ExcVisuFace>>& faces)
{
    setAll(m_faces, faces, kNullFace);
}

void ExcVisuMesh::addEdge(const std::shared_ptr<ExcVisuEdge>& edge)
{
    add(m_edges, edge, kNullEdge);
}

void ExcVisuMesh::addEdges(const std::vector<std::shared_ptr<ExcVisuEdge>>& edges)
{
    addAll(m_edges, edges, kNullEdge);
}

void ExcVisuMesh::setEdges(const std::vector<std::shared_ptr<ExcVisuEdge>>& edges)
{
    setAll(m_edges, edges, kNullEdge);
}

} // namespace vrx
