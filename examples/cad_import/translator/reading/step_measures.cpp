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

double lengthFactor(const Handle(StepRepr_Representation) & representation)
{
    const Handle(StepRepr_GlobalUnitAssignedContext) context = units(representation->ContextOfItems());
    STEPConstruct_UnitContext factors;
    if (context.IsNull() || factors.ComputeFactors(context) != 0 || !factors.LengthDone())
    {
        return 1;
    }
    return factors.LengthFactor();
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
