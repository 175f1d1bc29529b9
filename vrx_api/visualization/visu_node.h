#pragma once

#include "vrx_api/common/transformation.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/visualization/visu_attributes.h"
#include "vrx_api/visualization/visu_mesh.h"
#include "vrx_api/visualization/visu_pmi.h"
#include "vrx_api/visualization/visu_point_set.h"
#include "vrx_api/visualization/visu_wire.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace vrx
{

/// One node of a scene tree: what it shows, how it looks, where it is placed, and the nodes below it. Any combination
/// of contents may be here, whatever the type. Copies share all that pointers hold, the child nodes among it. No
/// operation recurses over the tree, whatever its depth.
class VRX_API ExcVisuNode : public IJsonObject
{
public:
    enum class EType : std::int32_t
    {
        UNDEFINED = 0,
        ROOT = 1,
        GROUP = 2,
        GEOMETRY = 3,
        MESHES = 4,
        MESH = 5,
        WIRES = 6,
        WIRE = 7,
        POINTS = 8,
        POINTSET = 9,
        PMI = 10,
        FTA_CONSTRUCTED_GEOMETRY = 11,
        NOTES = 12,
        NOTE = 13,
        FLAGNOTE = 14,
        NOA = 15,
        DATUMS = 16,
        DATUM_SIMPLE = 17,
        DATUM_TARGET = 18,
        DATUM_UNKNOWN = 19,
        DIMENSIONS = 20,
        DIMENSION_BASIC = 21,
        DIMENSION_LENGTH = 22,
        DIMENSION_DISTANCE = 23,
        DIMENSION_LINEAR = 24,
        DIMENSION_ORIENTED_LINEAR = 25,
        DIMENSION_DIAMETER = 26,
        DIMENSION_RADIUS = 27,
        DIMENSION_ANGLE = 28,
        DIMENSION_ORIENTED_ANGLE = 29,
        DIMENSION_COORDINATE_3D = 30,
        DIMENSION_CHAMFER = 31,
        DIMENSION_UNKNOWN = 32,
        GEOMTOLS = 33,
        GEOMTOL_STRAIGHTNESS = 34,
        GEOMTOL_FLATNESS = 35,
        GEOMTOL_CIRCULARITY = 36,
        GEOMTOL_CYLINDRICITY = 37,
        GEOMTOL_PROFILE_LINE = 38,
        GEOMTOL_PROFILE_SURFACE = 39,
        GEOMTOL_COMP_PROFILE_SURFACE = 40,
        GEOMTOL_PATTERN_LOCATION = 41,
        GEOMTOL_PARALLELISM = 42,
        GEOMTOL_ANGULARITY = 43,
        GEOMTOL_PERPENDICULARITY = 44,
        GEOMTOL_POSITION = 45,
        GEOMTOL_POSITION_LINE = 46,
        GEOMTOL_POSITION_SURFACE = 47,
        GEOMTOL_COMP_POSITION = 48,
        GEOMTOL_TOLERANCE = 49,
        GEOMTOL_CONCENTRICITY = 50,
        GEOMTOL_SYMMETRY = 51,
        GEOMTOL_RUNOUT_CIRCULAR = 52,
        GEOMTOL_RUNOUT_TOTAL = 53,
        GEOMTOL_NOTE_ONLY = 54,
        GEOMTOL_UNKNOWN = 55,
        ROUGHNESSES = 56,
        ROUGHNESS = 57,
        DRAWINGSHEET = 58,
        ACTIVEDRAWINGSHEET = 59,
        DRAWINGSHEETS = 60,
    };

    ExcVisuNode() = default;
    ExcVisuNode(const ExcVisuNode&) = default;
    ExcVisuNode(ExcVisuNode&&) = default;
    ExcVisuNode& operator=(const ExcVisuNode&) = default;
    ExcVisuNode& operator=(ExcVisuNode&&) = default;
    ~ExcVisuNode() override;

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    bool isLeaf() const { return m_leaf; }
    void setLeaf(bool leaf) { m_leaf = leaf; }

    const std::shared_ptr<ExcVisuAttributes>& attributes() const { return m_attributes; }
    void setAttributes(const std::shared_ptr<ExcVisuAttributes>& attributes) { m_attributes = attributes; }

    const std::shared_ptr<ExcTransformation>& transformation() const { return m_transformation; }
    void setTransformation(const std::shared_ptr<ExcTransformation>& placement) { m_transformation = placement; }

    const std::shared_ptr<ExcVisuMesh>& mesh() const { return m_mesh; }
    void setMesh(const std::shared_ptr<ExcVisuMesh>& mesh) { m_mesh = mesh; }

    const std::shared_ptr<ExcVisuWire>& wire() const { return m_wire; }
    void setWire(const std::shared_ptr<ExcVisuWire>& wire) { m_wire = wire; }

    const std::shared_ptr<ExcVisuPMI>& pmi() const { return m_pmi; }
    void setPMI(std::shared_ptr<ExcVisuPMI> pmi) { m_pmi = std::move(pmi); }

    const std::shared_ptr<ExcVisuPointSet>& pointSet() const { return m_pointSet; }
    void setPointSet(const std::shared_ptr<ExcVisuPointSet>& points) { m_pointSet = points; }

    EType type() const { return m_type; }
    void setType(EType type) { m_type = type; }

    const wstring& groupName() const { return m_groupName; }
    void setGroupName(const wstring& name) { m_groupName = name; }

    std::vector<std::shared_ptr<ExcVisuNode>> childNodes() const { return m_childNodes; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addChildNode(const std::shared_ptr<ExcVisuNode>& node);
    void addChildNodes(const std::vector<std::shared_ptr<ExcVisuNode>>& nodes);
    void setChildNodes(const std::vector<std::shared_ptr<ExcVisuNode>>& nodes);

private:
    friend struct Described<ExcVisuNode>;
    friend struct VisuTree;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    bool m_leaf = false;
    std::shared_ptr<ExcVisuAttributes> m_attributes;
    std::shared_ptr<ExcTransformation> m_transformation;
    std::shared_ptr<ExcVisuMesh> m_mesh;
    std::shared_ptr<ExcVisuWire> m_wire;
    std::shared_ptr<ExcVisuPMI> m_pmi;
    std::shared_ptr<ExcVisuPointSet> m_pointSet;
    EType m_type = EType::UNDEFINED;
    wstring m_groupName;
    std::vector<std::shared_ptr<ExcVisuNode>> m_childNodes;
};

} // namespace vrx
