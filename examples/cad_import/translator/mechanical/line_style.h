#pragma once

#include "reading/step_records.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

/// How a face's boundary or an edge is drawn.
struct LineStyle
{
    vrx::ExcTopologicalEntityInformation::ELineType type = vrx::ExcTopologicalEntityInformation::ELineType::Unknown;
    double thickness = 0; // in the unit of the product structure; 0 when the file does not tell
};

/// The line styles of a STEP file.
class LineStyles
{
public:
    /// Each length in millimetres is multiplied by the scale.
    LineStyles(const StepRecords& records, double scale);

    /// Of a presentation style assignment of a styled item, if it has one that says something.
    std::optional<LineStyle> of(const StepRecord& assignment, int styledItem);

private:
    std::optional<LineStyle> read(const StepRecord& assignment, double factor) const;
    double thickness(const StepRecord& curve, double factor) const;

    double m_scale;
    double m_factor = 1;                       // millimetres in lengths that name no unit of their own
    std::unordered_map<int, double> m_factors; // the same of styled items
    std::map<std::pair<int, double>, std::optional<LineStyle>> m_known; // by assignment and factor
};
