#include "vrx_api/manufacturing/mfg_pattern_user_defined.h"

#include "vrx_api/manufacturing/mfg_pattern_fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcMfgPatternUserDefined::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgPattern>(self, fields);
    fields.always(WIDE("anchor_point"), self.m_anchorPoint);
    fields.filled(WIDE("base_instance"), self.m_baseInstance);
    fields.filled(WIDE("instance_positions"), self.m_instancePositions);
    fields.filled(WIDE("deactivated_positions"), self.m_deactivatedPositions);
}
template struct Described<ExcMfgPatternUserDefined>;

void ExcMfgPatternUserDefined::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgPatternUserDefined");
}

void ExcMfgPatternUserDefined::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    addFields(*this, value, allocator);
}

ExcMfgPattern::EType ExcMfgPatternUserDefined::type() const
{
    return EType::UserDefined;
}

} // namespace vrx
