#include "vrx_api/mechanical/misc_material_property_unit.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

static constexpr EnumName<EUnitSystemType> kUnitSystems[] = {
    {EUnitSystemType::Unknown, WIDE("unknown")}, {EUnitSystemType::Mks, WIDE("mks")},
    {EUnitSystemType::Cgs, WIDE("cgs")},         {EUnitSystemType::Fps, WIDE("fps")},
    {EUnitSystemType::Ips, WIDE("ips")},         {EUnitSystemType::Mmks, WIDE("mmks")},
    {EUnitSystemType::Mmns, WIDE("mmns")},       {EUnitSystemType::Ipscreo, WIDE("ipscreo")},
    {EUnitSystemType::Si, WIDE("si")},           {EUnitSystemType::NotApplicable, WIDE("not_applicable")},
    {EUnitSystemType::Custom, WIDE("custom")},
};
static constexpr const auto& enumTable(EUnitSystemType)
{
    return kUnitSystems;
}

template <class Self, class Fields>
void ExcMiscMaterialPropertyUnit::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("units"), self.m_units);
    fields.always(WIDE("unit_system"), self.m_unitSystem);
}
template struct Described<ExcMiscMaterialPropertyUnit>;

void ExcMiscMaterialPropertyUnit::readObject(const JsonValue& value)
{
    readFields(*this, value, "ExcMiscMaterialPropertyUnit");
}

void ExcMiscMaterialPropertyUnit::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

} // namespace vrx
