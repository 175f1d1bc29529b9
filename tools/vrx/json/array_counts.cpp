#include "json/array_counts.h"

#include "json/member.h"
#include "vrx_api/json/json_children.h"

#include <algorithm>
#include <map>

namespace json
{

namespace
{

using Counts = std::map<mp::wstring, ArrayCount, std::less<>>;

void count(Counts& counts, mp::wstring_view name, const vrx::JsonValue& array)
{
    auto found = counts.find(name);
    if (found == counts.end())
    {
        found = counts.emplace(name, ArrayCount{mp::wstring(name), 0, false}).first;
    }
    found->second.count += array.Size();
    found->second.ofObjects = found->second.ofObjects || array[0].IsObject();
}

bool holdsContainers(const vrx::JsonValue& container)
{
    return container.IsObject() || (container.IsArray() && std::any_of(container.Begin(), container.End(), [](auto& v) {
                                        return v.IsObject() || v.IsArray();
                                    }));
}

Counts countsIn(const vrx::JsonValue& root)
{
    Counts counts;
    std::vector<vrx::JsonChildren> open;
    if (root.IsObject() || root.IsArray())
    {
        open.emplace_back(root);
    }
    while (!open.empty())
    {
        if (open.back().atEnd())
        {
            open.pop_back();
            continue;
        }
        const vrx::JsonValue* const name = open.back().atName() ? &open.back().next() : nullptr;
        const vrx::JsonValue& value = open.back().next();
        if (name != nullptr && name->IsString() && value.IsArray() && !value.Empty())
        {
            count(counts, textOf(*name), value);
        }
        if (holdsContainers(value))
        {
            open.emplace_back(value);
        }
    }
    return counts;
}

} // namespace

std::vector<ArrayCount> longestArrays(const vrx::JsonValue& root)
{
    constexpr std::ptrdiff_t kMostOfObjects = 4;
    constexpr std::ptrdiff_t kMostOthers = 2;
    std::vector<ArrayCount> all;
    for (auto& [name, entry] : countsIn(root))
    {
        all.push_back(entry);
    }
    std::stable_sort(all.begin(), all.end(), [](const ArrayCount& a, const ArrayCount& b) {
        return a.ofObjects != b.ofObjects ? a.ofObjects : a.count > b.count;
    });
    const auto others = std::find_if(all.begin(), all.end(), [](const ArrayCount& c) { return !c.ofObjects; });
    std::vector<ArrayCount> longest(all.begin(), all.begin() + std::min(kMostOfObjects, others - all.begin()));
    longest.insert(longest.end(), others, others + std::min(kMostOthers, all.end() - others));
    return longest;
}

} // namespace json
