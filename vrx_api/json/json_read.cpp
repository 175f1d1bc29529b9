#include "vrx_api/json/json_read.h"

#include "kolt/log.h"

#include <limits>

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

bool isObject(const JsonValue& value, const char* className)
{
    if (!value.IsObject())
    {
        kolt::log(kolt::kError, className, " object should have a JSON object type.");
        return false;
    }
    return true;
}

void decode(const JsonValue& value, bool& field)
{
    if (value.IsBool())
    {
        field = value.GetBool();
    }
}

void decode(const JsonValue& value, std::int32_t& field)
{
    if (value.IsInt())
    {
        field = value.GetInt();
    }
}

void decode(const JsonValue& value, std::uint32_t& field)
{
    if (value.IsUint())
    {
        field = value.GetUint();
    }
}

void decode(const JsonValue& value, std::uint64_t& field)
{
    if (value.IsUint64())
    {
        field = value.GetUint64();
    }
}

void decode(const JsonValue& value, double& field)
{
    if (value.IsDouble())
    {
        field = value.GetDouble();
    }
}

void decode(const JsonValue& value, float& field)
{
    static_assert(std::numeric_limits<float>::is_iec559, "infinities take what is out of range");
    if (value.IsDouble())
    {
        field = static_cast<float>(value.GetDouble());
    }
}

void decode(const JsonValue& value, wstring& field)
{
    if (value.IsString())
    {
        field = textOf(value);
    }
}

void decode(const JsonValue& value, IJsonObject& field)
{
    field.readObject(value);
}

void decode(const JsonValue& value, std::vector<wstring>& field)
{
    if (!value.IsArray())
    {
        return;
    }
    for (const JsonValue& element : value.GetArray())
    {
        if (element.IsString())
        {
            field.emplace_back(textOf(element));
        }
    }
}

} // namespace vrx
