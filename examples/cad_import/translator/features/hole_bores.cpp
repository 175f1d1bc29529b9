#include "features/hole_bores.h"

#include <gp_Lin.hxx>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace
{

using Kind = FaceSurface::Kind;

bool isFinite(const HoleBore& bore)
{
    const gp_Pnt& place = bore.axis.Location();
    const gp_Dir& direction = bore.axis.Direction();
    return std::isfinite(place.X() + place.Y() + place.Z() + bore.radius) &&
           std::isfinite(direction.X() + direction.Y() + direction.Z());
}

} // namespace

double HoleBore::along(const gp_Pnt& point) const
{
    return gp_Vec(axis.Location(), point).Dot(gp_Vec(axis.Direction()));
}

bool HoleBore::isFree(double from, double to) const
{
    return std::none_of(crossings.begin(), crossings.end(), [=](const SolidLines::Crossing& crossing) {
        return crossing.along > from && crossing.along < to;
    });
}

gp_Pnt HoleBores::placeOf(std::size_t region, int end) const
{
    if (end >= 0)
    {
        return m_rings.end(end).place;
    }
    const FaceSurface& cone = surfaceOf(region);
    return cone.axis.Location().Translated(gp_Vec(cone.axis.Direction()) * (-cone.radius / cone.slope));
}

// The radius of the first wall where it begins.
double HoleBores::mouth(const RingChain& chain) const
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
bool HoleBores::isBoredWider(const HoleBore& bore, bool fromItsEnd) const
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
HoleBore HoleBores::boreOf(const RingChain& chain) const
{
    HoleBore bore;
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
    if (bore.along(entryPlace(pass)) > bore.along(exitPlace(pass)))
    {
        bore.axis.Reverse();
    }
    bore.axis.SetLocation(
        gp_Lin(bore.axis).Location().Translated(gp_Vec(bore.axis.Direction()) * bore.along(entryPlace(chain.front()))));
    return bore;
}

// The faces around the ends that the axis cannot cross, since it goes through a hole in each. That is most of those
// with many holes, which take long.
std::vector<TopoDS_Face> HoleBores::piercedPlanes(const RingChain& chain) const
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
        if (isOnePlane)
        {
            std::transform(around.begin(), around.end(), std::back_inserter(faces),
                           [](const FaceRegions::Neighbour& neighbour) { return neighbour.face; });
        }
    }
    return faces;
}

void HoleBores::turn(HoleBore& bore) const
{
    std::reverse(bore.chain.begin(), bore.chain.end());
    for (RingPass& pass : bore.chain)
    {
        std::swap(pass.entry, pass.exit);
    }
    bore.narrowest = bore.chain.size() - 1 - bore.narrowest;
    if (bore.opening != HoleBore::Opening::Unknown)
    {
        bore.opening = bore.opening == HoleBore::Opening::AtFirstEnd ? HoleBore::Opening::AtSecondEnd
                                                                     : HoleBore::Opening::AtFirstEnd;
    }
    const double length = bore.along(entryPlace(bore.chain.front()));
    bore.axis.SetLocation(bore.axis.Location().Translated(gp_Vec(bore.axis.Direction()) * length));
    bore.axis.Reverse();
    for (SolidLines::Crossing& crossing : bore.crossings)
    {
        crossing.along = length - crossing.along;
    }
}

// In the order in which they lie along the axis of the first one.
void HoleBores::join(std::vector<HoleBore>& bores, std::vector<std::pair<double, std::size_t>>& inLine,
                     std::vector<bool>& isJoined) const
{
    const gp_Ax1 axis = bores[inLine.front().second].axis;
    for (auto& [place, number] : inLine)
    {
        if (axis.Direction().Dot(bores[number].axis.Direction()) < 0)
        {
            turn(bores[number]);
        }
        place = gp_Vec(axis.Location(), bores[number].axis.Location()).Dot(gp_Vec(axis.Direction()));
    }
    std::sort(inLine.begin(), inLine.end());
    std::size_t last = inLine.front().second;
    for (std::size_t j = 1; j < inLine.size(); ++j)
    {
        HoleBore& before = bores[last];
        HoleBore& behind = bores[inLine[j].second];
        const double end = before.along(exitPlace(before.chain.back()));
        const double begin = before.along(behind.axis.Location());
        const double margin = kSameAxis * before.radius;
        const bool areJoined = !isClosed(before.chain.back().exit) && !isClosed(behind.chain.front().entry) &&
                               begin > end - margin && before.isFree(end + margin, begin - margin);
        if (areJoined && isBoredWider(before, false) && isBoredWider(behind, true))
        {
            before.opening = HoleBore::Opening::AtFirstEnd;
            behind.opening = HoleBore::Opening::AtSecondEnd;
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

// Bores of one axis have one distance from any point, so that only those with about the same one are compared.
void HoleBores::joinInLine(std::vector<HoleBore>& bores) const
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
        HoleBore& first = bores[order[i].second];
        if (isJoined[order[i].second])
        {
            continue;
        }
        const double nearby =
            kSameAxis * first.radius + kSameDirection * (order[i].first + first.axis.Location().Distance(somewhere));
        std::vector<std::pair<double, std::size_t>> inLine{{0, order[i].second}};
        for (std::size_t j = i + 1; j < order.size() && order[j].first - order[i].first <= nearby; ++j)
        {
            HoleBore& other = bores[order[j].second];
            if (!isJoined[order[j].second] && std::abs(other.radius - first.radius) <= kSameLength * first.radius &&
                areCoaxial(first.axis, other.axis, first.radius))
            {
                inLine.emplace_back(0, order[j].second);
            }
        }
        if (inLine.size() > 1)
        {
            join(bores, inLine, isJoined);
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

bool HoleBores::isFirstEndTheOpening(const HoleBore& bore) const
{
    if (bore.opening != HoleBore::Opening::Unknown)
    {
        return bore.opening == HoleBore::Opening::AtFirstEnd;
    }
    HoleBore turned = bore;
    turn(turned);
    const double difference = mouth(bore.chain) - mouth(turned.chain);
    if (std::abs(difference) > kSameLength * bore.radius)
    {
        return difference > 0;
    }
    const double margin = kSameAxis * bore.radius;
    const double farAway = std::numeric_limits<double>::max();
    const bool isFirstFree = bore.isFree(-farAway, -margin);
    if (isFirstFree != turned.isFree(-farAway, -margin))
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

std::vector<HoleBore> HoleBores::find() const
{
    std::vector<HoleBore> bores;
    for (const RingChain& chain : m_rings.chains())
    {
        HoleBore bore = boreOf(chain);
        if ((!isClosed(chain.front().entry) || !isClosed(chain.back().exit)) && isFinite(bore))
        {
            bore.crossings = m_lines.of(bore.axis, -SolidLines::kFarAway, SolidLines::kFarAway, piercedPlanes(chain));
            bores.push_back(std::move(bore));
        }
    }
    joinInLine(bores);
    for (HoleBore& bore : bores)
    {
        if (isClosed(bore.chain.front().entry) || (!isClosed(bore.chain.back().exit) && !isFirstEndTheOpening(bore)))
        {
            turn(bore);
        }
    }
    return bores;
}
