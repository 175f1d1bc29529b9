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
        : m_object(container.IsObject())
    {
        if (!m_object)
        {
            m_next = container.Begin();
            m_end = m_next + container.Size();
        }
        else if (container.MemberCount() != 0)
        {
            m_next = &container.MemberBegin()->name;
            m_end = m_next + std::size_t{2} * container.MemberCount();
        }
    }

    bool isObject() const { return m_object; }
    bool atEnd() const { return m_next == m_end; }
    bool atName() const { return m_object && (m_end - m_next) % 2 == 0; }
    const JsonValue& next() { return *m_next++; }

private:
    // A member is its name and its value, and RapidJSON itself makes an object's members of an array of values.
    static_assert(sizeof(JsonValue::Member) == 2 * sizeof(JsonValue));

    const JsonValue* m_next = nullptr;
    const JsonValue* m_end = nullptr;
    bool m_object;
};

} // namespace vrx
