#include "json/member.h"

#include <algorithm>

namespace json
{

const vrx::JsonValue* member(const vrx::JsonValue& value, mp::wstring_view name)
{
    if (!value.IsObject())
    {
        return nullptr;
    }
    const auto found = std::find_if(value.MemberBegin(), value.MemberEnd(), [name](const auto& member) {
        return member.name.IsString() && textOf(member.name) == name;
    });
    return found == value.MemberEnd() ? nullptr : &found->value;
}

} // namespace json
