#pragma once

#include "vrx_api/json/json_read.h"
#include "vrx_api/json/json_write.h"
#include "vrx_api/json/outline.h"

#include <cstdint>

namespace vrx
{

// Data of components by the handles of the drawing: an array of objects, each with a handle and one member of data.

inline constexpr Key kHandleKey = WIDE("component_handle");

/// Gives each handle and its data to `take(std::uint64_t, T)`. What is no such object is passed over without a log
/// line.
template <class T, class Value, class Take>
void readEntries(const Value& array, Key dataKey, const Take& take)
{
    for (const Value element : array.elements())
    {
        if (!element.isObject())
        {
            continue;
        }
        const Value handleValue = findMember(element, kHandleKey);
        const Value dataValue = findMember(element, dataKey);
        std::uint64_t handle = 0;
        T data;
        if (handleValue.isThere() && dataValue.isThere() && decode(handleValue, handle) && decode(dataValue, data))
        {
            take(handle, data);
        }
    }
}

template <class Out, class Map>
void encodeEntries(Out& out, const Map& map, Key dataKey)
{
    const auto array = out.beginArray();
    for (const auto& [handle, data] : map)
    {
        const auto entry = out.beginObject();
        out.key(kHandleKey);
        out.scalar(static_cast<std::uint64_t>(handle));
        out.key(dataKey);
        encode(out, data);
        out.endObject(entry);
    }
    out.endArray(array);
}

/// `data` is like that of each entry.
template <class T>
void outlineEntries(Shape& shape, Key dataKey, const T& data)
{
    FieldLister entry;
    entry.always(kHandleKey, std::uint64_t());
    entry.always(dataKey, data);
    shape.kind = EShape::List;
    shape.parts.push_back(entry.take());
}

} // namespace vrx
