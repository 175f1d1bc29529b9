#include "comparison/pairs.h"

#include "json/member.h"
#include "printing/scalar_text.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>

namespace comparison
{

namespace
{

// Those of A in their order, and behind them those that only B has.
std::vector<Pair> membersOf(const vrx::JsonValue& a, const vrx::JsonValue& b)
{
    std::vector<Pair> pairs;
    std::map<mp::wstring_view, std::size_t> places;
    const auto add = [&](const vrx::JsonValue& object, const vrx::JsonValue* Pair::*side) {
        for (auto member = object.MemberBegin(); member != object.MemberEnd(); ++member)
        {
            // No reader takes a member whose name is no string.
            if (!member->name.IsString())
            {
                continue;
            }
            const auto [entry, isNew] = places.emplace(json::textOf(member->name), pairs.size());
            if (isNew)
            {
                pairs.emplace_back();
                pairs.back().name = entry->first;
            }
            const vrx::JsonValue*& value = pairs[entry->second].*side;
            value = value == nullptr ? &member->value : value;
        }
    };
    add(a, &Pair::a);
    add(b, &Pair::b);
    return pairs;
}

using Ids = std::map<std::string, std::size_t>;

// The keys that may tell elements of one array apart, the one that lasts longest first.
constexpr std::array<mp::wstring_view, 3> kIdKeys = {WIDE("id"), WIDE("persistent_id"), WIDE("guid")};

const vrx::JsonValue* idOf(const vrx::JsonValue& element, mp::wstring_view key)
{
    const vrx::JsonValue* const id = json::member(element, key);
    const bool isId =
        id != nullptr && (id->IsInt64() || id->IsUint64() || (id->IsString() && id->GetStringLength() != 0));
    return isId ? id : nullptr;
}

// The places of the elements by their ids; false when one has none, or two have the same.
bool readIds(const vrx::JsonValue& array, mp::wstring_view key, Ids& ids)
{
    ids.clear();
    return std::all_of(array.Begin(), array.End(), [key, &ids](const vrx::JsonValue& element) {
        const vrx::JsonValue* const id = idOf(element, key);
        return id != nullptr && ids.emplace(printing::scalarText(*id), ids.size()).second;
    });
}

// Ids that are made anew each time have none in common, and pair nothing.
bool haveCommon(const Ids& inA, const Ids& inB)
{
    return std::any_of(inA.begin(), inA.end(), [&inB](const auto& id) { return inB.count(id.first) != 0; });
}

const vrx::JsonValue& at(const vrx::JsonValue& array, std::size_t place)
{
    return array[static_cast<rapidjson::SizeType>(place)];
}

// None when the elements have no ids.
std::vector<Pair> elementsById(const vrx::JsonValue& a, const vrx::JsonValue& b)
{
    Ids inA;
    Ids inB;
    const auto key = std::find_if(kIdKeys.begin(), kIdKeys.end(), [&](mp::wstring_view tried) {
        return readIds(a, tried, inA) && readIds(b, tried, inB) && haveCommon(inA, inB);
    });
    if (key == kIdKeys.end())
    {
        return {};
    }
    std::vector<Pair> pairs;
    for (const vrx::JsonValue& element : a.GetArray())
    {
        const vrx::JsonValue* const id = idOf(element, *key);
        const auto found = inB.find(printing::scalarText(*id));
        const bool isInB = found != inB.end();
        const std::size_t placeInB = isInB ? found->second : 0;
        pairs.push_back({{}, pairs.size(), placeInB, &element, isInB ? &at(b, placeInB) : nullptr, id});
    }
    for (std::size_t place = 0; place < b.Size(); ++place)
    {
        const vrx::JsonValue* const id = idOf(at(b, place), *key);
        if (inA.count(printing::scalarText(*id)) == 0)
        {
            pairs.push_back({{}, 0, place, nullptr, &at(b, place), id});
        }
    }
    return pairs;
}

} // namespace

Pairs::Pairs(const vrx::JsonValue& a, const vrx::JsonValue& b)
    : m_a(&a)
    , m_b(&b)
    , m_pairs(a.IsObject() ? membersOf(a, b) : elementsById(a, b))
    , m_count(a.IsObject() || !m_pairs.empty() ? m_pairs.size() : std::max<std::size_t>(a.Size(), b.Size()))
{
}

Pair Pairs::next()
{
    const std::size_t place = m_next++;
    if (!m_pairs.empty())
    {
        m_current = m_pairs[place];
    }
    else
    {
        m_current.placeInA = place;
        m_current.placeInB = place;
        m_current.a = place < m_a->Size() ? &at(*m_a, place) : nullptr;
        m_current.b = place < m_b->Size() ? &at(*m_b, place) : nullptr;
    }
    return m_current;
}

} // namespace comparison
