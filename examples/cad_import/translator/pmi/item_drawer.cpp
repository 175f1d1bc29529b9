#include "pmi/item_drawer.h"

#include "looks/tessellation.h"
#include "pmi/item_parameters.h"
#include "reading/step_axes.h"

#include <GeomAdaptor_Curve.hxx>
#include <Geom_CartesianPoint.hxx>
#include <Geom_Curve.hxx>
#include <Precision.hxx>
#include <Standard_Failure.hxx>
#include <StepData_GlobalFactors.hxx>
#include <StepGeom_Axis2Placement3d.hxx>
#include <StepGeom_BSplineCurve.hxx>
#include <StepGeom_CartesianPoint.hxx>
#include <StepGeom_CompositeCurve.hxx>
#include <StepGeom_CompositeCurveSegment.hxx>
#include <StepGeom_Conic.hxx>
#include <StepGeom_HArray1OfCartesianPoint.hxx>
#include <StepGeom_Line.hxx>
#include <StepGeom_Polyline.hxx>
#include <StepGeom_TrimmedCurve.hxx>
#include <StepGeom_Vector.hxx>
#include <StepToGeom.hxx>
#include <StepVisual_CoordinatesList.hxx>
#include <TColgp_HArray1OfXYZ.hxx>

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace
{

const int kDeepest = 8; // curves made of curves

gp_Trsf toSpace(const gp_Ax3& axes)
{
    gp_Trsf result;
    result.SetTransformation(axes, gp_Ax3());
    return result;
}

// The factors that the kernel applies to the geometry that it makes of a file.
class KernelUnits
{
public:
    explicit KernelUnits(const UnitFactors& units)
        : m_length(factors().LengthFactor())
        , m_angle(factors().PlaneAngleFactor())
        , m_solidAngle(factors().SolidAngleFactor())
    {
        factors().InitializeFactors(units.length, units.angle, 1);
    }
    KernelUnits(const KernelUnits&) = delete;
    KernelUnits& operator=(const KernelUnits&) = delete;
    ~KernelUnits() { factors().InitializeFactors(m_length, m_angle, m_solidAngle); }

private:
    static StepData_GlobalFactors& factors() { return StepData_GlobalFactors::Intance(); }

    double m_length;
    double m_angle;
    double m_solidAngle;
};

bool isWhole(const Handle(StepGeom_HArray1OfCartesianPoint) & points)
{
    return !points.IsNull() && std::all_of(points->begin(), points->end(), [](const auto& point) {
        return !point.IsNull() && point->NbCoordinates() == 3;
    });
}

// The kernel crashes on curves of which a part is missing, as in a damaged file.
bool isWhole(const Handle(StepGeom_Curve) & curve, int depth = 0)
{
    if (const auto polyline = Handle(StepGeom_Polyline)::DownCast(curve))
    {
        return isWhole(polyline->Points());
    }
    if (const auto spline = Handle(StepGeom_BSplineCurve)::DownCast(curve))
    {
        return isWhole(spline->ControlPointsList());
    }
    if (const auto line = Handle(StepGeom_Line)::DownCast(curve))
    {
        return !line->Pnt().IsNull() && !line->Dir().IsNull() && !line->Dir()->Orientation().IsNull();
    }
    if (const auto conic = Handle(StepGeom_Conic)::DownCast(curve))
    {
        return stepAxes(conic->Position().Axis2Placement3d(), 1).has_value();
    }
    if (const auto trimmed = Handle(StepGeom_TrimmedCurve)::DownCast(curve))
    {
        return depth < kDeepest && !trimmed->Trim1().IsNull() && !trimmed->Trim2().IsNull() &&
               isWhole(trimmed->BasisCurve(), depth + 1);
    }
    return false;
}

std::vector<gp_Pnt> pointsOf(const Handle(StepGeom_Curve) & curve, int depth = 0);

std::vector<gp_Pnt> pointsOf(const StepGeom_CompositeCurve& curve, int depth)
{
    std::vector<gp_Pnt> points;
    for (int i = 1; !curve.Segments().IsNull() && i <= curve.NbSegments(); ++i)
    {
        const Handle(StepGeom_CompositeCurveSegment) segment = curve.SegmentsValue(i);
        std::vector<gp_Pnt> own = segment.IsNull() ? std::vector<gp_Pnt>() : pointsOf(segment->ParentCurve(), depth);
        if (!segment.IsNull() && !segment->SameSense())
        {
            std::reverse(own.begin(), own.end());
        }
        const bool follows =
            !points.empty() && !own.empty() && points.back().IsEqual(own.front(), Precision::Confusion());
        points.insert(points.end(), own.begin() + (follows ? 1 : 0), own.end());
    }
    return points;
}

std::vector<gp_Pnt> pointsOf(const Handle(StepGeom_Curve) & curve, int depth)
{
    if (const auto composite = Handle(StepGeom_CompositeCurve)::DownCast(curve))
    {
        return depth < kDeepest ? pointsOf(*composite, depth + 1) : std::vector<gp_Pnt>();
    }
    if (!isWhole(curve))
    {
        return {};
    }
    if (const auto polyline = Handle(StepGeom_Polyline)::DownCast(curve))
    {
        std::vector<gp_Pnt> points;
        for (const Handle(StepGeom_CartesianPoint) & point : *polyline->Points())
        {
            points.push_back(StepToGeom::MakeCartesianPoint(point)->Pnt());
        }
        return points;
    }
    const Handle(Geom_Curve) whole = StepToGeom::MakeCurve(curve);
    const bool ends = !whole.IsNull() && !Precision::IsInfinite(whole->FirstParameter()) &&
                      !Precision::IsInfinite(whole->LastParameter());
    return ends ? tessellation::points(GeomAdaptor_Curve(whole)) : std::vector<gp_Pnt>();
}

// The triangles of strips: each further point is one with the two before it, every other one turned.
template <class Take>
void strip(const std::vector<double>& points, const Take& take)
{
    for (std::size_t i = 2; i < points.size(); ++i)
    {
        const bool odd = i % 2 == 1;
        take(points[odd ? i - 1 : i - 2], points[odd ? i - 2 : i - 1], points[i]);
    }
}

template <class Take>
void fan(const std::vector<double>& points, const Take& take)
{
    for (std::size_t i = 2; i < points.size(); ++i)
    {
        take(points[0], points[i - 1], points[i]);
    }
}

} // namespace

// A list of coordinates, with numbers from 1, where an item has it.
class ItemDrawer::Points
{
public:
    Points(const ItemDrawer& drawer, int id, const gp_Trsf& place)
        : m_length(drawer.m_units.length)
        , m_place(place)
    {
        const auto list = drawer.m_records.entity<StepVisual_CoordinatesList>(id);
        m_points = list.IsNull() ? nullptr : list->Points();
    }

    std::optional<gp_Pnt> find(double number) const
    {
        if (m_points.IsNull() || !(number >= 1 && number <= m_points->Length()))
        {
            return std::nullopt;
        }
        const gp_XYZ& point = m_points->Value(m_points->Lower() + static_cast<int>(number) - 1);
        return gp_Pnt(point * m_length).Transformed(m_place);
    }

private:
    Handle(TColgp_HArray1OfXYZ) m_points;
    double m_length;
    gp_Trsf m_place;
};

ItemDrawer::ItemDrawer(const StepRecords& records, const UnitFactors& units, Drawing& drawing)
    : m_records(records)
    , m_units(units)
    , m_drawing(drawing)
{
}

void ItemDrawer::add(int id, const gp_Trsf& above)
{
    if (std::find(m_open.begin(), m_open.end(), id) != m_open.end())
    {
        return; // it contains itself
    }
    const StepRecord item = m_records.find(id);
    if (!item)
    {
        std::vector<gp_Pnt> points = line(m_records.entity<StepGeom_Curve>(id), above);
        if (points.size() > 1)
        {
            m_drawing.lines.push_back(std::move(points));
        }
        return;
    }
    m_open.push_back(id);
    gp_Trsf place = above;
    if (item.is("REPOSITIONED_TESSELLATED_ITEM"))
    {
        const auto axes = axesOf(item.as("REPOSITIONED_TESSELLATED_ITEM")[0].reference);
        place = axes ? above * toSpace(*axes) : above;
    }
    if (item.is("TESSELLATED_GEOMETRIC_SET"))
    {
        addAll(item_parameters::parameter(item, "TESSELLATED_GEOMETRIC_SET", 0), place);
    }
    else if (item.is("GEOMETRIC_CURVE_SET") || item.is("GEOMETRIC_SET"))
    {
        addAll(item_parameters::parameter(item, "GEOMETRIC_SET", 0), place);
    }
    else if (item.is("TESSELLATED_CURVE_SET"))
    {
        const Points points(*this, item_parameters::parameter(item, "TESSELLATED_CURVE_SET", 0).reference, place);
        for (const StepParameter& indices : item_parameters::parameter(item, "TESSELLATED_CURVE_SET", 1).list)
        {
            addLine(indices.numbers, points);
        }
    }
    else if (item.is("TESSELLATED_EDGE") || item.is("TESSELLATED_CONNECTING_EDGE"))
    {
        addLine(item_parameters::parameter(item, "TESSELLATED_EDGE", 2).numbers,
                {*this, item_parameters::parameter(item, "TESSELLATED_EDGE", 0).reference, place});
    }
    else if (item.is("COMPLEX_TRIANGULATED_SURFACE_SET") || item.is("TRIANGULATED_SURFACE_SET"))
    {
        addTriangles(item, place);
    }
    else if (item.is("ANNOTATION_FILL_AREA"))
    {
        addFilled(item_parameters::parameter(item, "ANNOTATION_FILL_AREA", 0), place);
    }
    else if (item.is("MAPPED_ITEM") || item.is("ANNOTATION_SYMBOL"))
    {
        addMapped(item, place);
    }
    m_open.pop_back();
}

void ItemDrawer::addAll(const StepParameter& ids, const gp_Trsf& place)
{
    for (const StepParameter& id : ids.list)
    {
        add(id.reference, place);
    }
}

void ItemDrawer::addMapped(const StepRecord& item, const gp_Trsf& place)
{
    const std::vector<StepRecord> maps = item_parameters::records(item, "MAPPED_ITEM", 0);
    const StepRecord map = maps.empty() ? StepRecord() : maps.front();
    const auto origin = axesOf(map[0].reference);
    const auto target = axesOf(item_parameters::parameter(item, "MAPPED_ITEM", 1).reference);
    if (origin && target)
    {
        addAll(map.next(1).as("REPRESENTATION")[1], place * toSpace(*target) * toSpace(*origin).Inverted());
    }
}

void ItemDrawer::addLine(const std::vector<double>& indices, const Points& points)
{
    std::vector<gp_Pnt> line;
    for (const double index : indices)
    {
        if (const auto point = points.find(index))
        {
            line.push_back(*point);
        }
    }
    if (line.size() > 1 && line.size() == indices.size())
    {
        m_drawing.lines.push_back(std::move(line));
    }
}

// A complex set has strips and fans of triangles, a simple one has single triangles where the other has strips. They
// refer to the points by way of a list of indices, unless that is empty.
void ItemDrawer::addTriangles(const StepRecord& set, const gp_Trsf& place)
{
    const bool complex = set.is("COMPLEX_TRIANGULATED_SURFACE_SET");
    const char* const type = complex ? "COMPLEX_TRIANGULATED_SURFACE_SET" : "TRIANGULATED_SURFACE_SET";
    const std::vector<double>& indices = item_parameters::parameter(set, type, 0, 4).numbers;
    const Points points(*this, item_parameters::parameter(set, "TESSELLATED_SURFACE_SET", 0).reference, place);
    std::map<double, std::size_t> vertices; // by the number of the point
    const auto find = [&](double index) -> std::optional<std::size_t> {
        const bool known = index >= 1 && index <= static_cast<double>(indices.size());
        const double number = indices.empty() ? index : known ? indices[static_cast<std::size_t>(index) - 1] : 0;
        const auto point = points.find(number);
        if (!point)
        {
            return std::nullopt;
        }
        const auto [vertex, isNew] = vertices.emplace(number, m_drawing.vertices.size());
        if (isNew)
        {
            m_drawing.vertices.push_back(*point);
        }
        return vertex->second;
    };
    const auto take = [&](double a, double b, double c) {
        const auto first = find(a);
        const auto second = find(b);
        const auto third = find(c);
        if (first && second && third && first != second && second != third && third != first)
        {
            m_drawing.triangles.push_back({*first, *second, *third});
        }
    };
    for (const StepParameter& numbers : item_parameters::parameter(set, type, 1, 4).list)
    {
        strip(numbers.numbers, take);
    }
    for (const StepParameter& numbers : item_parameters::parameter(set, type, 2, 4).list)
    {
        fan(numbers.numbers, take);
    }
}

void ItemDrawer::addFilled(const StepParameter& boundaries, const gp_Trsf& place)
{
    std::vector<std::vector<gp_Pnt>> lines;
    for (const StepParameter& boundary : boundaries.list)
    {
        lines.push_back(line(m_records.entity<StepGeom_Curve>(boundary.reference), place));
    }
    lines.erase(std::remove_if(lines.begin(), lines.end(), [](const auto& line) { return line.size() < 2; }),
                lines.end());
    if (!fill(lines, m_drawing))
    {
        m_drawing.lines.insert(m_drawing.lines.end(), lines.begin(), lines.end());
    }
}

std::optional<gp_Ax3> ItemDrawer::axesOf(int placement) const
{
    return stepAxes(m_records.entity<StepGeom_Axis2Placement3d>(placement), m_units.length);
}

std::vector<gp_Pnt> ItemDrawer::line(const Handle(StepGeom_Curve) & curve, const gp_Trsf& place) const
{
    std::vector<gp_Pnt> points;
    try
    {
        const KernelUnits units(m_units);
        points = pointsOf(curve);
    }
    catch (const Standard_Failure&)
    {
        return {}; // such as a circle without a radius
    }
    for (gp_Pnt& point : points)
    {
        point.Transform(place);
    }
    return points;
}
