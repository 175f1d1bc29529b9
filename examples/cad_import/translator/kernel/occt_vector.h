#pragma once

#include "vrx_api/vrx_api_exchange_common.h"

#include <gp_XYZ.hxx>

namespace occt_vector
{

inline vrx::ExcVector3d of(const gp_XYZ& coordinates)
{
    return {coordinates.X(), coordinates.Y(), coordinates.Z()};
}

} // namespace occt_vector
