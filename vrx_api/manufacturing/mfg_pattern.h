#pragma once

#include "vrx_api/common/entity.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace vrx
{

/// How a machined feature occurs many times: in a grid, around an axis or at listed positions. The feature holds its
/// pattern; a pattern names no feature.
class VRX_API ExcMfgPattern : public IJsonObject
{
public:
    /// How the occurrences lie, which tells the class of a pattern.
    enum class EType : std::int32_t
    {
        Unknown = 0,
        None = 1,
        Rectangular = 2,
        Circular = 3,
        UserDefined = 4,
    };

    /// The base occurrence of a pattern, which the others repeat: the entities that limit and define it. Copies share
    /// the entities.
    class VRX_API Instance : public IJsonObject
    {
    public:
        void readObject(const JsonValue& value) override;
        void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

        bool isBaseInstance() const { return m_baseInstance; }
        void setBaseInstance(bool base) { m_baseInstance = base; }

        const std::vector<std::shared_ptr<ExcEntity>>& limitng() const { return m_limiting; }
        const std::vector<std::shared_ptr<ExcEntity>>& defining() const { return m_defining; }

        /// A null pointer is logged and adds nothing.
        void addLimiting(const std::shared_ptr<ExcEntity>& entity);
        void addDefining(const std::shared_ptr<ExcEntity>& entity);

    private:
        friend struct Described<Instance>;
        template <class Self, class Fields>
        static void describe(Self& self, Fields& fields);

        bool m_baseInstance = false;
        std::vector<std::shared_ptr<ExcEntity>> m_limiting;
        std::vector<std::shared_ptr<ExcEntity>> m_defining;
    };

    /// The place of one occurrence in a rectangular or a circular pattern: two indices, which the library does not
    /// compare with the counts of the pattern.
    using IndexPair = std::pair<std::int32_t, std::int32_t>;

    /// A new pattern of the class that the value's "type" names; a name outside the table gives a circular one. Null
    /// for "none", and, with a line in the log, for "unknown" and for a value that is no object or has no type.
    static std::shared_ptr<ExcMfgPattern> readPattern(const JsonValue& value);

    void readObject(const JsonValue& value) override;

    /// Unlike in other classes, a value that is an object already keeps its members; the pattern's come after them.
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    virtual EType type() const = 0;

private:
    friend struct Described<ExcMfgPattern>;
    template <class Self, class Fields>
    static void describe(Self& self, Fields& fields);
};

extern template struct Described<ExcMfgPattern>;

} // namespace vrx
