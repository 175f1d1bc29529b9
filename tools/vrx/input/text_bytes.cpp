#include "input/text_bytes.h"

#include "arguments.h"
#include "json/utf.h"

namespace input
{

namespace
{

bool takePrefix(std::string_view& bytes, std::string_view prefix)
{
    const bool isThere = bytes.substr(0, prefix.size()) == prefix;
    if (isThere)
    {
        bytes.remove_prefix(prefix.size());
    }
    return isThere;
}

mp::wstring fromUtf16(std::string_view bytes, bool lowByteFirst)
{
    if (bytes.size() % 2 != 0)
    {
        throw tool::InputError("UTF-16 text ends within a unit");
    }
    mp::wstring text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i < bytes.size(); i += 2)
    {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        text.push_back(static_cast<mp::wchar>(lowByteFirst ? second << 8U | first : first << 8U | second));
    }
    return text;
}

} // namespace

mp::wstring textOfBytes(std::string_view bytes)
{
    if (takePrefix(bytes, "\xEF\xBB\xBF"))
    {
        return json::fromUtf8(bytes);
    }
    if (takePrefix(bytes, "\xFF\xFE"))
    {
        return fromUtf16(bytes, true);
    }
    if (takePrefix(bytes, "\xFE\xFF"))
    {
        return fromUtf16(bytes, false);
    }
    // The first character of a JSON text is ASCII.
    if (bytes.size() >= 2 && (bytes[0] == '\0') != (bytes[1] == '\0'))
    {
        return fromUtf16(bytes, bytes[1] == '\0');
    }
    try
    {
        return json::fromUtf8(bytes);
    }
    catch (const tool::InputError& error)
    {
        const bool isMeant = bytes.find_first_of("{[\"") < bytes.find_first_not_of(" \t\r\n{[\"");
        throw tool::InputError(error.what() + std::string(isMeant ? "" : "; it may be the bodies of a block"));
    }
}

} // namespace input
