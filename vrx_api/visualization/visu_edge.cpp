#include "vrx_api/visualization/visu_edge.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

static constexpr EnumName<ExcVisuEdge::ELineType> kLineTypes[] = {
    {ExcVisuEdge::ELineType::Unknown, WIDE("unknown")},
    {ExcVisuEdge::ELineType::LineStrip, WIDE("line_strip")},
    {ExcVisuEdge::ELineType::LineLoop, WIDE("line_loop")},
    {ExcVisuEdge::ELineType::LineLoopFilled, WIDE("line_loop_filled")},
};
static constexpr const auto& enumTable(ExcVisuEdge::ELineType)
{
    return kLineTypes;
}

template <class Self, class Fields>
void ExcVisuEdge::describe(Self& self, Fields& fields)
{
    fields.filled(WIDE("points"), places(self.m_points));
    fields.filled(WIDE("line_indices"), indices(WIDE("points"), 3, places(self.m_lineIndices)));
    fields.always(WIDE("line_type"), self.m_lineType);
    fields.always(WIDE("color"), self.m_color);
    fields.always(WIDE("mechanical_id"), self.m_mechanicalId);
}
template struct Described<ExcVisuEdge>;

void ExcVisuEdge::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuEdge");
}

void ExcVisuEdge::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
