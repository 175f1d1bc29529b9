#pragma once

#include "vrx_api/json/json_value.h"

/// The name of an enumeration's value that an object has, as the object writes it under a key.
inline mp::wstring wireName(const vrx::IJsonObject& object, const mp::wchar* key)
{
    vrx::JsonDocument document;
    object.writeObject(document, document.GetAllocator());
    const auto found = document.FindMember(key);
    return found != document.MemberEnd() && found->value.IsString() ? found->value.GetString() : mp::wstring();
}
