#pragma once

#include "vrx_api/json/json_read.h"
#include "vrx_api/json/json_write.h"

#include <cstdint>

namespace vrx
{

// Data of components by the handles of the drawing: an array of objects, each with a handle and one member of data.

inline constexpr Key kHandleKey = WIDE("component_handle");

/// Gives each handle and its data to `take(std::uint64_t, T)`. What is no such object is passed over without a log
/// line.
template <class T, class Take>
void readEntries(const JsonValue& array, Key dataKey, const Take& take)
{
    for (const JsonValue& element : array.GetArray())
    {
        const JsonValue* const handleValue = element.IsObject() ? find(element, kHandleKey) : nullptr;
        const JsonValue* const dataValue = element.IsObject() ? find(element, dataKey) : nullptr;
        std::uint64_t handle = 0;
        T data;
        if (handleValue != nullptr && dataValue != nullptr && decode(*handleValue, handle) && decode(*dataValue, data))
        {
            take(handle, data);
        }
    }
}

template <class Map>
JsonValue encodeEntries(const Map& map, Key dataKey, JsonAllocator& allocator)
{
    JsonValue array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(map.size()), allocator);
    for (const auto& [handle, data] : map)
    {
        JsonValue entry;
        setObject(entry, 2, allocator);
        addMember(entry, kHandleKey, JsonValue(static_cast<std::uint64_t>(handle)), allocator);
        addMember(entry, dataKey, encode(data, allocator), allocator);
        array.PushBack(entry, allocator);
    }
    return array;
}

} // namespace vrx
