#pragma once

#include <StepGeom_Axis2Placement3d.hxx>
#include <StepVisual_DraughtingModel.hxx>
#include <StepVisual_TessellatedCurveSet.hxx>
#include <StepVisual_TessellatedGeometricSet.hxx>
#include <XSControl_WorkSession.hxx>

/// A set of tessellated items that is moved to its place.
class PlacedTessellatedSet : public StepVisual_TessellatedGeometricSet
{
public:
    Handle(StepGeom_Axis2Placement3d) place; // null in a damaged file

    DEFINE_STANDARD_RTTI_INLINE(PlacedTessellatedSet, StepVisual_TessellatedGeometricSet)
};

/// A set of triangles, such as those of a filled letter, as the strips that go around it.
class OutlinedSurfaceSet : public StepVisual_TessellatedCurveSet
{
    DEFINE_STANDARD_RTTI_INLINE(OutlinedSurfaceSet, StepVisual_TessellatedCurveSet)
};

/// A model of annotations that is a representation of shapes as well.
class ShapedDraughtingModel : public StepVisual_DraughtingModel
{
    DEFINE_STANDARD_RTTI_INLINE(ShapedDraughtingModel, StepVisual_DraughtingModel)
};

/// Has the session read the entities above, which the kernel does not know by itself. To be called before a file is
/// read.
void teachEntities(XSControl_WorkSession& session);
