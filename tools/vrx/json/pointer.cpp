#include "json/pointer.h"

#include "arguments.h"
#include "json/member.h"
#include "json/utf.h"
#include "printing/escaped.h"

#include <algorithm>
#include <cstdint>

namespace json
{

namespace
{

// "~1" is a slash and "~0" a tilde.
mp::wstring unescaped(mp::wstring_view part)
{
    mp::wstring name;
    for (std::size_t i = 0; i < part.size(); ++i)
    {
        if (part[i] != '~')
        {
            name.push_back(part[i]);
            continue;
        }
        const mp::wchar next = ++i < part.size() ? part[i] : mp::wchar{};
        if (next != '0' && next != '1')
        {
            throw tool::UsageError("a ~ in a pointer is written ~0, and a / in a name ~1");
        }
        name.push_back(next == '1' ? '/' : '~');
    }
    return name;
}

const vrx::JsonValue* element(const vrx::JsonValue& array, mp::wstring_view place)
{
    constexpr std::size_t kLongest = 10;
    if (place.empty() || place.size() > kLongest || (place[0] == '0' && place.size() > 1))
    {
        return nullptr;
    }
    std::uint64_t index = 0;
    for (const mp::wchar digit : place)
    {
        if (digit < '0' || digit > '9')
        {
            return nullptr;
        }
        index = index * 10 + (digit - '0');
    }
    return index < array.Size() ? &array[static_cast<rapidjson::SizeType>(index)] : nullptr;
}

} // namespace

Pointer pointerOf(const std::string& text)
{
    const mp::wstring wide = fromUtf8(text);
    Pointer pointer;
    if (!wide.empty() && wide[0] != '/')
    {
        throw tool::UsageError("a pointer begins with /: " + text);
    }
    for (std::size_t begin = 0; begin < wide.size();)
    {
        const std::size_t end = std::min(wide.find(mp::wchar{'/'}, begin + 1), wide.size());
        pointer.push_back(unescaped(mp::wstring_view(wide).substr(begin + 1, end - begin - 1)));
        begin = end;
    }
    return pointer;
}

const vrx::JsonValue* resolve(const vrx::JsonValue& root, const Pointer& pointer)
{
    const vrx::JsonValue* value = &root;
    for (const mp::wstring& part : pointer)
    {
        value = value->IsArray() ? element(*value, part) : member(*value, part);
        if (value == nullptr)
        {
            return nullptr;
        }
    }
    return value;
}

void appendPart(mp::wstring& pointer, mp::wstring_view name)
{
    pointer += '/';
    for (const mp::wchar unit : name)
    {
        if (unit == '~' || unit == '/')
        {
            pointer += unit == '~' ? WIDE("~0") : WIDE("~1");
        }
        else
        {
            pointer += unit;
        }
    }
}

std::string pointerPart(mp::wstring_view name)
{
    mp::wstring part;
    appendPart(part, name);
    return printing::escaped(part);
}

} // namespace json
