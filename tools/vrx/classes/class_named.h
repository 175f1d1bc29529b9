#pragma once

#include "mp/wide.h"
#include "vrx_api/json/shape.h"

#include <string>

namespace classes
{

/// The class of the exchange objects of this wire name, such as "exc_block_geometry", or null.
const vrx::ClassShape* ofObject(const mp::wstring& wireName);

/// The class of this name, which is that in C++, such as "ExcBlock", or the wire name of an exchange object; or null.
const vrx::ClassShape* named(const std::string& name);

} // namespace classes
