#include "mechanical/line_style.h"

#include "mp/narrow.h"
#include "reading/step_measures.h"

#include <cmath>
#include <string>
#include <vector>

namespace
{

using ELineType = vrx::ExcTopologicalEntityInformation::ELineType;

// The nearest to the fonts that the standard defines. Its chains have long dashes, with dashes or dots between them.
ELineType typeOf(const std::string& font)
{
    static const std::map<std::string, ELineType> kTypes = {
        {"continuous", ELineType::Solid},
        {"chain", ELineType::LongDashShortDash},
        {"chain double dash", ELineType::LongDashShortDashShortDash},
        {"dashed", ELineType::Dash},
        {"dotted", ELineType::Dot},
    };
    const auto found = kTypes.find(font);
    return found != kTypes.end() ? found->second : ELineType::Unknown;
}

// The styles of curves among those of an assignment, with the boundaries of surfaces.
std::vector<StepRecord> curveStyles(const StepRecord& assignment)
{
    std::vector<StepRecord> curves;
    for (const StepRecord& style : assignment.nexts(0))
    {
        if (style.is("CURVE_STYLE"))
        {
            curves.push_back(style);
        }
        else if (style.is("SURFACE_STYLE_USAGE"))
        {
            for (const StepRecord& element : style.next(1).nexts(1))
            {
                if (element.is("SURFACE_STYLE_BOUNDARY"))
                {
                    curves.push_back(element.next(0));
                }
            }
        }
    }
    return curves;
}

bool isLength(const StepParameter& width)
{
    return width.type == "LENGTH_MEASURE" || width.type == "POSITIVE_LENGTH_MEASURE";
}

} // namespace

LineStyles::LineStyles(const StepRecords& records, double scale)
    : m_factor(scale)
{
    for (const char* const type : {"MECHANICAL_DESIGN_GEOMETRIC_PRESENTATION_REPRESENTATION",
                                   "ADVANCED_BREP_SHAPE_REPRESENTATION", "SHAPE_REPRESENTATION"})
    {
        const std::vector<StepRecord> all = records.all(type);
        if (!all.empty())
        {
            m_factor = scale * unitFactors(records, all.front()).length;
            return;
        }
    }
}

std::optional<LineStyle> LineStyles::of(const StepRecord& assignment)
{
    const auto known = m_known.find(assignment.id());
    return known != m_known.end() ? known->second : m_known[assignment.id()] = read(assignment);
}

std::optional<LineStyle> LineStyles::read(const StepRecord& assignment) const
{
    for (const StepRecord& curve : curveStyles(assignment))
    {
        LineStyle style;
        const StepRecord font = curve.next(1);
        style.type = typeOf(mp::toNarrow(font.text(0)));
        const StepRecord measure = curve.next(2).as("MEASURE_WITH_UNIT");
        const StepParameter& width = measure ? measure[0] : curve[2];
        if (isLength(width) && std::isfinite(width.number) && width.number > 0)
        {
            style.thickness = width.number * m_factor;
        }
        if (style.type != ELineType::Unknown || style.thickness > 0)
        {
            return style;
        }
    }
    return std::nullopt;
}
