#include "vrx_api/json/json_read.h"

namespace vrx
{

const JsonValue* find(const JsonValue& object, Key key)
{
    const wstring_view wanted(key.text, key.size);
    for (auto member = object.MemberBegin(); member != object.MemberEnd(); ++member)
    {
        const JsonValue& name = member->name;
        if (name.IsString() && wstring_view(name.GetString(), name.GetStringLength()) == wanted)
        {
            return &member->value;
        }
    }
    return nullptr;
}

const JsonValue* findString(const JsonValue& object, Key key)
{
    const JsonValue* const value = find(object, key);
    return value != nullptr && value->IsString() ? value : nullptr;
}

} // namespace vrx
