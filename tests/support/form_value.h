#pragma once

#include "mp/wide.h"
#include "vrx_api/json/binary_tag.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace test
{

/// A value of the binary form, to be changed at will: it holds all that the form can say and a tree's writer does not,
/// such as a small number under a tag for large ones. Its operations recurse: it is for forms of a few hundred levels.
struct FormValue
{
    vrx::BinaryTag tag = vrx::BinaryTag::Null;
    /// A number, or the units of a string.
    std::string bytes;
    /// The elements of an array. Those of an object are each name and its value in turn.
    std::vector<FormValue> children;

    bool isContainer() const { return tag == vrx::BinaryTag::Object || tag == vrx::BinaryTag::Array; }
    bool isString() const { return tag == vrx::BinaryTag::String; }
    bool isInteger() const { return tag >= vrx::BinaryTag::Int && tag <= vrx::BinaryTag::Uint64; }
};

/// How many bytes a number has.
inline std::size_t numberSize(vrx::BinaryTag tag)
{
    return tag < vrx::BinaryTag::Int ? 0 : tag <= vrx::BinaryTag::Uint ? sizeof(std::uint32_t) : sizeof(std::uint64_t);
}

template <class T>
FormValue number(vrx::BinaryTag tag, T value)
{
    FormValue form{tag, std::string(sizeof(T), '\0'), {}};
    std::memcpy(form.bytes.data(), &value, sizeof(T));
    return form;
}

inline FormValue string(mp::wstring_view units)
{
    FormValue form{vrx::BinaryTag::String, std::string(units.size() * sizeof(mp::wchar), '\0'), {}};
    std::memcpy(form.bytes.data(), units.data(), form.bytes.size());
    return form;
}

template <class T>
T takeFrom(const char*& at)
{
    T value;
    std::memcpy(&value, at, sizeof(T));
    at += sizeof(T);
    return value;
}

/// Takes the value at the place, which must be a whole one, and leaves the place behind it.
inline FormValue takeValue(const char*& at)
{
    FormValue value{takeFrom<vrx::BinaryTag>(at), {}, {}};
    if (value.isContainer())
    {
        const auto size = takeFrom<std::uint64_t>(at);
        for (const char* const end = at + size; at < end;)
        {
            value.children.push_back(takeValue(at));
        }
        return value;
    }
    const std::size_t size = value.isString() ? takeFrom<std::uint64_t>(at) * sizeof(mp::wchar) : numberSize(value.tag);
    value.bytes.assign(at, size);
    at += size;
    return value;
}

inline void append(std::string& form, const FormValue& value)
{
    const auto put = [&form](auto number) {
        form.append(sizeof(number), '\0');
        std::memcpy(&form[form.size() - sizeof(number)], &number, sizeof(number));
    };
    put(value.tag);
    if (value.isContainer())
    {
        std::string content;
        for (const FormValue& child : value.children)
        {
            append(content, child);
        }
        put(std::uint64_t{content.size()});
        form += content;
        return;
    }
    if (value.isString())
    {
        put(std::uint64_t{value.bytes.size() / sizeof(mp::wchar)});
    }
    form += value.bytes;
}

} // namespace test
