#pragma once

#include "vrx_api/json/json_value.h"
#include "vrx_api/json/shape.h"

#include <map>
#include <random>
#include <vector>

namespace fuzz
{

using Random = std::minstd_rand;

/// Any element of a list, which has one.
template <class List>
auto& anyOf(List& list, Random& random)
{
    return list[random() % list.size()];
}

vrx::JsonValue textValue(vrx::wstring_view text, vrx::JsonAllocator& allocator);

/// RapidJSON's own copy takes no object with a name that is no string.
vrx::JsonValue copyOf(const vrx::JsonValue& value, vrx::JsonAllocator& allocator);

/// A value of any kind: numbers at the bounds of fields, odd strings and small containers among them.
vrx::JsonValue anyValue(Random& random, vrx::JsonAllocator& allocator);

/// What the classes that are linked into this program say of the wire.
class Vocabulary
{
public:
    using Fields = std::vector<vrx::FieldShape>;

    static const Vocabulary& instance();

    /// The fields of an object that has this key, or null for a key that no class has.
    const Fields* fieldsWith(vrx::wstring_view key, Random& random) const;

    /// Any key or name of an enumeration; empty when there is no class.
    vrx::wstring_view anyWord(Random& random) const;

    /// A value as the shape tells it, with some of its members.
    vrx::JsonValue valueOf(const vrx::Shape& shape, Random& random, vrx::JsonAllocator& allocator, int depth = 0) const;

private:
    Vocabulary();
    void add(const vrx::Shape& shape);

    std::map<vrx::wstring_view, std::vector<const Fields*>> m_fieldsByKey;
    std::vector<vrx::wstring_view> m_words;
};

} // namespace fuzz
