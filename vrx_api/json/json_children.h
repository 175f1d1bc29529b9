#pragma once

#include "vrx_api/json/json_value.h"

namespace vrx
{

/// Goes over the values inside an array or an object; an object's members give their name, then their value.
/// For walks over a tree that keep a stack of their own.
class JsonChildren
{
public:
    explicit JsonChildren(const JsonValue& container)
        : m_container(&container)
        , m_object(container.IsObject())
        , m_count(m_object ? std::size_t{2} * container.MemberCount() : std::size_t{container.Size()})
    {
    }

    bool isObject() const { return m_object; }
    bool atEnd() const { return m_next == m_count; }
    bool atName() const { return m_object && m_next % 2 == 0; }

    const JsonValue& next()
    {
        const std::size_t index = m_next++;
        if (!m_object)
        {
            return m_container->Begin()[index];
        }
        const auto& member = m_container->MemberBegin()[static_cast<std::ptrdiff_t>(index / 2)];
        return index % 2 == 0 ? member.name : member.value;
    }

private:
    const JsonValue* m_container;
    bool m_object;
    std::size_t m_count;
    std::size_t m_next = 0;
};

} // namespace vrx
