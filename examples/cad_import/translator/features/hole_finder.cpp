#include "features/hole_finder.h"

#include "features/hole_profile.h"
#include "features/hole_rings.h"
#include "features/solid_lines.h"

#include <BRepClass3d.hxx>
#include <Standard_Failure.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Shell.hxx>
#include <gp_Lin.hxx>

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
    {
    }

    SolidHoles find();

private:
    struct Bore
    {
        RingChain chain;
        gp_Ax1 axis;       // of its narrowest wall
        double radius = 0; // of that
        std::size_t narrowest = 0;
        enum class Opening
        {
            Unknown,
            AtFirstEnd,
            AtSecondEnd,
        } opening = Opening::Unknown;
        std::vector<SolidLines::Crossing> crossings{}; // of the axis with the solid
    };

    const FaceSurface& surfaceOf(std::size_t region) const { return m_regions.all()[region].surface; }
    bool isClosed(int end) const { return end < 0 || m_rings.end(end).bottom >= 0; }
    gp_Pnt placeOf(std::size_t region, int end) const;
    gp_Pnt entryPlace(const RingPass& pass) const { return placeOf(pass.region, pass.entry); }
    gp_Pnt exitPlace(const RingPass& pass) const { return placeOf(pass.region, pass.exit); }
    double along(const Bore& bore, const gp_Pnt& point) const;
    bool isFree(const Bore& bore, double from, double to) const;
    double mouth(const RingChain& chain) const;
    bool isBoredWider(const Bore& bore, bool fromItsEnd) const;

    Bore boreOf(const RingChain& chain) const;
    std::vector<TopoDS_Face> piercedPlanes(const RingChain& chain) const;
    void turn(Bore& bore) const;
    void joinInLine(std::vector<Bore>& bores) const;
    bool isFirstEndTheOpening(const Bore& bore) const;
    bool isHollow(const Bore& bore) const;
    Hole holeOf(const Bore& bore) const;
    void addFaces(std::size_t region, std::vector<TopoDS_Face>& faces) const;

    FaceRegions m_regions;
    HoleRings m_rings;
    SolidLines m_lines;
};

std::vector<TopoDS_Face> facesOf(const std::vector<FaceRegions::Neighbour>& neighbours)
{
    std::vector<TopoDS_Face> faces;
    std::transform(neighbours.begin(), neighbours.end(), std::back_inserter(faces),
                   [](const FaceRegions::Neighbour& neighbour) { return neighbour.face; });
    return faces;
}

gp_Pnt HoleFinder::placeOf(std::size_t region, int end) const
{
    if (end >= 0)
    {
        return m_rings.end(end).place;
    }
    const FaceSurface& cone = surfaceOf(region);
    return cone.axis.Location().Translated(gp_Vec(cone.axis.Direction()) * (-cone.radius / cone.slope));
}

double HoleFinder::along(const Bore& bore, const gp_Pnt& point) const
{
    return gp_Vec(bore.axis.Location(), point).Dot(gp_Vec(bore.axis.Direction()));
}

bool HoleFinder::isFree(const Bore& bore, double from, double to) const
{
    return std::none_of(bore.crossings.begin(), bore.crossings.end(), [=](const SolidLines::Crossing& crossing) {
        return crossing.along > from && crossing.along < to;
    });
}

// The radius of the first wall where it begins.
double HoleFinder::mouth(const RingChain& chain) const
{
    for (const RingPass& pass : chain)
    {
        if (m_rings.isWall(pass.region))
        {
            return surfaceOf(pass.region).radiusAt(entryPlace(pass));
        }
    }
    return 0;
}

// At its first end, or at its second; a chamfer is nothing of the kind.
bool HoleFinder::isBoredWider(const Bore& bore, bool fromItsEnd) const
{
    const auto isCylinder = [this](const RingPass& pass) {
        return m_rings.isWall(pass.region) && surfaceOf(pass.region).kind == Kind::Cylinder;
    };
    const RingChain& chain = bore.chain;
    const RingPass* cylinder = nullptr;
    if (fromItsEnd)
    {
        const auto found = std::find_if(chain.rbegin(), chain.rend(), isCylinder);
        cylinder = found != chain.rend() ? &*found : nullptr;
    }
    else
    {
        const auto found = std::find_if(chain.begin(), chain.end(), isCylinder);
        cylinder = found != chain.end() ? &*found : nullptr;
    }
    return cylinder != nullptr && surfaceOf(cylinder->region).radius > bore.radius * (1 + kSameLength);
}

// Its axis leads from the first end to the second.
HoleFinder::Bore HoleFinder::boreOf(const RingChain& chain) const
{
    Bore bore;
    bore.chain = chain;
    bool isCylinder = false;
    for (std::size_t i = 0; i < chain.size(); ++i)
    {
        const FaceSurface& surface = surfaceOf(chain[i].region);
        if (!m_rings.isWall(chain[i].region) || (isCylinder && surface.kind == Kind::Cone))
        {
            continue;
        }
        const double radius = std::max(surface.radiusAt(entryPlace(chain[i])), surface.radiusAt(exitPlace(chain[i])));
        const bool isFirstCylinder = surface.kind == Kind::Cylinder && !isCylinder;
        if (bore.radius == 0 || isFirstCylinder || radius < bore.radius)
        {
            bore.axis = surface.axis;
            bore.radius = radius;
            bore.narrowest = i;
        }
        isCylinder = isCylinder || surface.kind == Kind::Cylinder;
    }
    const RingPass& pass = chain[bore.narrowest];
    if (along(bore, entryPlace(pass)) > along(bore, exitPlace(pass)))
    {
        bore.axis.Reverse();
    }
    bore.axis.SetLocation(gp_Lin(bore.axis).Location().Translated(gp_Vec(bore.axis.Direction()) *
                                                                  along(bore, entryPlace(chain.front()))));
    return bore;
}

// The faces around the ends that the axis cannot cross, since it goes through a hole in each. That is most of those
// with many holes, which take long.
std::vector<TopoDS_Face> HoleFinder::piercedPlanes(const RingChain& chain) const
{
    std::vector<TopoDS_Face> faces;
    for (const int end : {chain.front().entry, chain.back().exit})
    {
        if (isClosed(end))
        {
            continue;
        }
        const std::vector<FaceRegions::Neighbour>& around = m_rings.end(end).neighbours;
        const bool isOnePlane = std::all_of(around.begin(), around.end(), [&](const FaceRegions::Neighbour& neighbour) {
            return neighbour.region == around.front().region && surfaceOf(neighbour.region).kind == Kind::Plane;
        });
        const std::vector<TopoDS_Face> own = isOnePlane ? facesOf(around) : std::vector<TopoDS_Face>();
        faces.insert(faces.end(), own.begin(), own.end());
    }
    return faces;
}

void HoleFinder::turn(Bore& bore) const
{
    std::reverse(bore.chain.begin(), bore.chain.end());
    for (RingPass& pass : bore.chain)
    {
        std::swap(pass.entry, pass.exit);
    }
    bore.narrowest = bore.chain.size() - 1 - bore.narrowest;
    if (bore.opening != Bore::Opening::Unknown)
    {
        bore.opening =
            bore.opening == Bore::Opening::AtFirstEnd ? Bore::Opening::AtSecondEnd : Bore::Opening::AtFirstEnd;
    }
    const double length = along(bore, entryPlace(bore.chain.front()));
    bore.axis.SetLocation(bore.axis.Location().Translated(gp_Vec(bore.axis.Direction()) * length));
    bore.axis.Reverse();
    for (SolidLines::Crossing& crossing : bore.crossings)
    {
        crossing.along = length - crossing.along;
    }
}

// Bores of one axis have one distance from any point, so that only those with about the same one are compared.
void HoleFinder::joinInLine(std::vector<Bore>& bores) const
{
    const gp_Pnt somewhere(0.1234, 0.5432, 0.3579);
    std::vector<std::pair<double, std::size_t>> order;
    for (std::size_t i = 0; i < bores.size(); ++i)
    {
        order.emplace_back(gp_Lin(bores[i].axis).Distance(somewhere), i);
    }
    std::sort(order.begin(), order.end());
    std::vector<bool> isJoined(bores.size(), false);
    for (std::size_t i = 0; i < order.size(); ++i)
    {
        Bore& first = bores[order[i].second];
        if (isJoined[order[i].second])
        {
            continue;
        }
        const double nearby =
            kSameAxis * first.radius + kSameDirection * (order[i].first + first.axis.Location().Distance(somewhere));
        std::vector<std::pair<double, std::size_t>> inLine{{0, order[i].second}};
        for (std::size_t j = i + 1; j < order.size() && order[j].first - order[i].first <= nearby; ++j)
        {
            Bore& other = bores[order[j].second];
            if (!isJoined[order[j].second] && std::abs(other.radius - first.radius) <= kSameLength * first.radius &&
                areCoaxial(first.axis, other.axis, first.radius))
            {
                inLine.emplace_back(0, order[j].second);
            }
        }
        if (inLine.size() < 2)
        {
            continue;
        }
        for (auto& [place, number] : inLine)
        {
            if (first.axis.Direction().Dot(bores[number].axis.Direction()) < 0)
            {
                turn(bores[number]);
            }
            place = along(first, bores[number].axis.Location());
        }
        std::sort(inLine.begin(), inLine.end());
        std::size_t last = inLine.front().second;
        for (std::size_t j = 1; j < inLine.size(); ++j)
        {
            Bore& before = bores[last];
            Bore& behind = bores[inLine[j].second];
            const double end = along(before, exitPlace(before.chain.back()));
            const double begin = along(before, behind.axis.Location());
            const double margin = kSameAxis * before.radius;
            const bool areJoined = !isClosed(before.chain.back().exit) && !isClosed(behind.chain.front().entry) &&
                                   begin > end - margin && isFree(before, end + margin, begin - margin);
            if (areJoined && isBoredWider(before, false) && isBoredWider(behind, true))
            {
                before.opening = Bore::Opening::AtFirstEnd;
                behind.opening = Bore::Opening::AtSecondEnd;
                last = inLine[j].second;
            }
            else if (areJoined)
            {
                before.chain.insert(before.chain.end(), behind.chain.begin(), behind.chain.end());
                isJoined[inLine[j].second] = true;
            }
            else
            {
                last = inLine[j].second;
            }
        }
    }
    std::size_t count = 0;
    for (std::size_t i = 0; i < bores.size(); ++i)
    {
        if (!isJoined[i])
        {
            std::swap(bores[count++], bores[i]);
        }
    }
    bores.resize(count);
}

bool HoleFinder::isFirstEndTheOpening(const Bore& bore) const
{
    if (bore.opening != Bore::Opening::Unknown)
    {
        return bore.opening == Bore::Opening::AtFirstEnd;
    }
    Bore turned = bore;
    turn(turned);
    const double difference = mouth(bore.chain) - mouth(turned.chain);
    if (std::abs(difference) > kSameLength * bore.radius)
    {
        return difference > 0;
    }
    const double margin = kSameAxis * bore.radius;
    const double farAway = std::numeric_limits<double>::max();
    const bool isFirstFree = isFree(bore, -farAway, -margin);
    if (isFirstFree != isFree(turned, -farAway, -margin))
    {
        return isFirstFree;
    }
    const gp_Dir& direction = bore.axis.Direction();
    double largest = 0;
    for (int i = 3; i >= 1; --i)
    {
        const double coordinate = direction.Coord(i);
        largest = std::abs(coordinate) > std::abs(largest) + kSameDirection ? coordinate : largest;
    }
    return largest < 0;
}

// False when there is something else within the narrowest wall, such as the hub within the rim of a wheel. It is looked
// for across the middle, askew since most things lie along the axes.
bool HoleFinder::isHollow(const Bore& bore) const
{
    const RingPass& pass = bore.chain[bore.narrowest];
    const double middle = (along(bore, entryPlace(pass)) + along(bore, exitPlace(pass))) / 2;
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

Hole HoleFinder::holeOf(const Bore& bore) const
{
    const RingChain& chain = bore.chain;
    Hole hole;
    hole.center = bore.axis.Location();
    hole.direction = bore.axis.Direction();
    hole.opening = facesOf(m_rings.end(chain.front().entry).neighbours);
    hole.depth = along(bore, exitPlace(chain.back()));

    std::vector<HoleSection> sections;
    for (const RingPass& pass : chain)
    {
        const int step = m_rings.end(pass.entry).step;
        const FaceSurface& surface = surfaceOf(pass.region);
        if (m_rings.isWall(pass.region))
        {
            sections.push_back({surface.kind == Kind::Cone, along(bore, entryPlace(pass)), along(bore, exitPlace(pass)),
                                surface.radiusAt(entryPlace(pass)), surface.radiusAt(exitPlace(pass))});
        }
        if (step >= 0)
        {
            addFaces(static_cast<std::size_t>(step), hole.walls);
        }
        addFaces(pass.region, pass.exit < 0 ? hole.bottom : hole.walls);
    }

    if (isClosed(chain.back().exit))
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
        hole.end = isFree(bore, hole.depth + margin, std::numeric_limits<double>::max()) ? Hole::End::UpToLast
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

SolidHoles HoleFinder::find()
{
    std::vector<Bore> bores;
    for (const RingChain& chain : m_rings.chains())
    {
        if (!isClosed(chain.front().entry) || !isClosed(chain.back().exit))
        {
            bores.push_back(boreOf(chain));
            bores.back().crossings =
                m_lines.of(bores.back().axis, -SolidLines::kFarAway, SolidLines::kFarAway, piercedPlanes(chain));
        }
    }
    joinInLine(bores);

    SolidHoles found;
    for (Bore& bore : bores)
    {
        if (isClosed(bore.chain.front().entry) || (!isClosed(bore.chain.back().exit) && !isFirstEndTheOpening(bore)))
        {
            turn(bore);
        }
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
