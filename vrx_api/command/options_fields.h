#pragma once

#include "vrx_api/json/fields.h"

namespace vrx
{

// What the descriptions of several options have in common.

template <class Fields, class Text>
void describeFile(Fields& fields, Text& file)
{
    fields.required(WIDE("file"), "Json document has no valid file path.", file);
}

template <class Fields, class Text>
void describeTemporaryDwg(Fields& fields, Text& path)
{
    fields.required(WIDE("temporary_dwg"), "Json document has no valid temporary dwg path.", path);
}

/// Writes a debug line at this place of a reading.
template <class Fields, class... Parts>
void logReading(const Fields&, const Parts&... parts)
{
    if constexpr (Fields::kReads)
    {
        kolt::log(kolt::kDebug, parts...);
    }
}

/// The `readObject` of options. Unlike a regular class they throw when the value is no object.
template <class T>
void readOptions(T& options, const JsonValue& value, kolt::SourcePlace place = kolt::SourcePlace::current())
{
    static_cast<void>(&Listed<T>::s_entered);
    kolt::trace(place);
    requireObject(value, "!object.IsObject()");
    readMembers(options, value);
}

} // namespace vrx
