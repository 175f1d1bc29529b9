#include "vrx_api/common/misc_data.h"

#include "vrx_api/json/fields.h"

namespace vrx
{

static constexpr EnumName<ExcMiscProperty::EType> kPropertyTypes[] = {
    {ExcMiscProperty::EType::Unknown, WIDE("unknown")}, {ExcMiscProperty::EType::String, WIDE("string")},
    {ExcMiscProperty::EType::Integer, WIDE("integer")}, {ExcMiscProperty::EType::Double, WIDE("double")},
    {ExcMiscProperty::EType::Boolean, WIDE("boolean")}, {ExcMiscProperty::EType::DateTime, WIDE("date_time")},
};
static constexpr const auto& enumTable(ExcMiscProperty::EType)
{
    return kPropertyTypes;
}

template <class Self, class Fields>
void ExcMiscProperty::describe(Self& self, Fields& fields)
{
    fields.always(WIDE("name"), self.m_name);
    fields.always(WIDE("type"), self.m_type);
    fields.always(WIDE("value"), self.m_value);
}
template struct Described<ExcMiscProperty>;

void ExcMiscProperty::readObject(const JsonValue& value)
{
    readFields(*this, value, kSilently);
}

void ExcMiscProperty::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeFields(*this, value, allocator);
}

ExcMiscProperty& ExcMiscProperty::setName(const wstring& name)
{
    m_name = name;
    return *this;
}

ExcMiscProperty& ExcMiscProperty::setType(EType type)
{
    m_type = type;
    return *this;
}

ExcMiscProperty& ExcMiscProperty::setValue(const wstring& value)
{
    m_value = value;
    return *this;
}

ExcMiscProperty& ExcMiscProperty::set(EType type, const wstring& value)
{
    return setType(type).setValue(value);
}

// An element that is no object leaves a default property, so that the array keeps its length.
template <class Self, class Fields>
void ExcMiscData::describe(Self& self, Fields& fields)
{
    fields.whole(self.m_properties);
}
template struct Described<ExcMiscData>;

void ExcMiscData::readObject(const JsonValue& value)
{
    readArray(*this, value, kSilently);
}

void ExcMiscData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeWhole(*this, value, allocator);
}

} // namespace vrx
