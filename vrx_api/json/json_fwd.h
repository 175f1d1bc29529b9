#pragma once

#include "mp/wide.h"

// RapidJSON's classes by name alone. Its headers come with json_value.h, for those who look into a value: a program
// that uses RapidJSON in a way of its own can include all other headers of this library.
namespace rapidjson
{

template <typename CharType>
struct UTF16;

class CrtAllocator;

template <typename BaseAllocator>
class MemoryPoolAllocator;

template <typename Encoding, typename Allocator>
class GenericValue;

template <typename Encoding, typename Allocator, typename StackAllocator>
class GenericDocument;

} // namespace rapidjson

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

/// RapidJSON with wide text: a value, the memory that it lives in, and a document, which has both.
using JsonEncoding = rapidjson::UTF16<wchar>;
using JsonAllocator = rapidjson::MemoryPoolAllocator<rapidjson::CrtAllocator>;
using JsonValue = rapidjson::GenericValue<JsonEncoding, JsonAllocator>;
using JsonDocument = rapidjson::GenericDocument<JsonEncoding, JsonAllocator, rapidjson::CrtAllocator>;

} // namespace vrx
