#pragma once

#include "tests/support/helpers.h"
#include "tests/support/json_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

namespace test
{

/// A name of an enumeration. Without a number of its own it has the number after that of the name before it, and the
/// first one 0.
struct EnumEntry
{
    EnumEntry(const char* text) // NOLINT(google-explicit-constructor): a list of names is written as their literals
        : name(text)
    {
    }
    EnumEntry(std::int64_t ownNumber, const char* text)
        : number(ownNumber)
        , name(text)
    {
    }

    std::optional<std::int64_t> number;
    std::string name;
};

/// An enumeration: every number with its name, in the order of the numbers, and what a number and a name outside the
/// list give.
struct EnumRow
{
    std::string title;
    std::function<std::string(std::int64_t)> nameOf;
    std::function<std::int64_t(const std::string&)> numberOf;
    std::vector<EnumEntry> entries;
    std::string ofUnlistedName;
    std::string ofUnlistedNumber;

    /// What an unlisted number writes when it is not the first name.
    EnumRow unlistedNumberWrites(const char* name) &&
    {
        ofUnlistedNumber = name;
        return std::move(*this);
    }

    /// The number of a listed name.
    std::int64_t listedNumber(const std::string& name) const
    {
        const auto found =
            std::find_if(entries.begin(), entries.end(), [&](const EnumEntry& entry) { return entry.name == name; });
        EXPECT_NE(found, entries.end()) << name;
        return found == entries.end() ? 0 : *found->number;
    }

    bool lists(std::int64_t number) const
    {
        return std::any_of(entries.begin(), entries.end(),
                           [&](const EnumEntry& entry) { return entry.number == number; });
    }

    friend std::ostream& operator<<(std::ostream& stream, const EnumRow& row) { return stream << row.title; }
};

/// A row of two functions: the name of a number and the number of a name, both as the library has them.
template <class E, class NameOf, class NumberOf>
EnumRow enumRow(const char* title, NameOf nameOf, NumberOf numberOf, std::vector<EnumEntry> entries,
                const char* ofUnlistedName)
{
    std::int64_t next = 0;
    for (EnumEntry& entry : entries)
    {
        entry.number = entry.number.value_or(next);
        next = *entry.number + 1;
    }
    const std::string first = entries.front().name;
    return {title,
            [nameOf](std::int64_t number) { return mp::toNarrow(nameOf(static_cast<E>(number))); },
            [numberOf](const std::string& name) { return static_cast<std::int64_t>(numberOf(wide(name))); },
            std::move(entries),
            ofUnlistedName,
            first};
}

namespace detail
{

template <class T, class Getter>
struct ObjectOf
{
    using Type = T;
};
template <class R, class C>
struct ObjectOf<void, R (C::*)() const>
{
    using Type = C;
};

/// The text that a value holds where the pattern has "?".
inline std::optional<mp::wstring> textAtPlace(const vrx::JsonValue& pattern, const vrx::JsonValue& value)
{
    if (pattern.IsString() && pattern.GetString() == mp::wstring(WIDE("?")))
    {
        return value.IsString() ? value.GetString() : WIDE("no text");
    }
    if (pattern.IsObject() && value.IsObject())
    {
        for (const auto& member : pattern.GetObject())
        {
            const auto found = value.FindMember(member.name);
            auto text = found == value.MemberEnd() ? std::nullopt : textAtPlace(member.value, found->value);
            if (text.has_value())
            {
                return text;
            }
        }
    }
    if (pattern.IsArray() && value.IsArray())
    {
        for (rapidjson::SizeType i = 0; i < std::min(pattern.Size(), value.Size()); ++i)
        {
            if (auto text = textAtPlace(pattern[i], value[i]))
            {
                return text;
            }
        }
    }
    return std::nullopt;
}

/// The pattern with a name in its place.
inline std::string withName(std::string pattern, const mp::wstring& name)
{
    const std::string place = R"("?")";
    return pattern.replace(pattern.find(place), place.size(), '"' + mp::toNarrow(name) + '"');
}

} // namespace detail

/// A row of a class's getter and setter, each a member function or a function of an object. The key is that of a member
/// of the class, or a whole text with "?" in the place of the name, such as R"({"wrap_mode":{"u":"?"}})".
/// The class is that of the getter if none is given: give one to a getter of an abstract base.
template <class T = void, class Getter, class Setter>
EnumRow enumRow(const char* title, const std::string& key, Getter getter, Setter setter, std::vector<EnumEntry> entries,
                const char* ofUnlistedName)
{
    using Object = typename detail::ObjectOf<T, Getter>::Type;
    using E = std::decay_t<std::invoke_result_t<Getter, const Object&>>;
    const std::string pattern = key.find('"') == std::string::npos ? R"({")" + key + R"(":"?"})" : key;
    return enumRow<E>(
        title,
        [=](E value) {
            Object object;
            std::invoke(setter, object, value);
            return detail::textAtPlace(parsed(pattern), parsed(written(object))).value_or(WIDE("nothing written"));
        },
        [=](const mp::wstring& name) {
            const auto object = readFrom<Object>(detail::withName(pattern, name));
            return std::invoke(getter, object);
        },
        std::move(entries), ofUnlistedName);
}

/// One test a row: instantiate it in the test file of the classes, with a table of rows.
class EnumRows : public testing::TestWithParam<EnumRow>
{
public:
    static std::string nameOf(const testing::TestParamInfo<EnumRow>& info) { return testName(info.param.title); }

    static void check(const EnumRow& row)
    {
        for (const EnumEntry& entry : row.entries)
        {
            EXPECT_EQ(row.nameOf(*entry.number), entry.name);
            EXPECT_EQ(row.numberOf(entry.name), *entry.number) << entry.name;
            for (const std::int64_t neighbour : {*entry.number - 1, *entry.number + 1})
            {
                if (!row.lists(neighbour))
                {
                    EXPECT_EQ(row.nameOf(neighbour), row.ofUnlistedNumber) << neighbour;
                }
            }
        }
        const std::string last = row.entries.back().name;
        for (const std::string& name : {std::string(), std::string("?"), last + ' ', inOtherCase(last)})
        {
            EXPECT_EQ(row.numberOf(name), row.listedNumber(row.ofUnlistedName)) << name;
        }
    }

private:
    static std::string inOtherCase(std::string text)
    {
        for (char& c : text)
        {
            const auto letter = static_cast<unsigned char>(c);
            c = static_cast<char>(std::islower(letter) != 0 ? std::toupper(letter) : std::tolower(letter));
        }
        return text;
    }
};

} // namespace test
