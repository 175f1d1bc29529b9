#include "json/parse.h"

#include "arguments.h"
#include "json/depth.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/json/binary_tag.h"
#include "vrx_api/json/json_text_io.h"

#include <rapidjson/error/en.h>

#include <algorithm>
#include <cstring>
#include <exception>
#include <string>

namespace json
{

namespace
{

std::string placeOf(mp::wstring_view text, std::size_t offset)
{
    const mp::wstring_view before = text.substr(0, offset);
    const auto lines = std::count(before.begin(), before.end(), mp::wchar{'\n'});
    const std::size_t lineBegin = before.rfind(mp::wchar{'\n'}) + 1; // npos + 1 is 0
    return "line " + std::to_string(lines + 1) + ", column " + std::to_string(before.size() - lineBegin + 1);
}

} // namespace

vrx::JsonDocument parse(const mp::wstring& text)
{
    requireDepth(text);
    mp::wistringstream stream(text);
    vrx::JsonDocument document;
    vrx::JsonTextIO::read(stream, document);
    if (document.HasParseError())
    {
        throw tool::InputError("no JSON: " + std::string(rapidjson::GetParseError_En(document.GetParseError())) + " (" +
                               placeOf(text, document.GetErrorOffset()) + ')');
    }
    return document;
}

bool isBinaryForm(const char* bytes, std::uint64_t size)
{
    vrx::BinaryTag tag{};
    if (size < sizeof(tag))
    {
        return false;
    }
    std::memcpy(&tag, bytes, sizeof(tag));
    return tag == vrx::BinaryTag::Object || tag == vrx::BinaryTag::Array;
}

vrx::JsonDocument parseBinaryForm(const char* bytes, std::uint64_t size)
{
    requireDepth(bytes, size);
    vrx::JsonDocument document;
    try
    {
        vrx::JsonBinaryIO::read(bytes, size, document, document.GetAllocator());
    }
    catch (const std::exception& error)
    {
        throw tool::InputError("damaged binary form: " + std::string(error.what()));
    }
    return document;
}

} // namespace json
