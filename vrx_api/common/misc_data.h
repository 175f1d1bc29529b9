#pragma once

#include "vrx_api/json/json_object.h"

#include <cstdint>
#include <vector>

namespace vrx
{

/// A free property of CAD data. The value is text whatever its type: the library never converts or checks it.
class VRX_API ExcMiscProperty : public IJsonObject
{
public:
    enum class EType : std::int32_t
    {
        Unknown = 0,
        String = 1,
        Integer = 2,
        Double = 3,
        Boolean = 4,
        DateTime = 5,
    };

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    const wstring& name() const { return m_name; }
    ExcMiscProperty& setName(const wstring& name);

    EType type() const { return m_type; }
    ExcMiscProperty& setType(EType type);

    const wstring& value() const { return m_value; }
    ExcMiscProperty& setValue(const wstring& value);

    /// Sets the type and the value.
    ExcMiscProperty& set(EType type, const wstring& value);

private:
    friend struct Described<ExcMiscProperty>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    wstring m_name;
    EType m_type = EType::Unknown;
    wstring m_value;
};

/// The free properties of a model object in their order, duplicates allowed. Its JSON is an array.
class VRX_API ExcMiscData : public IJsonObject
{
public:
    /// Appends to the properties that are here.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The properties in their order.
    const std::vector<ExcMiscProperty>& properties() const { return m_properties; }
    /// Whether there is no property; it then does not cross.
    bool isEmpty() const { return m_properties.empty(); }

    /// Appends a copy, of a temporary too.
    void emplaceProperty(const ExcMiscProperty& property) { m_properties.push_back(property); }
    void emplaceProperty(ExcMiscProperty&& property) { emplaceProperty(static_cast<const ExcMiscProperty&>(property)); }

    /// Removes all properties.
    void clearProperties() { m_properties.clear(); }

private:
    friend struct Described<ExcMiscData>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    std::vector<ExcMiscProperty> m_properties;
};

} // namespace vrx
