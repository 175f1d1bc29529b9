#include "reading/tessellated_annotations.h"

#include "reading/taught_entities.h"

#include <Geom_Axis2Placement.hxx>
#include <StepGeom_CartesianPoint.hxx>
#include <StepGeom_Direction.hxx>
#include <StepToGeom.hxx>
#include <StepVisual_CoordinatesList.hxx>
#include <TColStd_HSequenceOfInteger.hxx>
#include <TColgp_HArray1OfXYZ.hxx>
#include <gp_Ax3.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>
#include <vector>

namespace
{

using ItemArray = StepVisual_Array1OfTessellatedItem;
using StripVector = StepVisual_VectorOfHSequenceOfInteger;

// The kernel takes no placement of which a part is missing, as in a damaged file.
bool isWhole(const StepGeom_Axis2Placement3d& place)
{
    const auto hasNumbers = [](const Handle(StepGeom_Direction) & direction) {
        return !direction.IsNull() && !direction->DirectionRatios().IsNull();
    };
    return !place.Location().IsNull() && place.Location()->NbCoordinates() == 3 &&
           (!place.HasAxis() || hasNumbers(place.Axis())) &&
           (!place.HasRefDirection() || hasNumbers(place.RefDirection()));
}

// In the length unit of the file, which is not the kernel's before the transfer.
gp_Trsf transformation(const Handle(StepGeom_Axis2Placement3d) & place)
{
    gp_Trsf result;
    const Handle(Geom_Axis2Placement) axes =
        !place.IsNull() && isWhole(*place) ? StepToGeom::MakeAxis2Placement(place) : nullptr;
    if (!axes.IsNull())
    {
        gp_Ax3 frame(axes->Ax2());
        const Handle(StepGeom_CartesianPoint) origin = place->Location();
        frame.SetLocation({origin->CoordinatesValue(1), origin->CoordinatesValue(2), origin->CoordinatesValue(3)});
        result.SetTransformation(frame, gp_Ax3());
    }
    return result;
}

// Adds the strips of a set to those of `strips`, and their points to those of `points`. Strips of points that are not
// there are left out.
void append(const StepVisual_TessellatedCurveSet& set, StripVector& strips, std::vector<gp_XYZ>& points)
{
    const Handle(TColgp_HArray1OfXYZ) own = set.CoordList().IsNull() ? nullptr : set.CoordList()->Points();
    if (own.IsNull() || set.Curves().IsNull())
    {
        return;
    }
    const int offset = static_cast<int>(points.size());
    for (const Handle(TColStd_HSequenceOfInteger) & indices : *set.Curves())
    {
        Handle(TColStd_HSequenceOfInteger) strip = new TColStd_HSequenceOfInteger;
        for (const int index : *indices)
        {
            if (index >= 1 && index <= own->Length())
            {
                strip->Append(offset + index);
            }
        }
        if (strip->Length() == indices->Length())
        {
            strips.Append(strip);
        }
    }
    points.insert(points.end(), own->begin(), own->end());
}

void gatherStrips(StepVisual_TessellatedGeometricSet& set, const gp_Trsf& place)
{
    const NCollection_Handle<ItemArray> items = set.Items();
    NCollection_Handle<StripVector> strips = new StripVector;
    std::vector<gp_XYZ> points;
    for (int i = 1; !items.IsNull() && i <= items->Length(); ++i)
    {
        const auto curves = Handle(StepVisual_TessellatedCurveSet)::DownCast(items->Value(i));
        if (!curves.IsNull())
        {
            append(*curves, *strips, points);
        }
    }
    if (points.empty())
    {
        return;
    }
    Handle(TColgp_HArray1OfXYZ) placed = new TColgp_HArray1OfXYZ(1, static_cast<int>(points.size()));
    std::transform(points.begin(), points.end(), placed->begin(), [&](gp_XYZ point) {
        place.Transforms(point);
        return point;
    });
    Handle(StepVisual_CoordinatesList) coordinates = new StepVisual_CoordinatesList;
    coordinates->Init(set.Name(), placed);
    Handle(StepVisual_TessellatedCurveSet) curves = new StepVisual_TessellatedCurveSet;
    curves->Init(set.Name(), coordinates, strips);
    NCollection_Handle<ItemArray> one = new ItemArray(1, 1);
    one->SetValue(1, curves);
    set.Init(set.Name(), one);
}

} // namespace

void gatherTessellatedAnnotations(const Interface_InterfaceModel& entities)
{
    for (int i = 1; i <= entities.NbEntities(); ++i)
    {
        const auto set = Handle(StepVisual_TessellatedGeometricSet)::DownCast(entities.Value(i));
        const auto placed = Handle(PlacedTessellatedSet)::DownCast(set);
        if (!set.IsNull())
        {
            gatherStrips(*set, placed.IsNull() ? gp_Trsf() : transformation(placed->place));
        }
    }
}
