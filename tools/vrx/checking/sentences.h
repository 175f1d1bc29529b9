#pragma once

#include "vrx_api/json/json_value.h"
#include "vrx_api/json/shape.h"

#include <string>

namespace checking
{

// What is said of a value that is not what its class tells.

/// "a number", "an array".
const char* kindOf(const vrx::JsonValue& value);

std::string wrongKind(const vrx::JsonValue& value, const vrx::Shape& shape);

/// Of a number where another kind of number is read.
std::string wrongNumber(const vrx::JsonValue& value, const vrx::Shape& shape);

/// Of an object that is of none of the classes that may stand in its place.
std::string unknownObject(const vrx::JsonValue& value);

} // namespace checking
