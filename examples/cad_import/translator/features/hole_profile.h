#pragma once

#include "features/hole.h"

#include <vector>

/// A wall of a hole, along its axis from the opening inwards.
struct HoleSection
{
    bool isCone = false; // otherwise a cylinder
    double begin = 0;
    double end = 0;
    double radiusAtBegin = 0;
    double radiusAtEnd = 0;
};

/// Sets the kind of a hole and its sizes but for its depth. Only what is seen from the opening counts for them: what
/// lies behind a narrower part, such as the relief of a thread or the counterbore of the other side, does not.
/// - A cone at the end of a blind hole that has a cylinder is its tip, and so is one that is blunter than the cone
/// before it.
/// - The part at the opening makes the kind: a cylinder with a flat step to the next part a counterbore, one that goes
///   over in a cone a counterdrill, a cone a countersink, and a cone alone a taper hole. A cone at the opening of any
///   of the first two is a chamfer, which counts for neither the kind nor the sizes.
/// - The diameter is that of the narrowest part, so that a bore with several steps is a counterbore of the part at the
///   opening and of the narrowest one.
void setProfile(Hole& hole, const std::vector<HoleSection>& sections);
