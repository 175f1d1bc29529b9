#pragma once

#include "vrx_api/json/json_fwd.h"

#include <bitset>
#include <cstddef>

namespace vrx
{

/// What is known of a set of names: one that it may not hold is not among them. Two names may share a mark.
class NameMarks
{
public:
    void add(wstring_view name) { m_marks.set(markOf(name)); }
    bool mayHold(wstring_view name) const { return m_marks.test(markOf(name)); }

private:
    static constexpr std::size_t kCount = 256;

    static std::size_t markOf(wstring_view name)
    {
        const auto unitOf = [name](std::size_t at) { return std::size_t{name[at]}; };
        const std::size_t size = name.size();
        return size == 0 ? 0 : (size + 3 * unitOf(0) + 5 * unitOf(size - 1) + 7 * unitOf(size / 2)) % kCount;
    }

    std::bitset<kCount> m_marks;
};

} // namespace vrx
