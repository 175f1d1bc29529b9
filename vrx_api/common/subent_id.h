#pragma once

#include "vrx_api/json/json_object.h"

#include <cstdint>

// The modelling kernel's class, which only those who handle bodies need to know.
class ENTITY;

namespace vrx
{

/// Names a body or a part of it: the kind, and the position in the order in which the kernel lists that kind of the
/// body.
class VRX_API ExcSubentId : public IJsonObject
{
public:
    /// The numbers are the ASCII codes of the names on the wire.
    enum class EType : std::int32_t
    {
        Null = '0',
        Body = 'b',
        Edge = 'e',
        Face = 'f',
        Vertex = 'v',
    };

    ExcSubentId() = default;
    /// A part of a body by its kind and its place in the list of all of that kind.
    ExcSubentId(EType type, std::uint64_t index)
        : m_type(type)
        , m_index(index)
    {
    }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    EType type() const { return m_type; }
    void setType(EType type) { m_type = type; }

    std::uint64_t index() const { return m_index; }
    void setIndex(std::uint64_t index) { m_index = index; }

    /// The nearest body above the entity, or null; a body itself is asked for what owns it. Throws `std::logic_error`
    /// when the library was built without a kernel, as `fillSubentId` does.
    static ENTITY* getOwnerBody(ENTITY* entity);

    /// Names a live entity, or nothing if it is no body and no face, edge or vertex of one. Lists all parts of its kind
    /// at each call. A part that the kernel does not list in its body gets the highest index there is.
    static void fillSubentId(ExcSubentId& target, ENTITY* entity);

private:
    friend struct Described<ExcSubentId>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);

    EType m_type = EType::Null;
    std::uint64_t m_index = 0;
};

} // namespace vrx
