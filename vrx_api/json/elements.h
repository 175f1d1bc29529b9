#pragma once

#include "kolt/log.h"
#include "vrx_api/json/json_read.h"
#include "vrx_api/json/json_write.h"
#include "vrx_api/json/kind.h"

namespace vrx
{

/// The `readObject` of a class that is an array: the trace line, the kind test with its message, and its elements,
/// which are appended.
template <class T>
void readElements(std::vector<T>& elements, const JsonValue& value, const char* className,
                  kolt::SourcePlace place = kolt::SourcePlace::current())
{
    kolt::trace(place);
    if (isArray(value, className))
    {
        decode(value, elements);
    }
}

/// The `writeObject` of a class that is an array.
template <class T>
void writeElements(const std::vector<T>& elements, JsonValue& value, JsonAllocator& allocator,
                   kolt::SourcePlace place = kolt::SourcePlace::current())
{
    kolt::trace(place);
    value = encode(elements, allocator);
}

} // namespace vrx
