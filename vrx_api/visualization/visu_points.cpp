#include "vrx_api/visualization/visu_points.h"

#include "vrx_api/json/shapes.h"

namespace vrx
{

static constexpr EnumName<EVisuMarkerStyle> kMarkerStyles[] = {
    {EVisuMarkerStyle::NOTUSED, WIDE("NOTUSED")},
    {EVisuMarkerStyle::CROSS, WIDE("CROSS")},
    {EVisuMarkerStyle::PLUS, WIDE("PLUS")},
    {EVisuMarkerStyle::CONCENTRIC, WIDE("CONCENTRIC")},
    {EVisuMarkerStyle::COINCIDENT, WIDE("COINCIDENT")},
    {EVisuMarkerStyle::FULLCIRCLE, WIDE("FULLCIRCLE")},
    {EVisuMarkerStyle::FULLSQUARE, WIDE("FULLSQUARE")},
    {EVisuMarkerStyle::STAR, WIDE("STAR")},
    {EVisuMarkerStyle::DOT, WIDE("DOT")},
    {EVisuMarkerStyle::SMALLDOT, WIDE("SMALLDOT")},
    {EVisuMarkerStyle::MISC1, WIDE("MISC1")},
    {EVisuMarkerStyle::MISC2, WIDE("MISC2")},
    {EVisuMarkerStyle::FULLCIRCLE2, WIDE("FULLCIRCLE2")},
    {EVisuMarkerStyle::FULLSQUARE2, WIDE("FULLSQUARE2")},
    {EVisuMarkerStyle::OPEN_ARROW, WIDE("OPEN_ARROW")},
    {EVisuMarkerStyle::UNFILLED_ARROW, WIDE("UNFILLED_ARROW")},
    {EVisuMarkerStyle::BLANKED_ARROW, WIDE("BLANKED_ARROW")},
    {EVisuMarkerStyle::FILLED_ARROW, WIDE("FILLED_ARROW")},
    {EVisuMarkerStyle::UNFILLED_CIRCLE, WIDE("UNFILLED_CIRCLE")},
    {EVisuMarkerStyle::BLANKED_CIRCLE, WIDE("BLANKED_CIRCLE")},
    {EVisuMarkerStyle::FILLED_CIRCLE, WIDE("FILLED_CIRCLE")},
    {EVisuMarkerStyle::CROSSED_CIRCLE, WIDE("CROSSED_CIRCLE")},
    {EVisuMarkerStyle::BLANKED_SQUARE, WIDE("BLANKED_SQUARE")},
    {EVisuMarkerStyle::FILLED_SQUARE, WIDE("FILLED_SQUARE")},
    {EVisuMarkerStyle::BLANKED_TRIANGLE, WIDE("BLANKED_TRIANGLE")},
    {EVisuMarkerStyle::FILLED_TRIANGLE, WIDE("FILLED_TRIANGLE")},
    {EVisuMarkerStyle::MANIPULATOR_SQUARE, WIDE("MANIPULATOR_SQUARE")},
    {EVisuMarkerStyle::MANIPULATOR_DIAMOND, WIDE("MANIPULATOR_DIAMOND")},
    {EVisuMarkerStyle::MANIPULATOR_CIRCLE, WIDE("MANIPULATOR_CIRCLE")},
    {EVisuMarkerStyle::MANIPULATOR_TRIANGLE, WIDE("MANIPULATOR_TRIANGLE")},
    {EVisuMarkerStyle::DOUBLE_OPEN_ARROW, WIDE("DOUBLE_OPEN_ARROW")},
    {EVisuMarkerStyle::WAVE, WIDE("WAVE")},
    {EVisuMarkerStyle::DOUBLE_FILLED_ARROW, WIDE("DOUBLE_FILLED_ARROW")},
    {EVisuMarkerStyle::FULLDOUBLEROTATEARROWBLACKBORDER, WIDE("FULLDOUBLEROTATEARROWBLACKBORDER")},
    {EVisuMarkerStyle::FULLSQUAREBLACKBORDER, WIDE("FULLSQUAREBLACKBORDER")},
    {EVisuMarkerStyle::FULLDIAMONDBLACKBORDER, WIDE("FULLDIAMONDBLACKBORDER")},
    {EVisuMarkerStyle::FULLCIRCLEBLACKBORDER, WIDE("FULLCIRCLEBLACKBORDER")},
    {EVisuMarkerStyle::DOUBLE_UNFILLED_ARROW, WIDE("DOUBLE_UNFILLED_ARROW")},
    {EVisuMarkerStyle::DOUBLE_BLANKED_ARROW, WIDE("DOUBLE_BLANKED_ARROW")},
    {EVisuMarkerStyle::FORE_SLASH, WIDE("FORE_SLASH")},
    {EVisuMarkerStyle::BACK_SLASH, WIDE("BACK_SLASH")},
    {EVisuMarkerStyle::INTEGRAL, WIDE("INTEGRAL")},
    {EVisuMarkerStyle::UNFILLED_DOT, WIDE("UNFILLED_DOT")},
    {EVisuMarkerStyle::FILLED_DOT, WIDE("FILLED_DOT")},
    {EVisuMarkerStyle::UNFILLED_SQUARE, WIDE("UNFILLED_SQUARE")},
    {EVisuMarkerStyle::TOP_OPEN_ARROW, WIDE("TOP_OPEN_ARROW")},
    {EVisuMarkerStyle::BOTTOM_OPEN_ARROW, WIDE("BOTTOM_OPEN_ARROW")},
    {EVisuMarkerStyle::TOP_FILLED_ARROW, WIDE("TOP_FILLED_ARROW")},
    {EVisuMarkerStyle::BOTTOM_FILLED_ARROW, WIDE("BOTTOM_FILLED_ARROW")},
    {EVisuMarkerStyle::UNFILLED_TRIANGLE, WIDE("UNFILLED_TRIANGLE")},
};
static constexpr const auto& enumTable(EVisuMarkerStyle)
{
    return kMarkerStyles;
}

template <class Self, class Fields>
void ExcVisuPoints::describe(Self& self, Fields& fields)
{
    fields.filled(WIDE("points"), places(self.m_points));
    fields.filled(WIDE("point_indices"), indices(WIDE("points"), 3, places(self.m_pointIndices)));
    fields.always(WIDE("marker_style"), self.m_markerStyle);
    fields.always(WIDE("color"), self.m_color);
}
template struct Described<ExcVisuPoints>;

void ExcVisuPoints::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcVisuPoints");
}

void ExcVisuPoints::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
