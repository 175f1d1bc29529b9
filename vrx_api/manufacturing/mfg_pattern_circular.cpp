#include "vrx_api/manufacturing/mfg_pattern_circular.h"

#include "vrx_api/manufacturing/mfg_pattern_fields.h"

namespace vrx
{

static constexpr const char* kWrongVisible =
    "ExcMfgPatternCircular: invalid size of visible_instances array item (pair).";
static constexpr const char* kWrongDeactivated =
    "ExcMfgPatternCircular: invalid size of deactivated_instances array item (pair).";

template <class Self, class Fields>
void ExcMfgPatternCircular::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgPattern>(self, fields);
    fields.always(WIDE("anchor_point"), self.m_anchorPoint);
    fields.always(WIDE("center_of_rotation"), self.m_centerOfRotation);
    fields.always(WIDE("axis_of_rotation"), self.m_axisOfRotation);
    fields.always(WIDE("axial_inst_count"), self.m_axialInstanceCount);
    fields.always(WIDE("radial_inst_count"), self.m_radialInstanceCount);
    fields.always(WIDE("axial_dist_degrees"), self.m_axialDistanceDegrees);
    fields.always(WIDE("radial_dist"), self.m_radialDistance);
    fields.always(WIDE("fixed_rot_orient"), self.m_fixedRotationOrientation);
    fields.filled(WIDE("base_instance"), self.m_baseInstance);
    fields.always(WIDE("simplified"), self.m_simplified);
    fields.filled(WIDE("visible_instances"), indexPairs(kWrongVisible, self.m_visibleInstances));
    fields.filled(WIDE("deactivated_instances"), indexPairs(kWrongDeactivated, self.m_deactivatedInstances));
}
template struct Described<ExcMfgPatternCircular>;

void ExcMfgPatternCircular::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgPatternCircular");
}

void ExcMfgPatternCircular::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    addFields(*this, value, allocator);
}

ExcMfgPattern::EType ExcMfgPatternCircular::type() const
{
    return EType::Circular;
}

} // namespace vrx
