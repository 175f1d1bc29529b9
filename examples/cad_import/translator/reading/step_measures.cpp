#include "reading/step_measures.h"

#include <STEPConstruct_UnitContext.hxx>
#include <StepBasic_MeasureValueMember.hxx>
#include <StepGeom_GeomRepContextAndGlobUnitAssCtxAndGlobUncertaintyAssCtx.hxx>
#include <StepGeom_GeometricRepresentationContextAndGlobalUnitAssignedContext.hxx>
#include <StepRepr_GlobalUnitAssignedContext.hxx>

#include <string>

namespace
{

// The kernel has one class for each mixture of contexts.
Handle(StepRepr_GlobalUnitAssignedContext) units(const Handle(StepRepr_RepresentationContext) & context)
{
    const auto exact = Handle(StepGeom_GeomRepContextAndGlobUnitAssCtxAndGlobUncertaintyAssCtx)::DownCast(context);
    if (!exact.IsNull())
    {
        return exact->GlobalUnitAssignedContext();
    }
    const auto plain = Handle(StepGeom_GeometricRepresentationContextAndGlobalUnitAssignedContext)::DownCast(context);
    if (!plain.IsNull())
    {
        return plain->GlobalUnitAssignedContext();
    }
    return Handle(StepRepr_GlobalUnitAssignedContext)::DownCast(context);
}

} // namespace

UnitFactors unitFactors(const Handle(StepRepr_RepresentationContext) & context)
{
    const Handle(StepRepr_GlobalUnitAssignedContext) assigned = units(context);
    STEPConstruct_UnitContext factors;
    UnitFactors result;
    if (!assigned.IsNull() && factors.ComputeFactors(assigned) == 0)
    {
        result.length = factors.LengthDone() ? factors.LengthFactor() : 1;
        result.angle = factors.PlaneAngleDone() ? factors.PlaneAngleFactor() : 1;
    }
    return result;
}

UnitFactors unitFactors(const StepRecords& records, const StepRecord& representation)
{
    return unitFactors(
        records.entity<StepRepr_RepresentationContext>(representation.as("REPRESENTATION")[2].reference));
}

double lengthFactor(const Handle(StepRepr_Representation) & representation)
{
    return unitFactors(representation->ContextOfItems()).length;
}

double inMillimetres(const Handle(StepBasic_MeasureWithUnit) & measure, double lengthFactor)
{
    const double value = measure->ValueComponent();
    const Handle(StepBasic_MeasureValueMember) member = measure->ValueComponentMember();
    const std::string kind = member.IsNull() || !member->HasName() ? "" : member->Name();
    if (kind == "LENGTH_MEASURE" || kind == "POSITIVE_LENGTH_MEASURE")
    {
        return value * lengthFactor;
    }
    if (kind == "AREA_MEASURE")
    {
        return value * lengthFactor * lengthFactor;
    }
    if (kind == "VOLUME_MEASURE")
    {
        return value * lengthFactor * lengthFactor * lengthFactor;
    }
    return value;
}
