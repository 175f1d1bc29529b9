#include "vrx_api/manufacturing/mfg_feature_hole.h"

#include "vrx_api/json/add.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

// The keys of the base neither go out nor come in.
template <class Self, class Fields>
void ExcMfgFeatureHole::describe(Self& self, Fields& fields)
{
    fields.filled(WIDE("limiting"), self.m_limitingGeometry);
    fields.filled(WIDE("defining"), self.m_definingGeometry);
}
template struct Described<ExcMfgFeatureHole>;

void ExcMfgFeatureHole::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgFeatureHole");
}

void ExcMfgFeatureHole::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

void ExcMfgFeatureHole::addLimitingGeometry(const std::shared_ptr<ExcEntity>& entity)
{
    add(m_limitingGeometry, entity, "ExcMfgFeatureHole: attempt to add null Limiting Geometry Entity object.");
}

void ExcMfgFeatureHole::addDefiningGeometry(const std::shared_ptr<ExcEntity>& entity)
{
    add(m_definingGeometry, entity, "ExcMfgFeatureHole: attempt to add null Defining Geometry Entity object.");
}

template <class T>
template <class Self, class Fields>
void ExcMfgFeatureHoleType<T>::describe(Self& self, Fields& fields)
{
    describeBase<ExcMfgFeatureHole>(self, fields);
    fields.filled(WIDE("hole_data"), self.m_holeData);
}

template <class T>
void ExcMfgFeatureHoleType<T>::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMfgFeatureHoleType");
}

template <class T>
void ExcMfgFeatureHoleType<T>::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

// With each class come the walks over its description.
template class ExcMfgFeatureHoleType<ExcMfgSimpleHole>;
template class ExcMfgFeatureHoleType<ExcMfgTaperHole>;
template class ExcMfgFeatureHoleType<ExcMfgCounterBoreHole>;
template class ExcMfgFeatureHoleType<ExcMfgCounterSinkHole>;
template class ExcMfgFeatureHoleType<ExcMfgCounterDrillHole>;

} // namespace vrx
