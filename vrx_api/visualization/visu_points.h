#pragma once

#include "vrx_api/common/color.h"
#include "vrx_api/json/json_object.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace vrx
{

/// How a point is marked. There are no numbers from 37 to 2000.
enum class EVisuMarkerStyle : std::int32_t
{
    NOTUSED = 0,
    CROSS = 1,
    PLUS = 2,
    CONCENTRIC = 3,
    COINCIDENT = 4,
    FULLCIRCLE = 5,
    FULLSQUARE = 6,
    STAR = 7,
    DOT = 8,
    SMALLDOT = 9,
    MISC1 = 10,
    MISC2 = 11,
    FULLCIRCLE2 = 12,
    FULLSQUARE2 = 13,
    OPEN_ARROW = 14,
    UNFILLED_ARROW = 15,
    BLANKED_ARROW = 16,
    FILLED_ARROW = 17,
    UNFILLED_CIRCLE = 18,
    BLANKED_CIRCLE = 19,
    FILLED_CIRCLE = 20,
    CROSSED_CIRCLE = 21,
    BLANKED_SQUARE = 22,
    FILLED_SQUARE = 23,
    BLANKED_TRIANGLE = 24,
    FILLED_TRIANGLE = 25,
    MANIPULATOR_SQUARE = 26,
    MANIPULATOR_DIAMOND = 27,
    MANIPULATOR_CIRCLE = 28,
    MANIPULATOR_TRIANGLE = 29,
    DOUBLE_OPEN_ARROW = 30,
    WAVE = 31,
    DOUBLE_FILLED_ARROW = 32,
    FULLDOUBLEROTATEARROWBLACKBORDER = 33,
    FULLSQUAREBLACKBORDER = 34,
    FULLDIAMONDBLACKBORDER = 35,
    FULLCIRCLEBLACKBORDER = 36,
    DOUBLE_UNFILLED_ARROW = 2001,
    DOUBLE_BLANKED_ARROW = 2002,
    FORE_SLASH = 2003,
    BACK_SLASH = 2004,
    INTEGRAL = 2005,
    UNFILLED_DOT = 2006,
    FILLED_DOT = 2007,
    UNFILLED_SQUARE = 2008,
    TOP_OPEN_ARROW = 2009,
    BOTTOM_OPEN_ARROW = 2010,
    TOP_FILLED_ARROW = 2011,
    BOTTOM_FILLED_ARROW = 2012,
    UNFILLED_TRIANGLE = 2013,
};

/// One run of markers with one style and colour. Its numbers lie flat in their arrays; how they group is agreed between
/// the two ends of the channel.
/// The setters of the arrays take an rvalue over and leave it empty; an array set to itself stays as it is.
class VRX_API ExcVisuPoints : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The coordinates of the points, usually three for each, in the unit of the scene.
    const std::vector<float>& points() const { return m_points; }
    void setPoint(const std::vector<float>& points) { m_points = points; }
    void setPoint(std::vector<float>&& points) { std::vector<float>(std::move(points)).swap(m_points); }

    const std::vector<std::int32_t>& pointIndices() const { return m_pointIndices; }
    void setPointIndices(const std::vector<std::int32_t>& indices) { m_pointIndices = indices; }
    void setPointIndices(std::vector<std::int32_t>&& indices)
    {
        std::vector<std::int32_t>(std::move(indices)).swap(m_pointIndices);
    }

    EVisuMarkerStyle markerStyle() const { return m_markerStyle; }
    void setMarkerStyle(EVisuMarkerStyle style) { m_markerStyle = style; }

    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }

private:
    friend struct Described<ExcVisuPoints>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<float> m_points;
    std::vector<std::int32_t> m_pointIndices;
    EVisuMarkerStyle m_markerStyle = EVisuMarkerStyle::NOTUSED;
    ExcColor m_color;
};

} // namespace vrx
