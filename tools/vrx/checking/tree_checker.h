#pragma once

#include "checking/findings.h"
#include "checking/ids.h"
#include "checking/known_keys.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/json/shape.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace checking
{

/// Holds a tree against what its class tells of the wire. The depth of the tree is no danger: the walk keeps a stack of
/// its own. What no class tells of is not gone into.
class TreeChecker
{
public:
    TreeChecker(const KnownKeys& known, Findings& findings, Ids& ids);

    void check(const vrx::JsonValue& value, const vrx::ClassShape& shape, std::size_t message);

private:
    // What is told of one place, when the classes that stand there have been looked up.
    struct Told
    {
        const vrx::Shape* shape = nullptr; ///< Null where nothing is told.
        const vrx::ClassShape* owner = nullptr;
        bool isClass = false; ///< The place holds an object of the owner, and no record within it.
        bool mayBeNull = false;
    };

    // An object or an array on the way from the root to the value that is looked at.
    struct Level
    {
        const vrx::JsonValue* value;
        const vrx::Shape* tied; ///< What a list says of other objects stands with its field.
        Told told;
        rapidjson::SizeType next = 0;
        std::uint64_t seen = 0; ///< The fields that came: a bit each.
        std::size_t owners = 0; ///< How many objects with an id were around it.
    };

    struct Owner
    {
        vrx::EIdSpace space;
        IdKey id;
    };

    static Told look(const vrx::Shape& shape, const Told& around, const vrx::JsonValue& value,
                     const vrx::JsonValue& holder);
    void enter(const vrx::JsonValue& value, const vrx::Shape& shape, const Told& around, const vrx::JsonValue& holder);
    void open(const vrx::JsonValue& value, const vrx::Shape& shape, const Told& told);
    void addList(const vrx::Shape& tied, const vrx::Shape& list);
    void step();
    void stepArray();
    void stepObject();
    void close();

    void checkSize(const vrx::JsonValue& array, const vrx::Shape& shape);
    void checkScalar(const vrx::JsonValue& value, const vrx::Shape& shape, const vrx::Shape& tied);
    void addWrongScalar(const vrx::JsonValue& value, const vrx::Shape& shape);
    void checkName(const vrx::JsonValue& value, const vrx::Shape& shape);
    void checkIndices(const vrx::JsonValue& list, const vrx::Shape& shape);
    void follow(const vrx::JsonValue& id, const vrx::Shape& tied);
    void addNotRead(const vrx::JsonValue& value, const vrx::FieldShape& field);
    void addUnknownKey(const vrx::JsonValue& name, const vrx::ClassShape& owner);

    /// The array under a key of the objects around, up to the nearest object of a class.
    const vrx::JsonValue* listAround(mp::wstring_view key) const;

    /// The place of the value that is looked at: the next one of the innermost level.
    Place here() const { return placeAt(m_levels.size()); }
    Place placeAt(std::size_t depth) const;

    template <class Make>
    void add(ECode code, const Make& makeSentence)
    {
        m_findings.add(code, [&] { return std::pair(here(), makeSentence()); });
    }

    const KnownKeys& m_known;
    Findings& m_findings;
    Ids& m_ids;
    std::size_t m_message = 0;
    std::vector<Level> m_levels;
    std::vector<Owner> m_owners;
};

} // namespace checking
