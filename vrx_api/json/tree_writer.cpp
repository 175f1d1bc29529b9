#include "vrx_api/json/tree_writer.h"

#include <utility>

namespace vrx
{

namespace
{

// An empty object with room for just so many members. RapidJSON 1.1 has no reserve for objects and starts each with 16
// members. A document that is populated by events allocates exactly, and an object keeps its room when its members are
// erased.
JsonValue emptyObject(std::size_t room, JsonAllocator& allocator)
{
    if (room == 0)
    {
        return JsonValue(rapidjson::kObjectType);
    }
    auto fill = [room](JsonDocument& handler) {
        handler.StartObject();
        for (std::size_t i = 0; i < room; ++i)
        {
            handler.Null();
            handler.Null();
        }
        return handler.EndObject(static_cast<rapidjson::SizeType>(room));
    };
    rapidjson::CrtAllocator stackAllocator;
    JsonDocument document(&allocator, sizeof(JsonValue) * (2 * room + 1), &stackAllocator);
    document.Populate(fill);
    document.RemoveAllMembers();
    JsonValue object;
    object.Swap(static_cast<JsonValue&>(document));
    return object;
}

} // namespace

TreeWriter::TreeWriter(JsonAllocator& allocator)
    : m_allocator(allocator)
{
    constexpr std::size_t kUsual = 32;
    m_values.reserve(kUsual);
}

void TreeWriter::text(wstring_view text)
{
    m_values.emplace_back(text.data(), static_cast<rapidjson::SizeType>(text.size()), m_allocator);
}

void TreeWriter::name(wstring_view name)
{
    m_values.emplace_back(JsonValue::StringRefType(name.data(), static_cast<rapidjson::SizeType>(name.size())));
}

void TreeWriter::endObject(Mark begin)
{
    JsonValue object = emptyObject((m_values.size() - begin) / 2, m_allocator);
    addFrom(begin, object);
    m_values.push_back(std::move(object));
}

void TreeWriter::endArray(Mark begin)
{
    JsonValue array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(m_values.size() - begin), m_allocator);
    for (Mark i = begin; i < m_values.size(); ++i)
    {
        array.PushBack(m_values[i], m_allocator);
    }
    m_values.resize(begin);
    m_values.push_back(std::move(array));
}

void TreeWriter::object(const IJsonObject& object)
{
    JsonValue value;
    object.writeObject(value, m_allocator);
    m_values.push_back(std::move(value));
}

JsonValue TreeWriter::take()
{
    JsonValue value = std::move(m_values.back());
    m_values.pop_back();
    return value;
}

void TreeWriter::addTo(JsonValue& object)
{
    addFrom(0, object);
}

void TreeWriter::addFrom(Mark begin, JsonValue& object)
{
    for (Mark i = begin; i < m_values.size(); i += 2)
    {
        object.AddMember(m_values[i], m_values[i + 1], m_allocator);
    }
    m_values.resize(begin);
}

} // namespace vrx
