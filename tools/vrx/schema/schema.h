#pragma once

#include "vrx_api/json/shape.h"

#include <string>

/// What the classes tell of the wire as JSON Schema, draft 2020-12: texts in UTF-8, the same in each run.
namespace schema
{

/// Of any message, with definitions of all classes.
std::string ofMessages();

/// Of one class, with definitions of the classes that it needs.
std::string ofClass(const vrx::ClassShape& shape);

} // namespace schema
