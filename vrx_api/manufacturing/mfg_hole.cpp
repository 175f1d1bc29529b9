#include "vrx_api/manufacturing/mfg_hole.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

using EBottomLimitExtentType = ExcMfgHole::EBottomLimitExtentType;

static constexpr EnumName<EBottomLimitExtentType> kBottomLimitExtentTypes[] = {
    {EBottomLimitExtentType::Unknown, WIDE("unknown")},
    {EBottomLimitExtentType::Blind, WIDE("blind")},
    {EBottomLimitExtentType::UpToLast, WIDE("up_to_last")},
    {EBottomLimitExtentType::UpToPlane, WIDE("up_to_plane")},
    {EBottomLimitExtentType::UpToSurface, WIDE("up_to_surface")},
    {EBottomLimitExtentType::UpToNext, WIDE("up_to_next")},
};
static constexpr const auto& enumTable(EBottomLimitExtentType)
{
    return kBottomLimitExtentTypes;
}

template <class Self, class Fields>
void ExcMfgHole::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("primary_diameter"), self.m_primaryDiameter);
    fields.always(WIDE("primary_diameter_max_tol"), self.m_primaryDiameterMaxTol);
    fields.always(WIDE("primary_diameter_min_tol"), self.m_primaryDiameterMinTol);
    fields.always(WIDE("primary_depth"), self.m_primaryDepth);
    fields.always(WIDE("tip_angle_degrees"), self.m_tipAngleDegrees);
    fields.always(WIDE("bottom_limit_extent_type"), self.m_bottomLimitExtentType);
    fields.always(WIDE("center"), self.m_center);
    fields.always(WIDE("direction"), self.m_direction);
    fields.filled(WIDE("hole_thread"), self.m_holeThread);
}
template struct Described<ExcMfgHole>;
template struct Inherits<ExcMfgSimpleHole, ExcMfgHole>;

void ExcMfgHole::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgHole");
}

void ExcMfgHole::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

template <class Self, class Fields>
void ExcMfgTaperHole::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgHole>(self, fields);
    fields.always(WIDE("angle"), self.m_angle);
}
template struct Described<ExcMfgTaperHole>;

void ExcMfgTaperHole::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgTaperHole");
}

void ExcMfgTaperHole::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
