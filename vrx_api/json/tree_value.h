#pragma once

#include "vrx_api/json/json_value.h"
#include "vrx_api/json/value_range.h"

#include <cstddef>
#include <limits>
#include <type_traits>

namespace vrx
{

/// A value of a JSON tree, as the frame reads it. Its counterpart is BinaryValue, and what is said of a `Value` in a
/// template is said of these two.
class TreeValue
{
public:
    struct Member;

    /// A value that is not there has no place.
    explicit TreeValue(const JsonValue* json)
        : m_json(json)
    {
    }

    bool isThere() const { return m_json != nullptr; }

    const JsonValue& json() const { return *m_json; }
    const JsonValue* next() const { return m_json + 1; }

    bool isObject() const { return m_json->IsObject(); }
    bool isArray() const { return m_json->IsArray(); }
    bool isString() const { return m_json->IsString(); }

    /// Takes a number or a boolean. False, and the field stays as it is, when the value is none of the field's type. A
    /// double that is out of the range of a float becomes an infinity.
    template <class T>
    bool take(T& field) const
    {
        static_assert(std::numeric_limits<float>::is_iec559, "infinities take what is out of range");
        using Json = std::conditional_t<std::is_same_v<T, float>, double, T>;
        if (!m_json->Is<Json>())
        {
            return false;
        }
        field = static_cast<T>(m_json->Get<Json>());
        return true;
    }

    /// All units of a string.
    wstring_view units() const { return {m_json->GetString(), m_json->GetStringLength()}; }

    /// The elements of an array, and how many are expected where each becomes a T.
    ValueRange<TreeValue, const JsonValue*> elements() const { return {m_json->Begin(), m_json->End()}; }
    template <class T>
    std::size_t expectedCount() const
    {
        return m_json->Size();
    }

    /// The members of an object.
    ValueRange<Member, JsonValue::ConstMemberIterator> members() const;

private:
    const JsonValue* m_json;
};

struct TreeValue::Member
{
    explicit Member(JsonValue::ConstMemberIterator place)
        : name(&place->name)
        , value(&place->value)
        , m_place(place)
    {
    }

    JsonValue::ConstMemberIterator next() const { return m_place + 1; }

    TreeValue name;
    TreeValue value;

private:
    JsonValue::ConstMemberIterator m_place;
};

inline ValueRange<TreeValue::Member, JsonValue::ConstMemberIterator> TreeValue::members() const
{
    return {m_json->MemberBegin(), m_json->MemberEnd()};
}

} // namespace vrx
