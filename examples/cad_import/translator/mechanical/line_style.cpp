#include "mechanical/line_style.h"

#include "mp/narrow.h"
#include "pmi/step_quantity.h"
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
    : m_scale(scale)
{
    for (const char* const type : {"SHAPE_REPRESENTATION", "ADVANCED_BREP_SHAPE_REPRESENTATION", "DRAUGHTING_MODEL",
                                   "MECHANICAL_DESIGN_GEOMETRIC_PRESENTATION_REPRESENTATION"})
    {
        const std::vector<StepRecord> all = records.all(type);
        m_factor = all.empty() ? m_factor : unitFactors(records, all.front()).length;
    }
    for (const char* const type : {"DRAUGHTING_MODEL", "MECHANICAL_DESIGN_GEOMETRIC_PRESENTATION_REPRESENTATION"})
    {
        for (const StepRecord& representation : records.all(type))
        {
            const double factor = unitFactors(records, representation).length;
            for (const StepParameter& item : representation.as("REPRESENTATION")[1].list)
            {
                m_factors.insert({item.reference, factor});
            }
        }
    }
}

std::optional<LineStyle> LineStyles::of(const StepRecord& assignment, int styledItem)
{
    const auto found = m_factors.find(styledItem);
    const double factor = found != m_factors.end() ? found->second : m_factor;
    const auto [known, isNew] = m_known.insert({{assignment.id(), factor}, std::nullopt});
    if (isNew)
    {
        known->second = read(assignment, factor);
    }
    return known->second;
}

std::optional<LineStyle> LineStyles::read(const StepRecord& assignment, double factor) const
{
    for (const StepRecord& curve : curveStyles(assignment))
    {
        LineStyle style;
        style.type = typeOf(mp::toNarrow(curve.next(1).text(0)));
        style.thickness = thickness(curve, factor);
        if (style.type != ELineType::Unknown || style.thickness > 0)
        {
            return style;
        }
    }
    return std::nullopt;
}

double LineStyles::thickness(const StepRecord& curve, double factor) const
{
    const StepRecord measure = curve.next(2);
    const StepParameter& width = measure ? measure.as("MEASURE_WITH_UNIT")[0] : curve[2];
    const StepQuantity own = quantityOf(measure).in(StepQuantity::EUnit::Mm);
    const double result = m_scale * (own ? own.value : isLength(width) ? width.number * factor : 0);
    return std::isfinite(result) && result > 0 ? result : 0;
}
