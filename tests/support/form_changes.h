#pragma once

#include "tests/support/form_value.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <utility>

namespace test
{

/// A value in a form: the child of this number.
struct FormPlace
{
    FormValue* parent;
    std::size_t index;
};

/// All values inside another one, at any depth, the names of members among them.
inline void addPlaces(FormValue& parent, std::vector<FormPlace>& places)
{
    for (std::size_t i = 0; i < parent.children.size(); ++i)
    {
        places.push_back({&parent, i});
        addPlaces(parent.children[i], places);
    }
}

/// Changes a child. Members are changed as if an array's elements were such, too.
using FormChange = std::function<void(FormValue& parent, std::size_t index)>;

/// A value of each kind, and numbers at the bounds of fields.
inline std::vector<FormValue> sampleValues()
{
    using Tag = vrx::BinaryTag;
    const FormValue one = number(Tag::Int, 1);
    const auto array = [](std::vector<FormValue> elements) { return FormValue{Tag::Array, {}, std::move(elements)}; };
    std::vector<FormValue> samples = {
        {Tag::Null, {}, {}},
        {Tag::False, {}, {}},
        {Tag::True, {}, {}},
        {Tag::Object, {}, {}},
        {Tag::Object, {}, {string(WIDE("type")), one, string(WIDE("rgb")), array({})}},
        array({}),
        array({{Tag::Null, {}, {}}}),
        array({one, one, one}),
        array({string(WIDE("x"))}),
        array({array({})}),
        array({{Tag::Object, {}, {}}}),
        string(WIDE("")),
        string(WIDE("other")),
    };
    for (const std::int32_t value : {0, -1, 7, 70000, std::numeric_limits<std::int32_t>::min()})
    {
        samples.push_back(number(Tag::Int, value));
    }
    for (const std::uint32_t value : {7U, std::numeric_limits<std::uint32_t>::max()})
    {
        samples.push_back(number(Tag::Uint, value));
    }
    for (const std::int64_t value : {std::int64_t{-7}, std::int64_t{1} << 32, -(std::int64_t{1} << 40)})
    {
        samples.push_back(number(Tag::Int64, value));
    }
    for (const std::uint64_t value : {std::uint64_t{7}, std::numeric_limits<std::uint64_t>::max()})
    {
        samples.push_back(number(Tag::Uint64, value));
    }
    for (const double value : {1.5, -0.0, 1e300, std::nan("")})
    {
        samples.push_back(number(Tag::Double, value));
    }
    return samples;
}

/// An integer under another tag.
inline void changeTag(FormValue& value, vrx::BinaryTag tag)
{
    if (value.isInteger())
    {
        const bool negative = (value.tag == vrx::BinaryTag::Int || value.tag == vrx::BinaryTag::Int64) &&
                              (static_cast<unsigned char>(value.bytes.back()) & 0x80U) != 0;
        value.tag = tag;
        value.bytes.resize(numberSize(tag), negative ? '\xFF' : '\0');
    }
}

/// The changes of which one or a few make a form that a reader must be ready for. Some leave an object that ends with a
/// name, or no value at all.
inline std::vector<FormChange> formChanges()
{
    std::vector<FormChange> changes;
    for (const FormValue& sample : sampleValues())
    {
        changes.emplace_back([sample](FormValue& parent, std::size_t i) { parent.children[i] = sample; });
    }
    for (const auto tag : {vrx::BinaryTag::Int, vrx::BinaryTag::Uint, vrx::BinaryTag::Int64, vrx::BinaryTag::Uint64,
                           vrx::BinaryTag::Double})
    {
        changes.emplace_back([tag](FormValue& parent, std::size_t i) { changeTag(parent.children[i], tag); });
    }

    // The value itself: a string that ends early, a container with fewer, more and other children.
    const auto ofValue = [&changes](auto change) {
        changes.emplace_back([change](FormValue& parent, std::size_t i) { change(parent.children[i]); });
    };
    for (const bool atFront : {false, true})
    {
        ofValue([atFront](FormValue& value) {
            if (value.isString())
            {
                value.bytes.insert(atFront ? 0 : value.bytes.size(), std::string("\0\0x\0", 4));
            }
        });
    }
    ofValue([](FormValue& value) { value.children.resize(value.children.size() / 4 * 2); });
    ofValue([](FormValue& value) {
        const std::vector<FormValue> more = value.children;
        value.children.insert(value.children.end(), more.begin(), more.end());
    });
    ofValue([](FormValue& value) { std::reverse(value.children.begin(), value.children.end()); });
    ofValue([](FormValue& value) {
        FormValue outer{vrx::BinaryTag::Array, {}, {value, value}};
        value = std::move(outer);
    });
    ofValue([](FormValue& value) {
        if (!value.children.empty())
        {
            FormValue inner = value.children.back();
            value = std::move(inner);
        }
    });

    // The value among its neighbours.
    changes.emplace_back([](FormValue& parent, std::size_t i) {
        parent.children.erase(parent.children.begin() + static_cast<std::ptrdiff_t>(i));
    });
    changes.emplace_back(
        [](FormValue& parent, std::size_t i) { std::swap(parent.children[i], parent.children.back()); });

    // The member that it is of: dropped, at the front, at the back, once more with another value at either, and behind
    // others whose names are none that is known.
    const auto ofMember = [&changes](auto change) {
        changes.emplace_back([change](FormValue& parent, std::size_t i) {
            auto& all = parent.children;
            const auto begin = all.begin() + static_cast<std::ptrdiff_t>(i / 2 * 2);
            const auto end = begin + std::min<std::ptrdiff_t>(2, all.end() - begin);
            const std::vector<FormValue> member(begin, end);
            change(all, begin, member);
        });
    };
    using Children = std::vector<FormValue>;
    for (const bool atFront : {false, true})
    {
        ofMember([atFront](Children& all, Children::iterator begin, const Children& member) {
            all.erase(begin, begin + static_cast<std::ptrdiff_t>(member.size()));
            all.insert(atFront ? all.begin() : all.end(), member.begin(), member.end());
        });
        for (const FormValue& other : {FormValue(), FormValue{vrx::BinaryTag::Array, {}, {}}})
        {
            ofMember([atFront, other](Children& all, Children::iterator, const Children& member) {
                all.insert(atFront ? all.begin() : all.end(), {member.front(), other});
            });
        }
    }
    ofMember([](Children& all, Children::iterator begin, const Children& member) {
        all.erase(begin, begin + static_cast<std::ptrdiff_t>(member.size()));
    });
    for (const FormValue& name : {FormValue(), number(vrx::BinaryTag::Int, 1), string(WIDE("unknown"))})
    {
        ofMember([name](Children& all, Children::iterator begin, const Children& member) {
            all.insert(begin, {name, member.back()});
        });
    }
    return changes;
}

} // namespace test
