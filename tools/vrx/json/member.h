#pragma once

#include "mp/wide.h"
#include "vrx_api/json/json_value.h"

namespace json
{

/// The text of a string value, which may hold any unit.
inline mp::wstring_view textOf(const vrx::JsonValue& string)
{
    return {string.GetString(), string.GetStringLength()};
}

/// The value of the first member of this name, or null, which stands for what is no object, too. A member whose name is
/// no string is passed over: the binary form can carry any value in a name's place.
const vrx::JsonValue* member(const vrx::JsonValue& value, mp::wstring_view name);

} // namespace json
