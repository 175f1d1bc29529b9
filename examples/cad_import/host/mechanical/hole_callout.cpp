#include "mechanical/hole_callout.h"

#include "mp/narrow.h"
#include "number_text.h"

#include <cmath>
#include <string>

namespace hole_callout
{

namespace
{

using mp::wstring;
using EKind = PartHole::EKind;

const double kRounding = 1e-3; // degrees

wstring sized(const mp::wchar* symbol, double value)
{
    return symbol + number(value);
}

wstring angle(double value)
{
    return number(value) + WIDE("°");
}

// How far a hole goes.
wstring extent(const PartHole& hole)
{
    if (hole.end == PartHole::EEnd::UpToLast)
    {
        return WIDE(" THRU");
    }
    if (hole.end == PartHole::EEnd::UpToNext)
    {
        return WIDE(" THRU ONE WALL");
    }
    const wstring tip = hole.tipAngle != 0 ? WIDE(" TIP ") + angle(hole.tipAngle) : wstring();
    return sized(WIDE(" ↧"), hole.depth) + tip;
}

// What is wider at the opening.
wstring opening(const PartHole& hole)
{
    switch (hole.kind)
    {
    case EKind::Simple:
        return {};
    case EKind::Taper:
        return WIDE(" TAPER ") + angle(hole.taperAngle);
    case EKind::CounterBore:
        return sized(WIDE(" ⌴ ⌀"), hole.counterDiameter) + sized(WIDE(" ↧"), hole.counterDepth);
    case EKind::CounterSink:
        return sized(WIDE(" ⌵ ⌀"), hole.counterDiameter) + WIDE(" × ") + angle(hole.counterAngle);
    case EKind::CounterDrill:
        return sized(WIDE(" ⌴ ⌀"), hole.counterDiameter) + sized(WIDE(" ↧"), hole.counterDepth) +
               sized(WIDE(" ⌵ ⌀"), hole.sinkDiameter) + WIDE(" × ") + angle(hole.counterAngle);
    }
    return {};
}

} // namespace

mp::wstring number(double value)
{
    return numberText(std::round(value * 1e6) / 1e6);
}

mp::wstring text(const PartHole& hole, const std::vector<PartThread>& threads)
{
    wstring line = sized(WIDE("⌀"), hole.diameter) + extent(hole);
    if (hole.thread)
    {
        line += WIDE(" ") + text(threads[*hole.thread], hole.depth);
    }
    return line + opening(hole);
}

mp::wstring text(const PartThread& thread, double holeDepth)
{
    wstring line = thread.designation;
    if (line.empty())
    {
        line = sized(WIDE("thread ⌀"), thread.diameter) + sized(WIDE(" × "), thread.pitch);
    }
    if (thread.hand == PartThread::EHand::LeftHanded)
    {
        line += WIDE(" LH");
    }
    const bool isShown = thread.depth != 0 && number(thread.depth) != number(holeDepth);
    return isShown ? line + sized(WIDE(" ↧"), thread.depth) : line;
}

mp::wstring text(const PartPattern& pattern)
{
    const auto count = [](std::int64_t value) { return mp::toWide(std::to_string(value)); };
    if (pattern.isCircular)
    {
        const bool isArc = std::abs(pattern.count * std::abs(pattern.angle) - 360) > kRounding;
        return count(pattern.count) + sized(WIDE(" on ⌀"), pattern.diameter) +
               (isArc ? WIDE(" × ") + angle(std::round(pattern.angle * 100) / 100) : wstring());
    }
    const auto& [columns, rows] = pattern.counts;
    if (columns < 2 || rows < 2)
    {
        return count(columns * std::int64_t{rows}) + sized(WIDE(" in a row, "), pattern.spacing[columns < 2 ? 1 : 0]);
    }
    return count(columns) + WIDE(" × ") + count(rows) + sized(WIDE(" grid, "), pattern.spacing[0]) +
           sized(WIDE(" × "), pattern.spacing[1]);
}

} // namespace hole_callout
