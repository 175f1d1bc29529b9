#pragma once

#include "vrx_api/vrx_api_exchange_mechanical.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

/// The types of geometric tolerances in STEP files: as a feature control frame, and as a drawn annotation.
struct ToleranceTypeRow
{
    const char* record;
    vrx::ExcPMIGDT::EToleranceType type;
    vrx::ExcVisuNode::EType drawn;
};

namespace tolerance_types
{

using EType = vrx::ExcPMIGDT::EToleranceType;
using EDrawn = vrx::ExcVisuNode::EType;

inline const ToleranceTypeRow kAll[] = {
    {"ANGULARITY_TOLERANCE", EType::OrientationAngularity, EDrawn::GEOMTOL_ANGULARITY},
    {"CIRCULAR_RUNOUT_TOLERANCE", EType::RunOutCircular, EDrawn::GEOMTOL_RUNOUT_CIRCULAR},
    {"COAXIALITY_TOLERANCE", EType::LocationCoaxiality, EDrawn::GEOMTOL_CONCENTRICITY},
    {"CONCENTRICITY_TOLERANCE", EType::LocationConcentricity, EDrawn::GEOMTOL_CONCENTRICITY},
    {"CYLINDRICITY_TOLERANCE", EType::FormCylindricity, EDrawn::GEOMTOL_CYLINDRICITY},
    {"FLATNESS_TOLERANCE", EType::FormFlatness, EDrawn::GEOMTOL_FLATNESS},
    {"LINE_PROFILE_TOLERANCE", EType::FormProfileAnyLine, EDrawn::GEOMTOL_PROFILE_LINE},
    {"PARALLELISM_TOLERANCE", EType::OrientationParallelism, EDrawn::GEOMTOL_PARALLELISM},
    {"PERPENDICULARITY_TOLERANCE", EType::OrientationPerpendicularity, EDrawn::GEOMTOL_PERPENDICULARITY},
    {"POSITION_TOLERANCE", EType::LocationTruePosition, EDrawn::GEOMTOL_POSITION},
    {"ROUNDNESS_TOLERANCE", EType::FormCircularity, EDrawn::GEOMTOL_CIRCULARITY},
    {"STRAIGHTNESS_TOLERANCE", EType::FormStraightness, EDrawn::GEOMTOL_STRAIGHTNESS},
    {"SURFACE_PROFILE_TOLERANCE", EType::FormProfileAnySurface, EDrawn::GEOMTOL_PROFILE_SURFACE},
    {"SYMMETRY_TOLERANCE", EType::LocationSymmetry, EDrawn::GEOMTOL_SYMMETRY},
    {"TOTAL_RUNOUT_TOLERANCE", EType::RunOutTotal, EDrawn::GEOMTOL_RUNOUT_TOTAL},
};

} // namespace tolerance_types
