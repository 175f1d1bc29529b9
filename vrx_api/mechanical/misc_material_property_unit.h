#pragma once

#include "vrx_api/json/json_object.h"

#include <cstdint>

namespace vrx
{

/// The systems of units, mostly named after their base units: "mks" is meter, kilogram, second.
enum class EUnitSystemType : std::int32_t
{
    Unknown = 0,
    Mks = 1,
    Cgs = 2,
    Fps = 3,
    Ips = 4,
    Mmks = 5,
    Mmns = 6,
    Ipscreo = 7,
    Si = 8,
    NotApplicable = 9,
    Custom = 10,
};

/// A unit by its name, and the system that it belongs to. No other class holds one: the unit of a material's property
/// is an `ExcMiscMaterialProperty::Unit`.
class VRX_API ExcMiscMaterialPropertyUnit : public IJsonObject
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& units() const { return m_units; }
    void setUnits(const wstring& units) { m_units = units; }

    EUnitSystemType unitSystem() const { return m_unitSystem; }
    void setUnitSystem(EUnitSystemType system) { m_unitSystem = system; }

private:
    friend struct Described<ExcMiscMaterialPropertyUnit>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_units;
    EUnitSystemType m_unitSystem = EUnitSystemType::Unknown;
};

} // namespace vrx
