#pragma once

#include "vrx_api/common/vector.h"

#include <vector>

namespace vrx
{

/// The line that leads from an annotation to what it is about: the points of a polyline in their order, in the plane of
/// the annotation's view.
class VRX_API ExcPMILeader : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const std::vector<ExcVector2d>& points() const { return m_points; }
    void addPoint(const ExcVector2d& point) { m_points.push_back(point); }
    void setPoints(const std::vector<ExcVector2d>& points) { m_points = points; }

private:
    friend struct Described<ExcPMILeader>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<ExcVector2d> m_points;
};

} // namespace vrx
