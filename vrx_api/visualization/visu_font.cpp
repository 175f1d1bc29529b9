#include "vrx_api/visualization/visu_font.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

static constexpr EnumName<ExcVisuFont::EPitch> kPitches[] = {
    {ExcVisuFont::EPitch::Unknown, WIDE("unknown")},
    {ExcVisuFont::EPitch::Fixed, WIDE("fixed")},
    {ExcVisuFont::EPitch::Variable, WIDE("variable")},
};
static constexpr const auto& enumTable(ExcVisuFont::EPitch)
{
    return kPitches;
}

template <class Self, class Fields>
void ExcVisuFont::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("text_height"), self.m_textHeight);
    fields.always(WIDE("font_pitch"), self.m_pitch);
    fields.always(WIDE("spacing_factor"), self.m_spacingFactor);
    fields.always(WIDE("width_scaling_factor"), self.m_widthScalingFactor);
}
template struct Described<ExcVisuFont>;

void ExcVisuFont::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuFont");
}

void ExcVisuFont::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
