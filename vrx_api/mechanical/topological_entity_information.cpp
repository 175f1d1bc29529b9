#include "vrx_api/mechanical/topological_entity_information.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

using ELineType = ExcTopologicalEntityInformation::ELineType;

static constexpr EnumName<ELineType> kLineTypes[] = {
    {ELineType::Unknown, WIDE("unknown")},
    {ELineType::Solid, WIDE("solid")},
    {ELineType::Dash, WIDE("dash")},
    {ELineType::Dot, WIDE("dot")},
    {ELineType::DashDot, WIDE("dash_dot")},
    {ELineType::DashDotDot, WIDE("dash_dot_dot")},
    {ELineType::DashDotDotDot, WIDE("dash_dot_dot_dot")},
    {ELineType::DashDashDot, WIDE("dash_dash_dot")},
    {ELineType::DashDashDotDot, WIDE("dash_dash_dot_dot")},
    {ELineType::DashDashDotDotDot, WIDE("dash_dash_dot_dot_dot")},
    {ELineType::ShortDash, WIDE("short_dash")},
    {ELineType::LongDash, WIDE("long_dash")},
    {ELineType::MediumDashLongDash, WIDE("medium_dash_long_dash")},
    {ELineType::MediumDashShortDashShortDash, WIDE("medium_dash_short_dash_short_dash")},
    {ELineType::LongDashShortDash, WIDE("long_dash_short_dash")},
    {ELineType::LongDashShortDashShortDash, WIDE("long_dash_short_dash_short_dash")},
    {ELineType::LongDashDotDot, WIDE("long_dash_dot_dot")},
    {ELineType::LongDashDot, WIDE("long_dash_dot")},
    {ELineType::MediumDashDotShortDashDot, WIDE("medium_dash_dot_short_dash_dot")},
    {ELineType::SparseDot, WIDE("sparse_dot")},
    {ELineType::VisibleInvisible, WIDE("visible_invisible")},
    {ELineType::Zigzag, WIDE("zigzag")},
    {ELineType::CurveBatting, WIDE("curve_batting")},
    {ELineType::FenceCircle, WIDE("fence_circle")},
    {ELineType::FenceSquare, WIDE("fence_square")},
    {ELineType::SupplyLineGas, WIDE("supply_line_gas")},
    {ELineType::SupplyLineHotWater, WIDE("supply_line_hot_water")},
    {ELineType::Tracks, WIDE("tracks")},
};
static constexpr const auto& enumTable(ELineType)
{
    return kLineTypes;
}

template <class Self, class Fields>
void ExcTopologicalEntityInformation::describe(Self& self, Fields& fields)
{
    fields.filled(WIDE("entity"), self.m_entity);
    fields.filled(WIDE("pnames"), valid(self.m_persistentNames));
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("hidden"), self.m_hidden);
    fields.always(WIDE("line_type"), self.m_lineType);
    fields.always(WIDE("line_thickness"), self.m_lineThickness);
}
template struct Described<ExcTopologicalEntityInformation>;

void ExcTopologicalEntityInformation::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcTopologicalEntityInformation");
}

void ExcTopologicalEntityInformation::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
