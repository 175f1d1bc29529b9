#pragma once

#include "received_bodies.h"
#include "vrx_api/vrx_api_exchange_structure.h"

#include <cstddef>
#include <optional>
#include <vector>

/// A figure that a file states of a part or of one of its bodies, beside what was measured of what arrived.
struct StatedFigure
{
    enum class EWhat
    {
        Volume,
        Area,
        Centroid,
    };

    /// Kernels that integrate over the same faces agree to a millionth, and files have most digits of it. What is
    /// further apart than this is another shape, or was stated by a rough measurement.
    static constexpr double kLimit = 1e-4;

    bool agrees() const { return relative <= kLimit; }

    EWhat what = EWhat::Volume;
    std::optional<std::size_t> body; // its position; nothing: of all bodies of the part
    std::vector<double> stated;      // one number or three
    std::vector<double> found;
    double deviation = 0; // as a part of the figure; of a centroid the distance
    double relative = 0;  // the same; of a centroid the distance as a part of the size: the root of the area
};

/// All figures that a block states of its bodies, which are measured, in their order. Without bodies there are none.
std::vector<StatedFigure> statedFigures(const vrx::ExcMiscData& properties, const vrx::ExcMechanicalMiscData* data,
                                        const std::vector<ReceivedBodies::Body>& bodies);

/// The same of an assembly, as a whole.
std::vector<StatedFigure> statedFigures(const vrx::ExcMiscData& properties, const BodyFigures& assembly);

/// Whether there is a figure to compare.
bool statesFigures(const vrx::ExcMiscData& properties, const vrx::ExcMechanicalMiscData* data = nullptr);
