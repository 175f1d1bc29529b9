#pragma once

#include "mp/wide.h"
#include "vrx_api/json/json_value.h"

#include <cstddef>
#include <vector>

namespace comparison
{

/// Two values that stand for each other, or one that stands alone. Elements have places, members a name.
struct Pair
{
    mp::wstring_view name;
    std::size_t placeInA = 0;
    std::size_t placeInB = 0;
    const vrx::JsonValue* a = nullptr;
    const vrx::JsonValue* b = nullptr;
    const vrx::JsonValue* id = nullptr;
};

/// What two objects or two arrays hold, pair by pair.
class Pairs
{
public:
    Pairs(const vrx::JsonValue& a, const vrx::JsonValue& b);

    bool isObject() const { return m_a->IsObject(); }
    bool atEnd() const { return m_next == m_count; }
    Pair next();

    /// What `next` gave last.
    const Pair& current() const { return m_current; }

private:
    const vrx::JsonValue* m_a;
    const vrx::JsonValue* m_b;
    std::vector<Pair> m_pairs; // None for arrays that are compared by place.
    std::size_t m_count = 0;
    std::size_t m_next = 0;
    Pair m_current;
};

} // namespace comparison
