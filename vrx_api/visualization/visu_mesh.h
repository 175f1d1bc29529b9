#pragma once

#include "vrx_api/json/json_object.h"
#include "vrx_api/visualization/visu_edge.h"
#include "vrx_api/visualization/visu_face.h"
#include "vrx_api/visualization/visu_geometry_type.h"

#include <memory>
#include <vector>

namespace vrx
{

/// The faces and edges of one piece of geometry. Copies share the faces and edges.
class VRX_API ExcVisuMesh : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& displayName() const { return m_displayName; }
    void setDisplayName(const wstring& name) { m_displayName = name; }

    /// By this id an `ExcEntity` points at the item.
    const wstring& id() const { return m_id; }
    void setId(const wstring& id) { m_id = id; }

    /// The item's counterpart in the mechanical data.
    const wstring& mechanicalId() const { return m_mechanicalId; }
    void setMechanicalId(const wstring& id) { m_mechanicalId = id; }

    EVisuGeometryType geometryType() const { return m_geometryType; }
    void setGeometryType(EVisuGeometryType type) { m_geometryType = type; }

    std::vector<std::shared_ptr<ExcVisuFace>> faces() const { return m_faces; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addFace(const std::shared_ptr<ExcVisuFace>& face);
    void addFaces(const std::vector<std::shared_ptr<ExcVisuFace>>& faces);
    void setFaces(const std::vector<std::shared_ptr<ExcVisuFace>>& faces);

    std::vector<std::shared_ptr<ExcVisuEdge>> edges() const { return m_edges; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addEdge(const std::shared_ptr<ExcVisuEdge>& edge);
    void addEdges(const std::vector<std::shared_ptr<ExcVisuEdge>>& edges);
    void setEdges(const std::vector<std::shared_ptr<ExcVisuEdge>>& edges);

private:
    friend struct Described<ExcVisuMesh>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_displayName;
    wstring m_id;
    wstring m_mechanicalId;
    EVisuGeometryType m_geometryType = EVisuGeometryType::Unknown;
    std::vector<std::shared_ptr<ExcVisuFace>> m_faces;
    std::vector<std::shared_ptr<ExcVisuEdge>> m_edges;
};

} // namespace vrx
