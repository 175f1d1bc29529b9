#include "features/hole_profile.h"

#include "features/face_surface.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

const double kDegrees = 57.29577951308232; // in a radian

bool isNarrower(double radius, double than)
{
    return radius < than * (1 - kSameLength);
}

double angleOf(const HoleSection& cone)
{
    return 2 * kDegrees * std::atan2(std::abs(cone.radiusAtEnd - cone.radiusAtBegin), std::abs(cone.end - cone.begin));
}

double narrowest(const HoleSection& section)
{
    return std::min(section.radiusAtBegin, section.radiusAtEnd);
}

std::vector<HoleSection> seenFromOpening(const std::vector<HoleSection>& sections)
{
    std::vector<HoleSection> seen;
    double reach = std::numeric_limits<double>::max();
    for (const HoleSection& section : sections)
    {
        const bool goesOn = !section.isCone && !seen.empty() && seen.back().isCone && // a cylinder behind a cone
                            !isNarrower(reach, section.radiusAtBegin);
        if (isNarrower(narrowest(section), reach) || goesOn)
        {
            seen.push_back(section);
            reach = narrowest(section);
        }
    }
    return seen;
}

// The tip behind a taper is blunter: either pointed, or by far.
bool isTipOfTaper(const HoleSection& cone, const HoleSection& taper)
{
    const bool isPointed = cone.radiusAtEnd <= kSameLength * cone.radiusAtBegin;
    return angleOf(cone) > (isPointed ? 1 : 2) * angleOf(taper);
}

} // namespace

void setProfile(Hole& hole, const std::vector<HoleSection>& sections)
{
    std::vector<HoleSection> parts = seenFromOpening(sections);
    if (parts.empty()) // none of its numbers is one
    {
        return;
    }
    const bool hasCylinder =
        std::any_of(parts.begin(), parts.end(), [](const HoleSection& part) { return !part.isCone; });
    const bool mayBeTip = hole.end == Hole::End::Blind && sections.back().isCone && parts.back().isCone;
    if (mayBeTip && (hasCylinder || (parts.size() > 1 && isTipOfTaper(parts.back(), parts[parts.size() - 2]))))
    {
        hole.tipAngle = angleOf(parts.back());
        parts.pop_back();
    }
    if (parts.size() > 2 && parts[0].isCone && !parts[1].isCone)
    {
        parts.erase(parts.begin());
    }

    const HoleSection& first = parts.front();
    const HoleSection& last = parts.back();
    hole.diameter = 2 * narrowest(last);
    if (last.isCone && (parts.size() == 1 || first.isCone))
    {
        hole.kind = Hole::Kind::Taper;
        hole.diameter = 2 * last.radiusAtBegin;
        hole.angle = angleOf(last);
    }
    else if (first.isCone)
    {
        hole.kind = Hole::Kind::CounterSink;
        hole.counterDiameter = 2 * first.radiusAtBegin;
        hole.angle = angleOf(first);
    }
    else if (parts.size() > 1)
    {
        const HoleSection& next = parts[1];
        const bool isFlush = next.isCone && !isNarrower(next.radiusAtBegin, first.radiusAtEnd);
        hole.counterDiameter = 2 * first.radiusAtBegin;
        hole.counterDepth = next.begin;
        hole.kind = isFlush ? Hole::Kind::CounterDrill : Hole::Kind::CounterBore;
        if (isFlush)
        {
            hole.sinkDiameter = 2 * next.radiusAtBegin;
            hole.angle = angleOf(next);
        }
        if (isFlush && parts.size() == 2)
        {
            // The tip of the drill has come through.
            hole.kind = Hole::Kind::Simple;
            hole.diameter = hole.counterDiameter;
            hole.counterDiameter = hole.counterDepth = hole.sinkDiameter = hole.angle = 0;
        }
    }
}
