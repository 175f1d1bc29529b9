#include "replay/buffer_name.h"

#include "vrx_api/exchange/envelope_keys.h"
#include "vrx_api/json/json_text_io.h"
#include "vrx_api/json/json_value.h"

#include <cstddef>

namespace replay
{

namespace
{

// The place behind the string that begins with the quotation mark here.
std::size_t endOfString(const mp::wstring& json, std::size_t begin)
{
    std::size_t end = begin + 1;
    while (end < json.size() && json[end] != '"')
    {
        end += json[end] == '\\' ? 2U : 1U;
    }
    return end + 1;
}

// What a string says without its escapes.
mp::wstring valueOf(const mp::wstring& quoted)
{
    if (quoted.find('\\') == mp::wstring::npos)
    {
        return quoted.substr(1, quoted.size() - 2);
    }
    mp::wstringstream stream(quoted);
    vrx::JsonDocument string;
    vrx::JsonTextIO::read(stream, string);
    return string.IsString() ? string.GetString() : mp::wstring();
}

} // namespace

// Of two strings that follow each other, the first may be a key and the second its value.
mp::wstring withBufferName(const mp::wstring& message, const mp::wstring& before, const mp::wstring& after)
{
    mp::wstring previous;
    std::size_t end = 0;
    for (std::size_t begin = message.find('"'); begin != mp::wstring::npos; begin = message.find('"', end))
    {
        end = endOfString(message, begin);
        const mp::wstring value = valueOf(message.substr(begin, end - begin));
        if (value == before && (previous == vrx::kEnvelopeData.text || previous == vrx::kObjectBufferName.text))
        {
            return message.substr(0, begin + 1) + after + message.substr(end - 1);
        }
        previous = value;
    }
    return message;
}

} // namespace replay
