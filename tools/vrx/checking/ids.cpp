#include "checking/ids.h"

#include "checking/cycles.h"
#include "json/member.h"
#include "mp/wide.h"
#include "printing/scalar_text.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <tuple>
#include <utility>

namespace checking
{

namespace
{

using vrx::EIdSpace;

struct SpaceRow
{
    EIdSpace space;
    const char* what;
    bool isOfOneObject;
};

constexpr SpaceRow kRows[] = {
    {EIdSpace::Block, "block", false},
    {EIdSpace::BlockReference, "reference to a block", false},
    {EIdSpace::Body, "body", false},
    {EIdSpace::Layer, "layer", true},
    {EIdSpace::Annotation, "annotation", false},
    {EIdSpace::Datum, "datum", true},
};

// Each of those that are kept takes some hundred bytes.
constexpr std::size_t kMostNamed = 1'000'000;

IdKey keyOf(mp::wstring_view text)
{
    return std::hash<mp::wstring_view>()(text);
}

mp::wstring_view trimmed(mp::wstring_view text)
{
    while (!text.empty() && text.front() == ' ')
    {
        text.remove_prefix(1);
    }
    while (!text.empty() && text.back() == ' ')
    {
        text.remove_suffix(1);
    }
    return text;
}

// A compartment of a frame names several datums, such as "A-B".
std::vector<IdKey> partsOf(mp::wstring_view label)
{
    std::vector<IdKey> parts;
    while (!label.empty())
    {
        const std::size_t end = std::min(label.find('-'), label.size());
        const mp::wstring_view part = trimmed(label.substr(0, end));
        if (!part.empty())
        {
            parts.push_back(keyOf(part));
        }
        label.remove_prefix(std::min(end + 1, label.size()));
    }
    return parts;
}

} // namespace

IdKey keyOf(const vrx::JsonValue& id)
{
    if (id.IsString())
    {
        return keyOf(json::textOf(id));
    }
    return id.IsUint64() ? id.GetUint64() : static_cast<IdKey>(id.GetInt64());
}

bool namesNothing(const vrx::JsonValue& id)
{
    return id.IsString() ? id.GetStringLength() == 0 : keyOf(id) == 0;
}

Ids::Ids(Findings& findings)
    : m_findings(findings)
{
}

bool Ids::takeIdentity(EIdSpace space, const vrx::JsonValue& id)
{
    if (space == EIdSpace::None || (id.IsString() && namesNothing(id)))
    {
        return true;
    }
    const IdKey key = keyOf(id);
    spaceOf(space).known.insert(key);
    spaceOf(space).named.erase(key);
    spaceOf(space).wasSent = true;
    // A text may well be told twice: a datum is drawn in two views, an annotation in two scenes.
    return id.IsString() || namesNothing(id) || m_inObject.at(static_cast<std::size_t>(space)).insert(key).second;
}

void Ids::addDuplicate(const vrx::JsonValue& id, const Place& place)
{
    m_findings.add(ECode::DuplicateId, [&] {
        return std::pair(place, "the id " + printing::briefText(id) + " is told before in this object");
    });
}

bool Ids::isToBeKept(EIdSpace space, const vrx::JsonValue& id)
{
    if (space == EIdSpace::None || namesNothing(id))
    {
        return false;
    }
    Space& own = spaceOf(space);
    const IdKey key = keyOf(id);
    const auto named = own.named.find(key);
    if (named != own.named.end())
    {
        ++named->second.count;
        return false;
    }
    return own.known.count(key) == 0 && own.named.size() < kMostNamed;
}

void Ids::keep(EIdSpace space, const vrx::JsonValue& id, Place place)
{
    Reference& reference = spaceOf(space).named[keyOf(id)];
    reference.place = std::move(place);
    reference.text = printing::briefText(id);
    reference.count = 1;
    if (space == EIdSpace::Datum && id.IsString())
    {
        reference.parts = partsOf(json::textOf(id));
    }
}

void Ids::addEdge(EIdSpace space, IdKey from, const vrx::JsonValue& to, Place place)
{
    // Of the spaces only that of blocks has objects within each other.
    if (space == EIdSpace::Block)
    {
        m_edges.push_back({from, keyOf(to), std::move(place)});
    }
}

void Ids::endObject()
{
    for (const SpaceRow& row : kRows)
    {
        m_inObject.at(static_cast<std::size_t>(row.space)).clear();
        if (row.isOfOneObject)
        {
            spaceOf(row.space).wasSent = true;
            tellDangling(row.space);
            spaceOf(row.space) = {};
        }
    }
}

void Ids::endImport(bool isComplete)
{
    for (const SpaceRow& row : kRows)
    {
        if (isComplete)
        {
            tellDangling(row.space);
        }
        spaceOf(row.space) = {};
    }
    tellCycles();
    m_edges.clear();
}

void Ids::tellDangling(EIdSpace space)
{
    const Space& own = spaceOf(space);
    // Who names what was not sent at all means something outside of it.
    if (!own.wasSent)
    {
        return;
    }
    std::vector<const Reference*> dangling;
    for (const auto& [key, reference] : own.named)
    {
        const auto isKnown = [&own](IdKey part) { return own.known.count(part) != 0; };
        if (reference.parts.empty() || !std::all_of(reference.parts.begin(), reference.parts.end(), isKnown))
        {
            dangling.push_back(&reference);
        }
    }
    std::sort(dangling.begin(), dangling.end(), [](const Reference* left, const Reference* right) {
        return std::tie(left->place.message, left->place.pointer) <
               std::tie(right->place.message, right->place.pointer);
    });
    const auto* const row =
        std::find_if(std::begin(kRows), std::end(kRows), [space](const SpaceRow& each) { return each.space == space; });
    for (const Reference* const reference : dangling)
    {
        m_findings.add(ECode::DanglingId, [&] {
            std::string sentence = std::string("there is no ") + row->what + ' ' + reference->text;
            if (reference->count > 1)
            {
                sentence += ", which is named " + std::to_string(reference->count) + " times";
            }
            return std::pair(reference->place, sentence);
        });
    }
}

void Ids::tellCycles()
{
    std::vector<std::pair<IdKey, IdKey>> edges;
    edges.reserve(m_edges.size());
    for (const Edge& edge : m_edges)
    {
        edges.emplace_back(edge.from, edge.to);
    }
    for (const std::size_t closing : closingEdges(edges))
    {
        const Edge& edge = m_edges[closing];
        m_findings.add(ECode::StructureCycle, [&edge] {
            const std::string block = "block " + std::to_string(edge.from);
            return std::pair(edge.place, edge.from == edge.to ? block + " holds itself"
                                                              : block + " holds block " + std::to_string(edge.to) +
                                                                    ", and stands within it");
        });
    }
}

} // namespace checking
