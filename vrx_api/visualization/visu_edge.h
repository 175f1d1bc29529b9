#pragma once

#include "vrx_api/common/color.h"
#include "vrx_api/json/json_object.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace vrx
{

/// One polyline. Its numbers lie flat in their arrays; how they group is agreed between the two ends of the channel.
/// The setters of the arrays take an rvalue over and leave it empty; an array set to itself stays as it is.
class VRX_API ExcVisuEdge : public IJsonObject
{
public:
    enum class ELineType : std::int32_t
    {
        Unknown = 0,
        LineStrip = 1,
        LineLoop = 2,
        LineLoopFilled = 3,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The coordinates of the points, usually three for each, in the unit of the scene.
    const std::vector<float>& points() const { return m_points; }
    void setPoints(const std::vector<float>& points) { m_points = points; }
    void setPoints(std::vector<float>&& points) { std::vector<float>(std::move(points)).swap(m_points); }

    const std::vector<std::int32_t>& lineIndices() const { return m_lineIndices; }
    void setLineIndices(const std::vector<std::int32_t>& indices) { m_lineIndices = indices; }
    void setLineIndices(std::vector<std::int32_t>&& indices)
    {
        std::vector<std::int32_t>(std::move(indices)).swap(m_lineIndices);
    }

    ELineType lineType() const { return m_lineType; }
    void setLineType(ELineType type) { m_lineType = type; }

    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }

    /// The edge's counterpart in the mechanical data; an edge has no other id.
    const wstring& mechanicalId() const { return m_mechanicalId; }
    void setMechanicalId(const wstring& id) { m_mechanicalId = id; }

private:
    friend struct Described<ExcVisuEdge>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<float> m_points;
    std::vector<std::int32_t> m_lineIndices;
    ELineType m_lineType = ELineType::Unknown;
    ExcColor m_color;
    wstring m_mechanicalId;
};

} // namespace vrx
