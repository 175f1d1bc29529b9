#pragma once

#include <StepBasic_MeasureWithUnit.hxx>
#include <StepRepr_Representation.hxx>

/// Millimetres in the length unit of a representation of the file, which is the unit that its areas and volumes stand
/// on as well; 1 when the file does not tell.
double lengthFactor(const Handle(StepRepr_Representation) & representation);

/// The number with its length, area or volume in millimetres; one of any other kind as it is.
double inMillimetres(const Handle(StepBasic_MeasureWithUnit) & measure, double lengthFactor);
