#include "structure/misc_properties.h"

#include "mp/narrow.h"

#include <charconv>
#include <string>
#include <string_view>

mp::wstring numberText(double value)
{
    char text[64];
    const std::to_chars_result end = std::to_chars(text, text + sizeof text, value);
    return mp::toWide(std::string_view(text, static_cast<std::size_t>(end.ptr - text)));
}

void add(vrx::ExcMiscData& data, const mp::wstring& name, vrx::ExcMiscProperty::EType type, const mp::wstring& value)
{
    data.emplaceProperty(vrx::ExcMiscProperty().setName(name).set(type, value));
}

void add(vrx::ExcMiscData& data, const mp::wstring& name, double value)
{
    add(data, name, vrx::ExcMiscProperty::EType::Double, numberText(value));
}

void add(vrx::ExcMiscData& data, const mp::wstring& name, int value)
{
    add(data, name, vrx::ExcMiscProperty::EType::Integer, mp::toWide(std::to_string(value)));
}

void addText(vrx::ExcMiscData& data, const mp::wstring& name, vrx::ExcMiscProperty::EType type, const mp::wstring& text)
{
    if (text.find_first_not_of(WIDE(' ')) != mp::wstring::npos)
    {
        add(data, name, type, text);
    }
}
