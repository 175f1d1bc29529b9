#include "vrx_api/mechanical/misc_symmetry.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

using ETransformMode = ExcMiscSymmetry::ETransformMode;

static constexpr EnumName<ETransformMode> kTransformModes[] = {
    {ETransformMode::None, WIDE("none")},
    {ETransformMode::Opposite, WIDE("opposite")},
    {ETransformMode::Both, WIDE("both")},
};
static constexpr const auto& enumTable(ETransformMode)
{
    return kTransformModes;
}

template <class Self, class Fields>
void ExcMiscSymmetry::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("transform_mode"), self.m_transformMode);
    fields.always(WIDE("transformation"), self.m_transformation);
    fields.filled(WIDE("linked_entity"), self.m_linkedEntity);
}
template struct Described<ExcMiscSymmetry>;

void ExcMiscSymmetry::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMiscSymmetry");
}

void ExcMiscSymmetry::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
