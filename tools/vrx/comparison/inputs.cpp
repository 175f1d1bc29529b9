#include "comparison/inputs.h"

#include "console/progress.h"
#include "json/member.h"
#include "measures.h"
#include "printing/item_lines.h"
#include "printing/scalar_text.h"
#include "vrx_api/exchange/compressor.h"

#include <algorithm>
#include <list>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace comparison
{

namespace
{

using input::Item;

// What pairs two messages.
std::string keyOf(const Item& item)
{
    const vrx::JsonValue* const object = item.object();
    const vrx::JsonValue* const block = object == nullptr ? nullptr : json::member(*object, WIDE("block_id"));
    return printing::className(item) + (block == nullptr ? "" : " of block " + printing::briefText(*block)) +
           (item.sender == input::ESender::Host ? " from the host" : "");
}

// Bytes without a form are the bodies of a block, or unknown: they are the same only byte by byte.
vrx::Bytes plainBytes(const Item& item, std::uint64_t limit)
{
    vrx::Bytes bytes;
    if (item.isCompressed)
    {
        vrx::Compressor::decompress(bytes, item.content.data(), item.content.size(),
                                    vrx::ReadRules::upToPlainBytes(limit));
    }
    else
    {
        bytes.assign(item.content.begin(), item.content.end());
    }
    return bytes;
}

const char* stateOf(const Item& item)
{
    switch (item.buffer)
    {
    case input::EBuffer::Missing:
        return "missing";
    case input::EBuffer::Damaged:
        return "damaged";
    default:
        return "there";
    }
}

class Inputs
{
public:
    Inputs(const Rules& rules, std::uint64_t limit, const std::function<void(const Line&)>& report)
        : m_rules(rules)
        , m_limit(limit)
        , m_report(report)
    {
        // A message that names the buffer of a block's bodies has the name in its object.
        m_rules.ignoredKeys.insert(WIDE("shared_acis_buffer_name"));
    }

    void takeFirst(Item& item)
    {
        m_progress.step("first, message " + tool::counted(item.number));
        if (isCompared(item))
        {
            const std::string key = keyOf(item);
            m_items[key].push_back(std::move(item));
        }
    }

    void takeSecond(Item& item)
    {
        m_progress.step("second, message " + tool::counted(item.number));
        if (!isCompared(item))
        {
            return;
        }
        const auto sameKey = m_items.find(keyOf(item));
        if (sameKey == m_items.end() || !pairEqual(sameKey, item))
        {
            m_leftOfSecond.push_back(std::move(item));
        }
    }

    void end()
    {
        for (const Item& item : m_leftOfSecond)
        {
            const auto found = partnerOf(item);
            if (found == m_items.end())
            {
                m_report({nameOf(item), nullptr, "only in B"});
                continue;
            }
            compare(found->second.front(), item);
            remove(found, found->second.begin());
        }
        std::map<std::size_t, const Item*> left;
        for (const auto& [key, items] : m_items)
        {
            for (const Item& item : items)
            {
                left.emplace(item.number, &item);
            }
        }
        for (const auto& [number, item] : left)
        {
            m_report({nameOf(*item), nullptr, "only in A"});
        }
    }

private:
    using Items = std::map<std::string, std::list<Item>>;

    bool isCompared(const Item& item) const
    {
        const bool isPassing = item.head.objectName == WIDE("exc_progress") || item.head.objectName == WIDE("exc_log");
        return m_rules.all || !isPassing || item.sender == input::ESender::Unknown;
    }

    // An equal one that comes much later is no partner, so that the time stays in proportion to the messages.
    bool pairEqual(Items::iterator sameKey, const Item& item)
    {
        constexpr std::size_t kMostTried = 100;
        std::list<Item>& candidates = sameKey->second;
        std::size_t tried = 0;
        for (auto candidate = candidates.begin(); candidate != candidates.end() && tried < kMostTried; ++candidate)
        {
            ++tried;
            if (areEqual(*candidate, item))
            {
                compareTimes(*candidate, item);
                remove(sameKey, candidate);
                return true;
            }
        }
        return false;
    }

    void remove(Items::iterator ofKey, std::list<Item>::iterator item)
    {
        ofKey->second.erase(item);
        if (ofKey->second.empty())
        {
            m_items.erase(ofKey);
        }
    }

    Items::iterator partnerOf(const Item& item)
    {
        const bool isAlone = item.sender == input::ESender::Unknown && m_items.size() == 1 &&
                             m_items.begin()->second.front().sender == input::ESender::Unknown;
        return isAlone ? m_items.begin() : m_items.find(keyOf(item));
    }

    static std::string nameOf(const Item& item)
    {
        return item.sender == input::ESender::Unknown ? printing::className(item)
                                                      : '#' + std::to_string(item.number) + ' ' + keyOf(item);
    }

    // Of captures: which message it is.
    static std::string placeOf(const Item& a) { return a.sender == input::ESender::Unknown ? "" : nameOf(a); }

    void compareTimes(const Item& a, const Item& b) const
    {
        if (m_rules.all && a.time != b.time)
        {
            m_report({placeOf(a), nullptr,
                      "time: " + std::to_string(a.time.count()) + " us -> " + std::to_string(b.time.count()) + " us"});
        }
    }

    void compare(const Item& a, const Item& b) const
    {
        const std::string name = placeOf(a);
        compareTimes(a, b);
        for (const std::string& text : differencesAroundTrees(a, b))
        {
            m_report({name, nullptr, text});
        }
        const vrx::JsonValue* const treeOfA = treeOf(a);
        const vrx::JsonValue* const treeOfB = treeOf(b);
        if (treeOfA != nullptr && treeOfB != nullptr)
        {
            compareTrees(*treeOfA, *treeOfB, m_rules, [&](const Difference& found) { m_report({name, &found, ""}); });
        }
    }

    bool areEqual(const Item& a, const Item& b) const
    {
        const vrx::JsonValue* const treeOfA = treeOf(a);
        const vrx::JsonValue* const treeOfB = treeOf(b);
        return (treeOfA == nullptr || treeOfB == nullptr || areTreesEqual(*treeOfA, *treeOfB, m_rules)) &&
               differencesAroundTrees(a, b).empty();
    }

    std::vector<std::string> differencesAroundTrees(const Item& a, const Item& b) const
    {
        std::vector<std::string> texts;
        if (a.head.objectName != b.head.objectName && !a.text.empty() && !b.text.empty())
        {
            texts.push_back("class: " + printing::className(a) + " -> " + printing::className(b));
        }
        const bool sameState = std::string_view(stateOf(a)) == stateOf(b);
        if (!sameState)
        {
            texts.push_back(std::string("buffer: ") + stateOf(a) + " -> " + stateOf(b));
        }
        const bool haveBytes = !a.content.empty() && !b.content.empty() && !a.form && !b.form;
        if (haveBytes && plainBytes(a, m_limit) != plainBytes(b, m_limit))
        {
            texts.push_back("bytes of the buffer: " + tool::counted(a.plainSize) + " -> " + tool::counted(b.plainSize) +
                            ", not the same");
        }
        if (a.sizeBehindForm != b.sizeBehindForm)
        {
            texts.push_back("bytes behind the binary form: " + tool::counted(a.sizeBehindForm) + " -> " +
                            tool::counted(b.sizeBehindForm));
        }
        const bool hasTreeA = treeOf(a) != nullptr;
        if (sameState && hasTreeA != (treeOf(b) != nullptr))
        {
            texts.emplace_back(hasTreeA ? "only A has JSON" : "only B has JSON");
        }
        else if (!hasTreeA && a.text != b.text && a.message.IsNull() && b.message.IsNull())
        {
            texts.emplace_back("the texts, which are no JSON");
        }
        return texts;
    }

    // An envelope without its object says nothing but the name of its buffer.
    static const vrx::JsonValue* treeOf(const Item& item)
    {
        return item.head.kind == vrx::EMessageKind::Envelope ? item.object() : item.root();
    }

    Rules m_rules;
    std::uint64_t m_limit;
    const std::function<void(const Line&)>& m_report;
    Items m_items;                    // Those of the first input that have no partner yet.
    std::vector<Item> m_leftOfSecond; // Those without an equal one.
    console::Progress m_progress;
};

} // namespace

Cuts compareInputs(const std::string& a, const std::string& b, const Rules& rules, std::uint64_t limit,
                   const std::function<void(const Line&)>& report)
{
    Inputs inputs(rules, limit, report);
    const input::Recording first = input::readItems(
        a, [&inputs](Item& item) { inputs.takeFirst(item); }, limit);
    const input::Recording second = input::readItems(
        b, [&inputs](Item& item) { inputs.takeSecond(item); }, limit);
    inputs.end();
    return {first.isCut, second.isCut};
}

} // namespace comparison
