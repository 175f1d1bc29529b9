#pragma once

#include "mp/wide.h"

#ifndef RAPIDJSON_HAS_STDSTRING
#define RAPIDJSON_HAS_STDSTRING 0
#endif

#include <rapidjson/document.h>

namespace vrx
{

using mp::wchar;
using mp::wistream;
using mp::wistringstream;
using mp::wostream;
using mp::wostringstream;
using mp::wstring;
using mp::wstring_view;
using mp::wstringstream;

using JsonEncoding = rapidjson::UTF16<wchar>;
using JsonAllocator = rapidjson::MemoryPoolAllocator<rapidjson::CrtAllocator>;
using JsonValue = rapidjson::GenericValue<JsonEncoding, JsonAllocator>;
using JsonDocument = rapidjson::GenericDocument<JsonEncoding, JsonAllocator, rapidjson::CrtAllocator>;

} // namespace vrx
