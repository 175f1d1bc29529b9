#pragma once

#include "vrx_api/format_options/format_options.h"
#include "vrx_api/format_options/shared_mode_tables.h"
#include "vrx_api/json/fields.h"

#include <set>

namespace vrx
{

/// An array of names adds those of its elements that are strings.
template <class E>
void decode(const JsonValue& value, std::set<E>& field)
{
    if (!value.IsArray())
    {
        return;
    }
    for (const JsonValue& element : value.GetArray())
    {
        if (element.IsString())
        {
            field.insert(enumValue<E>(textOf(element)));
        }
    }
}

/// An array of names in the order of their numbers.
template <class E>
JsonValue encode(const std::set<E>& field, JsonAllocator& allocator)
{
    JsonValue array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(field.size()), allocator);
    for (const E mode : field)
    {
        array.PushBack(encode(mode, allocator), allocator);
    }
    return array;
}

template <class E>
bool isEmpty(const std::set<E>& field)
{
    return field.empty();
}

namespace imp
{

/// The `readObject` of the settings of one format. Unlike the other regular classes, these leave no trace line.
template <class T>
void readOptionFields(T& options, const JsonValue& value, const char* className)
{
    if (isObject(value, className))
    {
        // A wrong operation or format is only logged.
        options.FormatOptions::readObject(value);
        readMembers(options, value);
    }
}

/// The `writeObject` of the settings of one format: its own members behind the two that name it.
template <class T>
void writeOptionFields(const T& options, JsonValue& value, JsonAllocator& allocator)
{
    constexpr rapidjson::SizeType kIdentity = 2;
    FieldCounter counter;
    FieldAccess::describe(options, counter);
    setObject(value, kIdentity + counter.count(), allocator);
    options.FormatOptions::writeObject(value, allocator);
    FieldWriter writer(value, allocator);
    FieldAccess::describe(options, writer);
}

} // namespace imp

} // namespace vrx
