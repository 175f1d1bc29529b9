#include "mechanical/part_holes.h"

#include "mechanical/block_ids.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace
{

using EKind = PartHole::EKind;

void takeKind(const vrx::ExcMfgSimpleHole&, PartHole& hole)
{
    hole.kind = EKind::Simple;
}

void takeKind(const vrx::ExcMfgTaperHole& data, PartHole& hole)
{
    hole.kind = EKind::Taper;
    hole.taperAngle = data.angle();
}

void takeKind(const vrx::ExcMfgCounterBoreHole& data, PartHole& hole)
{
    hole.kind = EKind::CounterBore;
    hole.counterDiameter = data.diameter();
    hole.counterDepth = data.depth();
}

void takeKind(const vrx::ExcMfgCounterSinkHole& data, PartHole& hole)
{
    hole.kind = EKind::CounterSink;
    hole.counterDiameter = data.diameter();
    hole.counterAngle = data.taperAngle();
}

void takeKind(const vrx::ExcMfgCounterDrillHole& data, PartHole& hole)
{
    hole.kind = EKind::CounterDrill;
    hole.counterDiameter = data.diameter();
    hole.counterDepth = data.depth();
    hole.counterAngle = data.taperAngle();
    hole.sinkDiameter = data.sinkDiameter();
}

double distanceToAxis(const vrx::ExcVector3d& point, const vrx::ExcVector3d& origin, const vrx::ExcVector3d& axis)
{
    double along = 0;
    double length = 0;
    double square = 0;
    for (std::size_t i = 0; i < 3; ++i)
    {
        const double difference = point[i] - origin[i];
        along += difference * axis[i];
        length += axis[i] * axis[i];
        square += difference * difference;
    }
    return std::sqrt(std::max(0.0, length > 0 ? square - along * along / length : square));
}

class HoleReader
{
public:
    HoleReader(std::uint64_t block, const ReceivedBodies& bodies)
        : m_block(block)
        , m_bodies(bodies)
    {
    }

    PartHoles read(const vrx::ExcMfgData& data)
    {
        addHoles(data.simpleHoles());
        addHoles(data.taperHoles());
        addHoles(data.counterBoreHoles());
        addHoles(data.counterSinkHoles());
        addHoles(data.counterDrillHoles());
        for (const auto& thread : data.internalThreads())
        {
            addThread(*thread, true);
        }
        for (const auto& thread : data.externalThreads())
        {
            addThread(*thread, false);
        }
        for (const auto& feature : data.unclassifiedFeatures())
        {
            addPattern(*feature);
        }
        return m_result;
    }

private:
    template <class Features>
    void addHoles(const Features& features)
    {
        for (const auto& feature : features)
        {
            if (feature->holeData())
            {
                addHole(*feature, *feature->holeData());
            }
        }
    }

    template <class Data>
    void addHole(const vrx::ExcMfgFeatureHole& feature, const Data& data)
    {
        PartHole hole;
        takeKind(data, hole);
        hole.diameter = data.primaryDiameter();
        hole.depth = data.primaryDepth();
        hole.tipAngle = data.tipAngleDegrees();
        hole.end = data.bottomLimitExtentType();
        hole.center = data.center();
        hole.direction = data.direction();
        hole.faces = ids(feature.definingGeometry());
        hole.limiting = ids(feature.limitingGeometry());
        for (const BodyLink& link : m_bodies.links(feature.definingGeometry()))
        {
            if (link.resolved && link.block == m_block)
            {
                hole.body = link.body;
                break;
            }
        }
        for (const mp::wstring& face : hole.faces)
        {
            m_holeOfFace.emplace(face, m_result.holes.size());
        }
        m_result.holes.push_back(hole);
    }

    void addThread(const vrx::ExcMfgFeatureThread& feature, bool isInternal)
    {
        if (!feature.thread())
        {
            return;
        }
        const vrx::ExcMfgThread& data = *feature.thread();
        PartThread thread;
        thread.isInternal = isInternal;
        thread.designation = data.designation();
        thread.diameter = data.diameter();
        thread.pitch = data.pitch();
        thread.depth = data.depth();
        thread.hand = data.orientation();
        thread.faces = ids(feature.sideFaces());
        const std::vector<std::size_t> holes = holesWith(thread.faces);
        if (isInternal && !holes.empty())
        {
            thread.hole = holes.front();
            std::optional<std::size_t>& first = m_result.holes[holes.front()].thread;
            first = first ? first : m_result.threads.size();
        }
        m_result.threads.push_back(thread);
    }

    void addPattern(const vrx::ExcMfgFeature& feature)
    {
        PartPattern pattern;
        pattern.holes = holesWith(ids(feature.linkedElements()));
        if (pattern.holes.empty())
        {
            return;
        }
        const auto* const grid = dynamic_cast<const vrx::ExcMfgPatternRectangular*>(feature.pattern().get());
        const auto* const circle = dynamic_cast<const vrx::ExcMfgPatternCircular*>(feature.pattern().get());
        if (grid != nullptr)
        {
            pattern.counts = {grid->primaryInstanceCount(), grid->secondaryInstanceCount()};
            pattern.spacing = {grid->primarySpacing(), grid->secondarySpacing()};
            pattern.directions = {grid->alignmentPrimaryDirection(), grid->alignmentSecondaryDirection()};
        }
        else if (circle != nullptr)
        {
            pattern.isCircular = true;
            pattern.count = circle->axialInstanceCount();
            pattern.angle = circle->axialDistanceDegrees();
            pattern.center = circle->centerOfRotation();
            pattern.axis = circle->axisOfRotation();
            pattern.diameter =
                2 * distanceToAxis(m_result.holes[pattern.holes.front()].center, pattern.center, pattern.axis);
        }
        else
        {
            return;
        }
        for (const std::size_t hole : pattern.holes)
        {
            std::optional<std::size_t>& first = m_result.holes[hole].pattern;
            first = first ? first : m_result.patterns.size();
        }
        m_result.patterns.push_back(pattern);
    }

    std::vector<mp::wstring> ids(const Entities& entities) const { return idsInBlock(entities, m_block, m_bodies); }

    // Each once, in the order of the faces.
    std::vector<std::size_t> holesWith(const std::vector<mp::wstring>& faces) const
    {
        std::vector<std::size_t> holes;
        std::set<std::size_t> known;
        for (const mp::wstring& face : faces)
        {
            const auto found = m_holeOfFace.find(face);
            if (found != m_holeOfFace.end() && known.insert(found->second).second)
            {
                holes.push_back(found->second);
            }
        }
        return holes;
    }

    std::uint64_t m_block;
    const ReceivedBodies& m_bodies;
    PartHoles m_result;
    std::map<mp::wstring, std::size_t> m_holeOfFace;
};

} // namespace

PartHoles partHoles(const vrx::ExcMfgData& data, std::uint64_t block, const ReceivedBodies& bodies)
{
    return HoleReader(block, bodies).read(data);
}
