#pragma once

#include "mp/wide.h"
#include "pmi/drawing.h"
#include "reading/step_records.h"
#include "vrx_api/vrx_api_exchange_common.h"

#include <gp_Ax3.hxx>

#include <cstdint>
#include <optional>
#include <vector>

struct CadModel;
class ProductBlocks;

/// An annotation as a STEP file draws it, in millimetres and in the coordinates of the product that it tells of.
struct DrawnAnnotation
{
    /// The draughting callout, or the annotation occurrence that stands in none.
    StepRecord record;
    mp::wstring name;
    /// What it presents: dimensions, tolerances, datums and shape aspects; first what the file links as presented.
    std::vector<StepRecord> about;
    /// The plane of the file in which it is, if the file tells: it is read from the side to which the axis points. The
    /// drawing is parallel to it, but many writers leave the origin elsewhere.
    std::optional<gp_Ax3> plane;
    Drawing drawing;
    vrx::ExcColor color; // if the file tells
    /// The product definition of which it tells, or none.
    StepRecord product;
    /// The block of that product, or else the only one at the top; 0 when there is none.
    std::uint64_t block = 0;
};

/// All annotations of a STEP file whose PMI was kept, also those of which nothing is drawn.
std::vector<DrawnAnnotation> drawnAnnotations(const CadModel& model, const ProductBlocks& blocks);

/// The callouts and occurrences that an annotation's record consists of, with the record itself.
std::vector<StepRecord> annotationParts(const StepRecord& record);
