#include "vrx_api/visualization/visu_line_attribute.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

using ELineStyle = ExcVisuLineAttribute::ELineStyle;

static constexpr EnumName<ELineStyle> kLineStyles[] = {
    {ELineStyle::Undefined, WIDE("undefined")},
    {ELineStyle::SolidLine, WIDE("solid_line")},
    {ELineStyle::DashDotLine, WIDE("dash_dot_line")},
    {ELineStyle::DashLine, WIDE("dash_line")},
    {ELineStyle::DotLine, WIDE("dot_line")},
    {ELineStyle::DashDotDotLine, WIDE("dash_dot_dot_line")},
    {ELineStyle::DashDotDotDotLine, WIDE("dash_dot_dot_dot_line")},
    {ELineStyle::CenterLine, WIDE("center_line")},
    {ELineStyle::PhantomLine, WIDE("phantom_line")},
};
static constexpr const auto& enumTable(ELineStyle)
{
    return kLineStyles;
}

template <class Self, class Fields>
void ExcVisuLineAttribute::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("line_weight"), self.m_lineWeight);
    fields.always(WIDE("line_style"), self.m_lineStyle);
}
template struct Described<ExcVisuLineAttribute>;

void ExcVisuLineAttribute::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuLineAttribute");
}

void ExcVisuLineAttribute::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
