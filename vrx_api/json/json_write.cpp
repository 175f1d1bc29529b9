#include "vrx_api/json/json_write.h"

namespace vrx
{

void addMember(JsonValue& object, Key key, JsonValue&& value, JsonAllocator& allocator)
{
    const JsonValue::StringRefType name(key.text, static_cast<rapidjson::SizeType>(key.size));
    object.AddMember(name, value, allocator);
}

} // namespace vrx
