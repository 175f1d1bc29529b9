#include "vrx_api/manufacturing/mfg_threading.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

using EOrientation = ExcMfgThreading::EOrientation;
using EDesignationSystemType = ExcMfgThreading::EDesignationSystemType;
using EBottomType = ExcMfgThread::EBottomType;

static constexpr EnumName<EOrientation> kOrientations[] = {
    {EOrientation::Unknown, WIDE("unknown")},
    {EOrientation::RightHanded, WIDE("right_handed")},
    {EOrientation::LeftHanded, WIDE("left_handed")},
};
static constexpr const auto& enumTable(EOrientation)
{
    return kOrientations;
}

static constexpr EnumName<EDesignationSystemType> kDesignationSystemTypes[] = {
    {EDesignationSystemType::Unknown, WIDE("unknown")},
    {EDesignationSystemType::Metric, WIDE("metric")},
    {EDesignationSystemType::American, WIDE("american")},
    {EDesignationSystemType::British, WIDE("british")},
};
static constexpr const auto& enumTable(EDesignationSystemType)
{
    return kDesignationSystemTypes;
}

static constexpr EnumName<EBottomType> kBottomTypes[] = {
    {EBottomType::Unknown, WIDE("unknown")},
    {EBottomType::Dimension, WIDE("dimension")},
    {EBottomType::SupportDepth, WIDE("support_depth")},
    {EBottomType::SupportUpToPlane, WIDE("support_up_to_plane")},
};
static constexpr const auto& enumTable(EBottomType)
{
    return kBottomTypes;
}

template <class Self, class Fields>
void ExcMfgThreading::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("diameter"), self.m_diameter);
    fields.always(WIDE("depth"), self.m_depth);
    fields.always(WIDE("pitch"), self.m_pitch);
    fields.always(WIDE("orientation"), self.m_orientation);
    fields.always(WIDE("designation"), self.m_designation);
    fields.always(WIDE("designation_system_type"), self.m_designationSystemType);
}
template struct Described<ExcMfgThreading>;

void ExcMfgThreading::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgThreading");
}

void ExcMfgThreading::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

template <class Self, class Fields>
void ExcMfgThread::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgThreading>(self, fields);
    fields.always(WIDE("support_diameter"), self.m_supportDiameter);
    fields.always(WIDE("support_depth"), self.m_supportDepth);
    fields.always(WIDE("bottom_type"), self.m_bottomType);
}
template struct Described<ExcMfgThread>;

void ExcMfgThread::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgThread");
}

void ExcMfgThread::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

// The smaller tolerance stands first; in a hole it stands second.
template <class Self, class Fields>
void ExcMfgHoleThread::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgThreading>(self, fields);
    fields.always(WIDE("standart"), self.m_standart);
    fields.always(WIDE("min_tol"), self.m_minimalTolerance);
    fields.always(WIDE("max_tol"), self.m_maximalTolerance);
}
template struct Described<ExcMfgHoleThread>;

void ExcMfgHoleThread::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgHoleThread");
}

void ExcMfgHoleThread::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
