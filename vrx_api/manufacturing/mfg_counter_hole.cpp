#include "vrx_api/manufacturing/mfg_counter_hole.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

template <class Self, class Fields>
void ExcMfgCounterBoreHole::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgHole>(self, fields);
    fields.always(WIDE("diameter"), self.m_diameter);
    fields.always(WIDE("max_tol"), self.m_maximumTolerance);
    fields.always(WIDE("min_tol"), self.m_minimumTolerance);
    fields.always(WIDE("depth"), self.m_depth);
}
template struct Described<ExcMfgCounterBoreHole>;

void ExcMfgCounterBoreHole::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgCounterBoreHole");
}

void ExcMfgCounterBoreHole::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

template <class Self, class Fields>
void ExcMfgCounterSinkHole::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgHole>(self, fields);
    fields.always(WIDE("diameter"), self.m_diameter);
    fields.always(WIDE("max_tol"), self.m_maximumTolerance);
    fields.always(WIDE("min_tol"), self.m_minimumTolerance);
    fields.always(WIDE("angle"), self.m_taperAngle);
}
template struct Described<ExcMfgCounterSinkHole>;

void ExcMfgCounterSinkHole::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgCounterSinkHole");
}

void ExcMfgCounterSinkHole::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

template <class Self, class Fields>
void ExcMfgCounterDrillHole::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgHole>(self, fields);
    fields.always(WIDE("diameter"), self.m_diameter);
    fields.always(WIDE("max_tol"), self.m_maximumTolerance);
    fields.always(WIDE("min_tol"), self.m_minimumTolerance);
    fields.always(WIDE("depth"), self.m_depth);
    fields.always(WIDE("sink_diameter"), self.m_sinkDiameter);
    fields.always(WIDE("angle"), self.m_taperAngle);
}
template struct Described<ExcMfgCounterDrillHole>;

void ExcMfgCounterDrillHole::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgCounterDrillHole");
}

void ExcMfgCounterDrillHole::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
