#include "vrx_api/visualization/visu_point_set.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/shapes.h"
#include "vrx_api/visualization/visu_geometry_type_table.h"

namespace vrx
{

template <class Self, class Fields>
void ExcVisuPointSet::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("display_name"), self.m_displayName);
    fields.always(WIDE("id"), identity(EIdSpace::None, self.m_id));
    fields.always(WIDE("mechanical_id"), self.m_mechanicalId);
    fields.always(WIDE("geometry_type"), self.m_geometryType);
    fields.filled(WIDE("points"), self.m_points);
}
template struct Described<ExcVisuPointSet>;

void ExcVisuPointSet::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuPointSet");
}

void ExcVisuPointSet::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

static constexpr const char* kNullPoints = "ExcVisuPointSet: attempt to add null Visu Points object.";

void ExcVisuPointSet::addPoints(const std::shared_ptr<ExcVisuPoints>& points)
{
    add(m_points, points, kNullPoints);
}

void ExcVisuPointSet::addPoints(const std::vector<std::shared_ptr<ExcVisuPoints>>& points)
{
    addAll(m_points, points, kNullPoints);
}

void ExcVisuPointSet::setPoints(const std::vector<std::shared_ptr<ExcVisuPoints>>& points)
{
    setAll(m_points, points, kNullPoints);
}

} // namespace vrx
