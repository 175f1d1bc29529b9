#include "features/face_surface.h"

#include <BRepAdaptor_Surface.hxx>
#include <Standard_Failure.hxx>
#include <gp_Cone.hxx>
#include <gp_Cylinder.hxx>
#include <gp_Lin.hxx>
#include <gp_Pln.hxx>
#include <gp_Sphere.hxx>
#include <gp_Torus.hxx>

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{

using Kind = FaceSurface::Kind;

const int kSamples = 5;              // along either parameter of a surface of another form
const double kFit = 1e-5;            // how far its points may lie from the plane, ... found, by the size of the face
const double kLeastCurvature = 1e-3; // of the normals of a face, that an axis can be found from

struct Sample
{
    gp_Pnt point;
    gp_Vec normal; // outwards from the solid, of length 1
};

bool isFinite(double value)
{
    return std::abs(value) < 1e50;
}

// False at a point without a normal.
bool sampleAt(const BRepAdaptor_Surface& surface, bool isReversed, double u, double v, Sample& sample)
{
    gp_Vec alongU;
    gp_Vec alongV;
    surface.D1(u, v, sample.point, alongU, alongV);
    sample.normal = alongU.Crossed(alongV);
    const double size = sample.normal.Magnitude();
    if (!(size > 1e-12 * (alongU.SquareMagnitude() + alongV.SquareMagnitude())) || !isFinite(size))
    {
        return false;
    }
    sample.normal /= isReversed ? -size : size;
    return true;
}

std::vector<Sample> samplesOf(const BRepAdaptor_Surface& surface, bool isReversed, int count)
{
    std::vector<Sample> samples;
    for (int i = 1; i <= count; ++i)
    {
        for (int j = 1; j <= count; ++j)
        {
            const double u = static_cast<double>(i) / (count + 1);
            const double v = static_cast<double>(j) / (count + 1);
            Sample sample;
            if (sampleAt(surface, isReversed, surface.FirstUParameter() * (1 - u) + surface.LastUParameter() * u,
                         surface.FirstVParameter() * (1 - v) + surface.LastVParameter() * v, sample))
            {
                samples.push_back(sample);
            }
        }
    }
    return samples;
}

gp_Vec across(const gp_Vec& vector, const gp_Vec& axis)
{
    return vector - axis * vector.Dot(axis);
}

// The sample whose normal, after this is done to it, is most square to that of the first one.
template <class Change>
const Sample& mostSquare(const std::vector<Sample>& samples, const Change& change)
{
    const gp_Vec first = change(samples.front().normal);
    return *std::min_element(samples.begin(), samples.end(), [&](const Sample& left, const Sample& right) {
        return std::abs(first.Dot(change(left.normal))) < std::abs(first.Dot(change(right.normal)));
    });
}

// The point at which the lines along the normals of two samples are closest to each other, on the second one.
gp_Pnt meetingOf(const Sample& left, const Sample& right, const gp_Vec& leftNormal, const gp_Vec& rightNormal)
{
    const gp_Vec between(left.point, right.point);
    const double cosine = leftNormal.Dot(rightNormal);
    const double way = (cosine * between.Dot(leftNormal) - between.Dot(rightNormal)) / (1 - cosine * cosine);
    return right.point.Translated(rightNormal * way);
}

bool setPlane(FaceSurface& surface, const std::vector<Sample>& samples, double size)
{
    const Sample& first = samples.front();
    for (const Sample& sample : samples)
    {
        if (sample.normal.Crossed(first.normal).Magnitude() > kSameDirection ||
            std::abs(gp_Vec(first.point, sample.point).Dot(first.normal)) > kFit * size)
        {
            return false;
        }
    }
    surface.kind = Kind::Plane;
    surface.axis = gp_Ax1(first.point, first.normal);
    return true;
}

bool setSphere(FaceSurface& surface, const std::vector<Sample>& samples, double size)
{
    const Sample& other = mostSquare(samples, [](const gp_Vec& normal) { return normal; });
    const gp_Pnt centre = meetingOf(samples.front(), other, samples.front().normal, other.normal);
    const double radius = gp_Vec(centre, other.point).Dot(other.normal);
    for (const Sample& sample : samples)
    {
        if (sample.point.Distance(centre.Translated(sample.normal * radius)) > kFit * size)
        {
            return false;
        }
    }
    surface.kind = Kind::Sphere;
    surface.axis.SetLocation(centre);
    surface.radius = std::abs(radius);
    surface.isInner = radius < 0;
    return true;
}

// The normals of a cylinder or a cone have one angle to its axis.
bool setRound(FaceSurface& surface, const std::vector<Sample>& samples, double size)
{
    const Sample& first = samples.front();
    const Sample& partner = mostSquare(samples, [](const gp_Vec& normal) { return normal; });
    gp_Vec axis;
    for (const Sample& sample : samples)
    {
        const gp_Vec normal = (partner.normal - first.normal).Crossed(sample.normal - first.normal);
        axis = normal.Magnitude() > axis.Magnitude() ? normal : axis;
    }
    if (axis.Magnitude() < kLeastCurvature * kLeastCurvature)
    {
        return false;
    }
    axis.Normalize();
    const double rise = first.normal.Dot(axis);
    if (1 - rise * rise < kLeastCurvature)
    {
        return false;
    }
    const double flat = std::sqrt(1 - rise * rise);
    const Sample& other = mostSquare(samples, [&axis](const gp_Vec& normal) { return across(normal, axis); });
    if (across(first.normal, axis).Crossed(across(other.normal, axis)).Magnitude() < kLeastCurvature)
    {
        return false;
    }
    const gp_Pnt centre =
        meetingOf({first.point.Translated(-axis * gp_Vec(other.point, first.point).Dot(axis)), {}}, other,
                  across(first.normal, axis).Normalized(), across(other.normal, axis).Normalized());
    const double slope = std::abs(rise) < kSameDirection ? 0 : -rise / flat;
    const double radius = gp_Vec(centre, other.point).Dot(across(other.normal, axis) / flat); // < 0: seen from inside
    for (const Sample& sample : samples)
    {
        const double along = gp_Vec(centre, sample.point).Dot(axis);
        const gp_Vec outwards = across(sample.normal, axis) / flat;
        const gp_Pnt middle = centre.Translated(axis * along);
        if (std::abs(sample.normal.Dot(axis) - rise) > kSameDirection ||
            sample.point.Distance(middle.Translated(outwards * (radius + slope * along))) > kFit * size)
        {
            return false;
        }
    }
    surface.kind = slope == 0 ? Kind::Cylinder : Kind::Cone;
    surface.axis = gp_Ax1(centre, axis);
    surface.radius = std::abs(radius);
    surface.isInner = radius < 0;
    surface.slope = radius < 0 ? -slope : slope;
    return true;
}

// A surface of revolution, a B-spline surface and the like may be one of those.
FaceSurface recognised(const std::vector<Sample>& samples)
{
    FaceSurface surface;
    if (samples.size() < kSamples)
    {
        return surface;
    }
    const Sample& first = samples.front();
    double size = 0;
    gp_Vec turn;
    for (const Sample& sample : samples)
    {
        size = std::max(size, first.point.Distance(sample.point));
        const gp_Vec its = first.normal.Crossed(sample.normal);
        turn = its.Magnitude() > turn.Magnitude() ? its : turn;
    }
    if (isFinite(size) && !setPlane(surface, samples, size) && turn.Magnitude() > kLeastCurvature &&
        !setRound(surface, samples, size))
    {
        setSphere(surface, samples, size);
    }
    return surface;
}

FaceSurface recognised(const TopoDS_Face& face)
{
    const BRepAdaptor_Surface adaptor(face);
    const bool isReversed = face.Orientation() == TopAbs_REVERSED;
    FaceSurface surface;
    if (!isFinite(adaptor.FirstUParameter()) || !isFinite(adaptor.LastUParameter()) ||
        !isFinite(adaptor.FirstVParameter()) || !isFinite(adaptor.LastVParameter()))
    {
        return surface;
    }
    switch (adaptor.GetType())
    {
    case GeomAbs_Plane:
        surface.kind = Kind::Plane;
        break;
    case GeomAbs_Cylinder:
        surface.kind = Kind::Cylinder;
        surface.axis = adaptor.Cylinder().Axis();
        surface.radius = adaptor.Cylinder().Radius();
        break;
    case GeomAbs_Cone:
        surface.kind = Kind::Cone;
        surface.axis = adaptor.Cone().Axis();
        surface.radius = adaptor.Cone().RefRadius();
        surface.slope = std::tan(adaptor.Cone().SemiAngle());
        break;
    case GeomAbs_Sphere:
        surface.kind = Kind::Sphere;
        surface.axis.SetLocation(adaptor.Sphere().Location());
        surface.radius = adaptor.Sphere().Radius();
        break;
    case GeomAbs_Torus:
        surface.kind = Kind::Torus;
        surface.axis = adaptor.Torus().Axis();
        surface.radius = adaptor.Torus().MajorRadius();
        surface.minorRadius = adaptor.Torus().MinorRadius();
        return surface;
    default:
        return recognised(samplesOf(adaptor, isReversed, kSamples));
    }
    const std::vector<Sample> middle = samplesOf(adaptor, isReversed, 1);
    if (middle.empty() || !isFinite(surface.radius) || surface.radius < 0)
    {
        return {};
    }
    const gp_Vec& normal = middle.front().normal;
    gp_Vec outwards(surface.axis.Location(), middle.front().point);
    switch (surface.kind)
    {
    case Kind::Plane:
        surface.axis = gp_Ax1(middle.front().point, normal);
        break;
    case Kind::Sphere:
        surface.isInner = outwards.Dot(normal) < 0;
        break;
    default:
        outwards = across(outwards, gp_Vec(surface.axis.Direction()));
        surface.isInner = outwards.Dot(normal) < 0;
        break;
    }
    return surface;
}

} // namespace

double FaceSurface::radiusAt(const gp_Pnt& point) const
{
    return std::abs(radius + slope * gp_Vec(axis.Location(), point).Dot(gp_Vec(axis.Direction())));
}

FaceSurface surfaceOf(const TopoDS_Face& face)
{
    try
    {
        return recognised(face);
    }
    catch (const Standard_Failure&) // a damaged one
    {
        return {};
    }
}

bool areCoaxial(const gp_Ax1& left, const gp_Ax1& right, double radius, double tolerance)
{
    return left.Direction().IsParallel(right.Direction(), kSameDirection) &&
           gp_Lin(left).Distance(right.Location()) <= tolerance * radius;
}

bool areOne(const FaceSurface& left, const FaceSurface& right)
{
    const double tolerance = kSameLength * left.radius;
    if (left.kind != right.kind || left.isInner != right.isInner)
    {
        return false;
    }
    switch (left.kind)
    {
    case Kind::Plane:
        return left.axis.Direction().IsEqual(right.axis.Direction(), kSameDirection);
    case Kind::Cylinder:
        return std::abs(left.radius - right.radius) <= tolerance && areCoaxial(left.axis, right.axis, left.radius);
    case Kind::Cone:
    {
        const double turned = left.axis.Direction().Dot(right.axis.Direction()) < 0 ? -1 : 1;
        return std::abs(left.slope - turned * right.slope) <= kSameDirection &&
               areCoaxial(left.axis, right.axis, std::max(left.radius, right.radius));
    }
    case Kind::Sphere:
        return std::abs(left.radius - right.radius) <= tolerance &&
               left.axis.Location().Distance(right.axis.Location()) <= kSameAxis * left.radius;
    case Kind::Torus:
        return std::abs(left.radius - right.radius) <= tolerance &&
               std::abs(left.minorRadius - right.minorRadius) <= kSameLength * left.minorRadius &&
               areCoaxial(left.axis, right.axis, left.radius) &&
               left.axis.Location().Distance(right.axis.Location()) <= kSameAxis * left.radius;
    default:
        return false;
    }
}
