#include "pmi/annotation_type.h"

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

// A record of several types is of the first one here.
const TypeRow kTypes[] = {
    {"ANGULARITY_TOLERANCE", EType::GEOMTOL_ANGULARITY},
    {"CIRCULAR_RUNOUT_TOLERANCE", EType::GEOMTOL_RUNOUT_CIRCULAR},
    {"COAXIALITY_TOLERANCE", EType::GEOMTOL_CONCENTRICITY},
    {"CONCENTRICITY_TOLERANCE", EType::GEOMTOL_CONCENTRICITY},
    {"CYLINDRICITY_TOLERANCE", EType::GEOMTOL_CYLINDRICITY},
    {"FLATNESS_TOLERANCE", EType::GEOMTOL_FLATNESS},
    {"LINE_PROFILE_TOLERANCE", EType::GEOMTOL_PROFILE_LINE},
    {"PARALLELISM_TOLERANCE", EType::GEOMTOL_PARALLELISM},
    {"PERPENDICULARITY_TOLERANCE", EType::GEOMTOL_PERPENDICULARITY},
    {"POSITION_TOLERANCE", EType::GEOMTOL_POSITION},
    {"ROUNDNESS_TOLERANCE", EType::GEOMTOL_CIRCULARITY},
    {"STRAIGHTNESS_TOLERANCE", EType::GEOMTOL_STRAIGHTNESS},
    {"SURFACE_PROFILE_TOLERANCE", EType::GEOMTOL_PROFILE_SURFACE},
    {"SYMMETRY_TOLERANCE", EType::GEOMTOL_SYMMETRY},
    {"TOTAL_RUNOUT_TOLERANCE", EType::GEOMTOL_RUNOUT_TOTAL},
    {"GEOMETRIC_TOLERANCE", EType::GEOMTOL_UNKNOWN},
    {"ANGULAR_LOCATION", EType::DIMENSION_ANGLE},
    {"ANGULAR_SIZE", EType::DIMENSION_ANGLE},
    {"DIMENSIONAL_SIZE_WITH_PATH", EType::DIMENSION_LENGTH},
    {"DIMENSIONAL_SIZE", EType::DIMENSION_DISTANCE},
    {"DIMENSIONAL_LOCATION_WITH_PATH", EType::DIMENSION_LENGTH},
    {"DIRECTED_DIMENSIONAL_LOCATION", EType::DIMENSION_DISTANCE},
    {"DIMENSIONAL_LOCATION", EType::DIMENSION_DISTANCE},
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
    const auto* const found = std::find_if(std::begin(kTypes), std::end(kTypes),
                                           [&definition](const TypeRow& row) { return definition.is(row.record); });
    if (found == std::end(kTypes))
    {
        return EType::NOTE;
    }
    return found->record == std::string_view("DIMENSIONAL_SIZE") ? sizeType(definition.as("DIMENSIONAL_SIZE").text(1))
                                                                 : found->type;
}

EType annotationGroup(EType type)
{
    return isWithin(type, EType::GEOMTOLS, EType::GEOMTOL_UNKNOWN)       ? EType::GEOMTOLS
           : isWithin(type, EType::DIMENSIONS, EType::DIMENSION_UNKNOWN) ? EType::DIMENSIONS
           : isWithin(type, EType::DATUMS, EType::DATUM_UNKNOWN)         ? EType::DATUMS
                                                                         : EType::NOTES;
}

bool isDimensionalSize(const StepRecord& record)
{
    return record.is("DIMENSIONAL_SIZE") || record.is("DIMENSIONAL_SIZE_WITH_PATH") || record.is("ANGULAR_SIZE");
}
