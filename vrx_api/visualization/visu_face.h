#pragma once

#include "vrx_api/common/color.h"
#include "vrx_api/json/json_object.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace vrx
{

/// One tessellated face. Its numbers lie flat in their arrays; how they group into points, and what the type of a
/// polygon means, is agreed between the two ends of the channel. No length and no index is tested.
/// The setters of the arrays take an rvalue over and leave it empty; an array set to itself stays as it is.
class VRX_API ExcVisuFace : public IJsonObject
{
public:
    /// A run of indices into the vertices of the face.
    struct Polygon
    {
        std::int32_t type = 0;
        std::vector<std::int32_t> indices;
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The coordinates of the corners, usually three for each, in the unit of the scene.
    const std::vector<float>& vertices() const { return m_vertices; }
    void setVertices(const std::vector<float>& vertices) { m_vertices = vertices; }
    void setVertices(std::vector<float>&& vertices) { std::vector<float>(std::move(vertices)).swap(m_vertices); }

    /// The directions that point outward at the corners, usually three numbers for each.
    const std::vector<float>& normals() const { return m_normals; }
    void setNormals(const std::vector<float>& normals) { m_normals = normals; }
    void setNormals(std::vector<float>&& normals) { std::vector<float>(std::move(normals)).swap(m_normals); }

    const std::vector<Polygon>& polygons() const { return m_polygons; }
    void setPolygons(const std::vector<Polygon>& polygons) { m_polygons = polygons; }
    void setPolygons(std::vector<Polygon>&& polygons) { std::vector<Polygon>(std::move(polygons)).swap(m_polygons); }

    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }

    /// The face's counterpart in the mechanical data.
    const wstring& mechanicalId() const { return m_mechanicalId; }
    void setMechanicalId(const wstring& id) { m_mechanicalId = id; }

    /// By this id an `ExcEntity` points at the face.
    const wstring& id() const { return m_id; }
    void setId(const wstring& id) { m_id = id; }

private:
    friend struct Described<ExcVisuFace>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<float> m_vertices;
    std::vector<float> m_normals;
    std::vector<Polygon> m_polygons;
    ExcColor m_color;
    wstring m_mechanicalId;
    wstring m_id;
};

} // namespace vrx
