#pragma once

#include "vrx_api/vrx_api_exchange_common.h"

#include <TopLoc_Location.hxx>
#include <gp_Trsf.hxx>

#include <cstddef>

namespace occt_transformation
{

/// A point p of what is placed is at affine * p + translation in what holds it: p and the translation are columns, and
/// each row of the affine part is a row of the matrix.
inline vrx::ExcTransformation of(const TopLoc_Location& location)
{
    const gp_Trsf matrix = location.Transformation();
    vrx::ExcTransformation result;
    for (int row = 0; row < 3; ++row)
    {
        for (int column = 0; column < 3; ++column)
        {
            result.affine()[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] =
                matrix.Value(row + 1, column + 1);
        }
        result.translation()[static_cast<std::size_t>(row)] = matrix.Value(row + 1, 4);
    }
    return result;
}

} // namespace occt_transformation
