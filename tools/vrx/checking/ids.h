#pragma once

#include "checking/findings.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/json/shape.h"

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace checking
{

/// An id as it is remembered: a number, or the hash of a text.
using IdKey = std::uint64_t;

IdKey keyOf(const vrx::JsonValue& id);

/// 0 and an empty text name nothing.
bool namesNothing(const vrx::JsonValue& id);

/// The ids of what has been checked, and who names them. An id may be told after it is named, so that most is only
/// known at the end.
class Ids
{
public:
    explicit Ids(Findings& findings);

    /// A list of what has such ids has come, which may be empty.
    void addList(vrx::EIdSpace space) { spaceOf(space).wasSent = true; }

    /// An id that an object has. `placeOf` is called when the place is needed.
    template <class PlaceOf>
    void addIdentity(vrx::EIdSpace space, const vrx::JsonValue& id, const PlaceOf& placeOf)
    {
        if (!takeIdentity(space, id))
        {
            addDuplicate(id, placeOf());
        }
    }

    /// An id by which another object is meant.
    template <class PlaceOf>
    void addReference(vrx::EIdSpace space, const vrx::JsonValue& id, const PlaceOf& placeOf)
    {
        if (isToBeKept(space, id))
        {
            keep(space, id, placeOf());
        }
    }

    /// An object names another one of its kind, as a block does by the references in it.
    void addEdge(vrx::EIdSpace space, IdKey from, const vrx::JsonValue& to, Place place);

    /// Tells of the ids that hold within one exchange object only.
    void endObject();

    /// Tells of all others, unless some of what they name may not have come.
    void endImport(bool isComplete);

private:
    static constexpr std::size_t kSpaces = 7;

    struct Reference
    {
        Place place; ///< Of the first who names it.
        std::string text;
        std::vector<IdKey> parts; ///< Of a datum's label: what it is made of.
        std::size_t count = 0;
    };

    struct Space
    {
        std::unordered_set<IdKey> known;
        std::unordered_map<IdKey, Reference> named; ///< And not known.
        bool wasSent = false;                       ///< Objects came that have such ids, or may have.
    };

    struct Edge
    {
        IdKey from;
        IdKey to;
        Place place;
    };

    Space& spaceOf(vrx::EIdSpace space) { return m_spaces.at(static_cast<std::size_t>(space)); }

    /// False for an id that another object has, too.
    bool takeIdentity(vrx::EIdSpace space, const vrx::JsonValue& id);
    void addDuplicate(const vrx::JsonValue& id, const Place& place);
    bool isToBeKept(vrx::EIdSpace space, const vrx::JsonValue& id);
    void keep(vrx::EIdSpace space, const vrx::JsonValue& id, Place place);
    void tellDangling(vrx::EIdSpace space);
    void tellCycles();

    Findings& m_findings;
    std::array<Space, kSpaces> m_spaces;
    std::array<std::unordered_set<IdKey>, kSpaces> m_inObject; // Ids that are numbers.
    std::vector<Edge> m_edges;
};

} // namespace checking
