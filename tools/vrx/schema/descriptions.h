#pragma once

#include "vrx_api/json/shape.h"

#include <string>

namespace schema
{

/// The name of a class's definition: a reference holds it as it is, but for the brackets of a template.
std::string definitionName(const vrx::ClassShape& shape);

/// What is said of a key beside its form; empty for nothing.
std::string describe(const vrx::FieldShape& field);

} // namespace schema
