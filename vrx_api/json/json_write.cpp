#include "vrx_api/json/json_write.h"

namespace vrx
{

void setObject(JsonValue& value, rapidjson::SizeType capacity, JsonAllocator& allocator)
{
    value.SetObject();
    if (capacity == 0)
    {
        return;
    }
    // RapidJSON 1.1 has no reserve for objects and starts each with 16 members. A document that is populated by events
    // allocates exactly, and an object keeps its room when its members are erased.
    auto fill = [capacity](JsonDocument& handler) {
        handler.StartObject();
        for (rapidjson::SizeType i = 0; i < capacity; ++i)
        {
            handler.Null();
            handler.Null();
        }
        return handler.EndObject(capacity);
    };
    JsonDocument document(&allocator, sizeof(JsonValue) * (std::size_t{2} * capacity + 1));
    document.Populate(fill);
    document.RemoveAllMembers();
    value.Swap(static_cast<JsonValue&>(document));
}

void addMember(JsonValue& object, Key key, JsonValue&& value, JsonAllocator& allocator)
{
    const JsonValue::StringRefType name(key.text, static_cast<rapidjson::SizeType>(key.size));
    object.AddMember(name, value, allocator);
}

JsonValue encode(const wstring& field, JsonAllocator& allocator)
{
    return JsonValue(field.data(), static_cast<rapidjson::SizeType>(field.size()), allocator);
}

JsonValue encode(const IJsonObject& field, JsonAllocator& allocator)
{
    JsonValue value;
    field.writeObject(value, allocator);
    return value;
}

} // namespace vrx
