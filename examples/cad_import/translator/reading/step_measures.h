#pragma once

#include "reading/step_records.h"

#include <StepBasic_MeasureWithUnit.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentationContext.hxx>

/// Millimetres and radians in the units of the file; 1 when it does not tell.
struct UnitFactors
{
    double length = 1;
    double angle = 1;
};

UnitFactors unitFactors(const Handle(StepRepr_RepresentationContext) & context);

/// Those of the record of a representation.
UnitFactors unitFactors(const StepRecords& records, const StepRecord& representation);

/// Millimetres in the length unit of a representation of the file, which is the unit that its areas and volumes stand
/// on as well; 1 when the file does not tell.
double lengthFactor(const Handle(StepRepr_Representation) & representation);

/// The number with its length, area or volume in millimetres; one of any other kind as it is.
double inMillimetres(const Handle(StepBasic_MeasureWithUnit) & measure, double lengthFactor);
