#include "vrx_api/manufacturing/mfg_pattern_rectangular.h"

#include "vrx_api/manufacturing/mfg_pattern_fields.h"

namespace vrx
{

static constexpr const char* kWrongVisible =
    "ExcMfgPatternRectangular: invalid size of visible_instances array item (pair).";
static constexpr const char* kWrongDeactivated =
    "ExcMfgPatternRectangular: invalid size of deactivated instances array item (pair).";

template <class Self, class Fields>
void ExcMfgPatternRectangular::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgPattern>(self, fields);
    fields.always(WIDE("anchor_point"), self.m_anchorPoint);
    fields.always(WIDE("align_primary_dir"), self.m_alignmentPrimaryDirection);
    fields.always(WIDE("align_secondary_dir"), self.m_alignmentSecondaryDirection);
    fields.always(WIDE("primary_inst_count"), self.m_primaryInstanceCount);
    fields.always(WIDE("secondary_inst_count"), self.m_secondaryInstanceCount);
    fields.always(WIDE("primary_spacing"), self.m_primarySpacing);
    fields.always(WIDE("secondary_spacing"), self.m_secondarySpacing);
    fields.filled(WIDE("base_instance"), self.m_baseInstance);
    fields.always(WIDE("simplified"), self.m_simplified);
    fields.filled(WIDE("visible_instances"), indexPairs(kWrongVisible, self.m_visibleInstances));
    fields.filled(WIDE("deactivated_instances"), indexPairs(kWrongDeactivated, self.m_deactivatedInstances));
}
template struct Described<ExcMfgPatternRectangular>;

void ExcMfgPatternRectangular::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgPatternRectangular");
}

void ExcMfgPatternRectangular::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    addFields(*this, value, allocator);
}

ExcMfgPattern::EType ExcMfgPatternRectangular::type() const
{
    return EType::Rectangular;
}

} // namespace vrx
