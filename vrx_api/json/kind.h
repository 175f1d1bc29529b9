#pragma once

#include "vrx_api/json/json_fwd.h"

namespace vrx
{

/// Given in place of a text: nothing is logged.
constexpr const char* kSilently = nullptr;

/// Returns whether a class's value is an object, which is given, and logs when it is not.
bool expectObject(bool isObject, const char* className);

/// True for an object; otherwise logs that the class's value should be one.
bool isObject(const JsonValue& value, const char* className);

template <class Value>
bool isObject(const Value& value, const char* className)
{
    return expectObject(value.isObject(), className);
}

/// True for an array; otherwise logs that the class's value should be one.
bool isArray(const JsonValue& value, const char* className);

/// Throws `std::invalid_argument` with the given message when the value is no object.
void requireObject(const JsonValue& value, const char* message);

/// Throws `std::invalid_argument` with the given message when the value is no array.
void requireArray(const JsonValue& value, const char* message);

} // namespace vrx
