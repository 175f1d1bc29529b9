#include "features/hole_finder.h"

#include "features/hole_bores.h"
#include "features/hole_profile.h"

#include <BRepClass3d.hxx>
#include <Standard_Failure.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Shell.hxx>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace
{

using Kind = FaceSurface::Kind;

// A bottom of a form that is not known lies no deeper than this behind the walls, in radii.
const double kDeepestBottom = 1.5;

class HoleFinder
{
public:
    explicit HoleFinder(const TopoDS_Shape& solid)
        : m_regions(BRepClass3d::OuterShell(TopoDS::Solid(solid))) // what is closed in by another shell has no opening
        , m_rings(m_regions)
        , m_lines(solid)
        , m_bores(m_regions, m_rings, m_lines)
    {
    }

    SolidHoles find() const;

private:
    const FaceSurface& surfaceOf(std::size_t region) const { return m_regions.all()[region].surface; }
    bool isHollow(const HoleBore& bore) const;
    Hole holeOf(const HoleBore& bore) const;
    void addFaces(std::size_t region, std::vector<TopoDS_Face>& faces) const;

    FaceRegions m_regions;
    HoleRings m_rings;
    SolidLines m_lines;
    HoleBores m_bores;
};

std::vector<TopoDS_Face> facesOf(const std::vector<FaceRegions::Neighbour>& neighbours)
{
    std::vector<TopoDS_Face> faces;
    std::transform(neighbours.begin(), neighbours.end(), std::back_inserter(faces),
                   [](const FaceRegions::Neighbour& neighbour) { return neighbour.face; });
    return faces;
}

// False when there is something else within the narrowest wall, such as the hub within the rim of a wheel. It is looked
// for across the middle, askew since most things lie along the axes.
bool HoleFinder::isHollow(const HoleBore& bore) const
{
    const RingPass& pass = bore.chain[bore.narrowest];
    const double middle = (bore.along(m_bores.entryPlace(pass)) + bore.along(m_bores.exitPlace(pass))) / 2;
    const gp_Pnt centre = bore.axis.Location().Translated(gp_Vec(bore.axis.Direction()) * middle);
    const gp_Ax2 frame(centre, bore.axis.Direction());
    const gp_Vec askew = gp_Vec(frame.XDirection()) * 0.79 + gp_Vec(frame.YDirection()) * 0.61;
    const double within = 0.99 * surfaceOf(pass.region).radiusAt(centre);
    return m_lines.of(gp_Ax1(centre, gp_Dir(askew)), -within, within).empty();
}

void HoleFinder::addFaces(std::size_t region, std::vector<TopoDS_Face>& faces) const
{
    const std::vector<TopoDS_Face>& own = m_regions.all()[region].faces;
    faces.insert(faces.end(), own.begin(), own.end());
}

Hole HoleFinder::holeOf(const HoleBore& bore) const
{
    const RingChain& chain = bore.chain;
    Hole hole;
    hole.center = bore.axis.Location();
    hole.direction = bore.axis.Direction();
    hole.opening = facesOf(m_rings.end(chain.front().entry).neighbours);
    hole.depth = bore.along(m_bores.exitPlace(chain.back()));

    std::vector<HoleSection> sections;
    for (const RingPass& pass : chain)
    {
        const int step = m_rings.end(pass.entry).step;
        const FaceSurface& surface = surfaceOf(pass.region);
        if (m_rings.isWall(pass.region))
        {
            sections.push_back({surface.kind == Kind::Cone, bore.along(m_bores.entryPlace(pass)),
                                bore.along(m_bores.exitPlace(pass)), surface.radiusAt(m_bores.entryPlace(pass)),
                                surface.radiusAt(m_bores.exitPlace(pass))});
        }
        if (step >= 0)
        {
            addFaces(static_cast<std::size_t>(step), hole.walls);
        }
        addFaces(pass.region, pass.exit < 0 ? hole.bottom : hole.walls);
    }

    if (m_bores.isClosed(chain.back().exit))
    {
        if (chain.back().exit >= 0)
        {
            addFaces(static_cast<std::size_t>(m_rings.end(chain.back().exit).bottom), hole.bottom);
        }
    }
    else
    {
        hole.exit = facesOf(m_rings.end(chain.back().exit).neighbours);
        const double margin = kSameAxis * bore.radius;
        hole.end = bore.isFree(hole.depth + margin, std::numeric_limits<double>::max()) ? Hole::End::UpToLast
                                                                                        : Hole::End::UpToNext;
        for (const SolidLines::Crossing& crossing : bore.crossings)
        {
            const bool isExit = std::any_of(hole.exit.begin(), hole.exit.end(),
                                            [&](const TopoDS_Face& face) { return face.IsSame(crossing.face); });
            if (isExit && crossing.along > hole.depth - bore.radius &&
                crossing.along < hole.depth + kDeepestBottom * bore.radius)
            {
                hole.end = Hole::End::Blind;
            }
        }
        if (hole.end == Hole::End::Blind)
        {
            hole.bottom.swap(hole.exit);
        }
    }
    setProfile(hole, sections);
    if (hole.tipAngle > 0)
    {
        hole.depth = sections.back().begin;
    }
    return hole;
}

bool isFinite(const gp_Pnt& point)
{
    return std::isfinite(point.X() + point.Y() + point.Z());
}

bool isSound(const Hole& hole)
{
    return isFinite(hole.center) && std::isfinite(hole.diameter) && hole.diameter > 0 && std::isfinite(hole.depth) &&
           hole.depth > 0 && std::isfinite(hole.tipAngle + hole.angle) && std::isfinite(hole.counterDiameter) &&
           std::isfinite(hole.counterDepth + hole.sinkDiameter);
}

SolidHoles HoleFinder::find() const
{
    SolidHoles found;
    for (const HoleBore& bore : m_bores.find())
    {
        if (isHollow(bore))
        {
            Hole hole = holeOf(bore);
            if (isSound(hole))
            {
                found.holes.push_back(std::move(hole));
            }
        }
    }
    for (const FaceRegion& region : m_regions.all())
    {
        if (region.surface.kind == Kind::Cylinder || region.surface.kind == Kind::Cone ||
            region.surface.kind == Kind::Torus)
        {
            found.axes.push_back(region.surface.axis);
        }
    }
    return found;
}

} // namespace

SolidHoles holesOf(const TopoDS_Shape& solid)
{
    try
    {
        return HoleFinder(solid).find();
    }
    catch (const Standard_Failure&)
    {
        return {};
    }
}
