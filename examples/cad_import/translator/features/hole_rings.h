#pragma once

#include "features/face_regions.h"

#include <cstddef>
#include <vector>

/// One end of a ring: a wall of a hole, which is a region that is closed around its axis and seen from inside, or a
/// rounded edge between two.
struct RingEnd
{
    std::size_t region = 0;
    RegionLoop loop;
    gp_Pnt place;                                     // on the axis
    int opposite = -1;                                // end of the ring; -1 for the tip of a cone
    std::vector<FaceRegions::Neighbour> neighbours{}; // across
    int next = -1;                                    // end of the ring that goes on from here
    int step = -1;                                    // region of the flat step in between
    int bottom = -1;                                  // region that closes the hole here
};

/// A ring on the way through a chain.
struct RingPass
{
    std::size_t region = 0;
    int entry = -1;
    int exit = -1; // -1 at a tip
};

/// Rings that go over in each other, from a free end to the other one, or to a tip.
using RingChain = std::vector<RingPass>;

class HoleRings
{
public:
    explicit HoleRings(const FaceRegions& regions);

    const RingEnd& end(int number) const { return m_ends[static_cast<std::size_t>(number)]; }

    /// All chains with at least one wall, each once, in the order of the faces.
    std::vector<RingChain> chains() const;

    bool isWall(std::size_t region) const;

private:
    const FaceSurface& surfaceOf(const RingEnd& end) const { return m_regions.all()[end.region].surface; }

    void addRing(std::size_t region);
    gp_Vec outwards(const RingEnd& end) const;
    void joinNeighbours();
    void joinAcrossSteps();
    bool closes(std::size_t region, const RingEnd& end) const;
    gp_Pnt pierced(const RingEnd& end) const;

    const FaceRegions& m_regions;
    std::vector<RingEnd> m_ends;
    std::vector<int> m_firstEnds; // by region; -1 for what is no ring
};
