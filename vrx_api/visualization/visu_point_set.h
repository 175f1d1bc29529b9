#pragma once

#include "vrx_api/json/json_object.h"
#include "vrx_api/visualization/visu_geometry_type.h"
#include "vrx_api/visualization/visu_points.h"

#include <memory>
#include <vector>

namespace vrx
{

/// The point runs of one item. Copies share the runs.
class VRX_API ExcVisuPointSet : public IJsonObject
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

    std::vector<std::shared_ptr<ExcVisuPoints>> points() const { return m_points; }

    /// Append or replace; a null pointer is logged and adds nothing.
    void addPoints(const std::shared_ptr<ExcVisuPoints>& points);
    void addPoints(const std::vector<std::shared_ptr<ExcVisuPoints>>& points);
    void setPoints(const std::vector<std::shared_ptr<ExcVisuPoints>>& points);

private:
    friend struct Described<ExcVisuPointSet>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_displayName;
    wstring m_id;
    wstring m_mechanicalId;
    EVisuGeometryType m_geometryType = EVisuGeometryType::Unknown;
    std::vector<std::shared_ptr<ExcVisuPoints>> m_points;
};

} // namespace vrx
