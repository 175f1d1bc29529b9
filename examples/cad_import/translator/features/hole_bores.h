#pragma once

#include "features/hole_rings.h"
#include "features/solid_lines.h"

#include <cstddef>
#include <vector>

/// All that is bored in line: rings along one axis, which leads from the first end to the second and starts at the
/// first.
struct HoleBore
{
    RingChain chain;
    gp_Ax1 axis;               // that of its narrowest wall
    double radius = 0;         // of that wall
    std::size_t narrowest = 0; // its place in the chain
    enum class Opening
    {
        Unknown,
        AtFirstEnd,
        AtSecondEnd,
    } opening = Opening::Unknown;
    std::vector<SolidLines::Crossing> crossings{}; // of the axis with the solid

    /// The place of a point along the axis.
    double along(const gp_Pnt& point) const;

    /// Whether the axis crosses nothing of the solid between two places.
    bool isFree(double from, double to) const;
};

/// Finds the bores of a solid.
class HoleBores
{
public:
    HoleBores(const FaceRegions& regions, const HoleRings& rings, const SolidLines& lines)
        : m_regions(regions)
        , m_rings(rings)
        , m_lines(lines)
    {
    }

    /// Each from its opening inwards, as holesOf() has it.
    std::vector<HoleBore> find() const;

    bool isClosed(int end) const { return end < 0 || m_rings.end(end).bottom >= 0; }
    gp_Pnt entryPlace(const RingPass& pass) const { return placeOf(pass.region, pass.entry); }
    gp_Pnt exitPlace(const RingPass& pass) const { return placeOf(pass.region, pass.exit); }

private:
    const FaceSurface& surfaceOf(std::size_t region) const { return m_regions.all()[region].surface; }
    gp_Pnt placeOf(std::size_t region, int end) const;
    double mouth(const RingChain& chain) const;
    bool isBoredWider(const HoleBore& bore, bool fromItsEnd) const;
    HoleBore boreOf(const RingChain& chain) const;
    std::vector<TopoDS_Face> piercedPlanes(const RingChain& chain) const;
    void turn(HoleBore& bore) const;
    void join(std::vector<HoleBore>& bores, std::vector<std::pair<double, std::size_t>>& inLine,
              std::vector<bool>& isJoined) const;
    void joinInLine(std::vector<HoleBore>& bores) const;
    bool isFirstEndTheOpening(const HoleBore& bore) const;

    const FaceRegions& m_regions;
    const HoleRings& m_rings;
    const SolidLines& m_lines;
};
