#include "json/depth.h"

#include "arguments.h"
#include "vrx_api/json/binary_tag.h"

#include <cstring>
#include <vector>

namespace json
{

namespace
{

void require(std::size_t depth)
{
    if (depth > kDeepest)
    {
        throw tool::InputError("nested deeper than " + std::to_string(kDeepest) + " levels");
    }
}

// The place behind a string that begins at the place.
std::size_t behindString(mp::wstring_view text, std::size_t place)
{
    for (++place; place < text.size() && text[place] != '"'; ++place)
    {
        place += text[place] == '\\' ? 1U : 0U;
    }
    return place + 1;
}

template <class T>
bool take(const char* form, std::uint64_t size, std::uint64_t& place, T& value)
{
    if (size - place < sizeof(T))
    {
        return false;
    }
    std::memcpy(&value, form + place, sizeof(T));
    place += sizeof(T);
    return true;
}

// How many bytes a value has behind its tag, those of a container's children left out.
std::uint64_t sizeBehindTag(vrx::BinaryTag tag, std::uint64_t count)
{
    switch (tag)
    {
    case vrx::BinaryTag::Int:
    case vrx::BinaryTag::Uint:
        return sizeof(std::uint32_t);
    case vrx::BinaryTag::Int64:
    case vrx::BinaryTag::Uint64:
    case vrx::BinaryTag::Double:
    case vrx::BinaryTag::Object:
    case vrx::BinaryTag::Array:
        return sizeof(std::uint64_t);
    case vrx::BinaryTag::String:
        return sizeof(std::uint64_t) + count * sizeof(mp::wchar);
    default:
        return 0;
    }
}

} // namespace

void requireDepth(mp::wstring_view text)
{
    std::size_t depth = 0;
    for (std::size_t place = 0; place < text.size();)
    {
        const mp::wchar unit = text[place];
        if (unit == '"')
        {
            place = behindString(text, place);
            continue;
        }
        if (unit == '[' || unit == '{')
        {
            require(++depth);
        }
        else if ((unit == ']' || unit == '}') && depth > 0)
        {
            --depth;
        }
        ++place;
    }
}

void requireDepth(const char* form, std::uint64_t size)
{
    std::vector<std::uint64_t> ends;
    std::uint64_t place = 0;
    vrx::BinaryTag tag{};
    while (take(form, size, place, tag))
    {
        std::uint64_t count = 0;
        std::uint64_t behind = place;
        const bool isContainer = tag == vrx::BinaryTag::Object || tag == vrx::BinaryTag::Array;
        if ((isContainer || tag == vrx::BinaryTag::String) && (!take(form, size, behind, count) || count > size))
        {
            return;
        }
        const std::uint64_t step = sizeBehindTag(tag, count);
        if (step > size - place)
        {
            return;
        }
        place += step;
        if (isContainer)
        {
            ends.push_back(place + count);
            require(ends.size());
        }
        while (!ends.empty() && ends.back() <= place)
        {
            ends.pop_back();
        }
    }
}

} // namespace json
