#include "vrx_api/mechanical/unit_component.h"

#include "vrx_api/common/unit_tables.h"
#include "vrx_api/json/fields.h"

namespace vrx
{

template <class T>
template <class Self, class Fields>
void ExcUnitComponent<T>::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("dimension"), self.m_dimension);
    fields.always(WIDE("units"), self.m_units);
}

template <class T>
void ExcUnitComponent<T>::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcUnitComponent");
}

template <class T>
void ExcUnitComponent<T>::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

// With each class come the walks over its description. They are exported by themselves: Clang hides a class whose
// argument is hidden, as an enumeration is.
template class VRX_API ExcUnitComponent<EMassUnitType>;
template class VRX_API ExcUnitComponent<ELengthUnitType>;
template class VRX_API ExcUnitComponent<ETimeUnitType>;
template class VRX_API ExcUnitComponent<ETemperatureUnitType>;

} // namespace vrx
