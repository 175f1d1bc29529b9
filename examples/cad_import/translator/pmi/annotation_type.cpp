#include "pmi/annotation_type.h"

#include "pmi/step_dimensions.h"
#include "pmi/tolerance_types.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace
{

using EType = vrx::ExcVisuNode::EType;

struct TypeRow
{
    const char* record;
    EType type;
};

// What is no tolerance of a known type. A record of several types is of the first one here.
const TypeRow kTypes[] = {
    {"GEOMETRIC_TOLERANCE", EType::GEOMTOL_UNKNOWN},
    {"ANGULAR_LOCATION", EType::DIMENSION_ANGLE},
    {"ANGULAR_SIZE", EType::DIMENSION_ANGLE},
    {"DIMENSIONAL_SIZE_WITH_PATH", EType::DIMENSION_LENGTH},
    {"DIMENSIONAL_SIZE", EType::DIMENSION_DISTANCE},
    {"DIMENSIONAL_SIZE_WITH_DATUM_FEATURE", EType::DIMENSION_DISTANCE},
    {"DIMENSIONAL_LOCATION_WITH_PATH", EType::DIMENSION_LENGTH},
    {"DIRECTED_DIMENSIONAL_LOCATION", EType::DIMENSION_DISTANCE},
    {"DIMENSIONAL_LOCATION", EType::DIMENSION_DISTANCE},
    {"DIMENSIONAL_LOCATION_WITH_DATUM_FEATURE", EType::DIMENSION_DISTANCE},
    {"PLACED_DATUM_TARGET_FEATURE", EType::DATUM_TARGET},
    {"DATUM_TARGET", EType::DATUM_TARGET},
    {"DATUM_FEATURE", EType::DATUM_SIMPLE},
    {"DATUM", EType::DATUM_SIMPLE},
};

bool isWithin(EType type, EType first, EType last)
{
    return type >= first && type <= last;
}

// Sizes have their kinds as names, such as "toroidal minor radius".
EType sizeType(const mp::wstring& name)
{
    const auto says = [&name](const mp::wchar* word) { return name.find(word) != mp::wstring::npos; };
    return says(WIDE("diameter"))                            ? EType::DIMENSION_DIAMETER
           : says(WIDE("radius"))                            ? EType::DIMENSION_RADIUS
           : says(WIDE("length")) || says(WIDE("thickness")) ? EType::DIMENSION_LENGTH
                                                             : EType::DIMENSION_DISTANCE;
}

} // namespace

EType annotationType(const StepRecord& definition)
{
    const auto isRow = [&definition](const auto& row) { return definition.is(row.record); };
    const auto* const tolerance =
        std::find_if(std::begin(tolerance_types::kAll), std::end(tolerance_types::kAll), isRow);
    if (tolerance != std::end(tolerance_types::kAll))
    {
        return tolerance->drawn;
    }
    const auto* const found = std::find_if(std::begin(kTypes), std::end(kTypes), isRow);
    if (found == std::end(kTypes))
    {
        return EType::NOTE;
    }
    const bool isNamed =
        std::string_view(found->record).find("DIMENSIONAL_SIZE") == 0 && found->type == EType::DIMENSION_DISTANCE;
    return isNamed ? sizeType(step_dimensions::nameOf(definition)) : found->type;
}

EType annotationGroup(EType type)
{
    return isWithin(type, EType::GEOMTOLS, EType::GEOMTOL_UNKNOWN)       ? EType::GEOMTOLS
           : isWithin(type, EType::DIMENSIONS, EType::DIMENSION_UNKNOWN) ? EType::DIMENSIONS
           : isWithin(type, EType::DATUMS, EType::DATUM_UNKNOWN)         ? EType::DATUMS
                                                                         : EType::NOTES;
}
