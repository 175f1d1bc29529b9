#include "checking/sentences.h"

#include "json/member.h"
#include "mp/narrow.h"
#include "printing/scalar_text.h"

namespace checking
{

using vrx::EShape;
using vrx::JsonValue;
using vrx::Shape;

const char* kindOf(const JsonValue& value)
{
    switch (value.GetType())
    {
    case rapidjson::kNullType:
        return "null";
    case rapidjson::kFalseType:
    case rapidjson::kTrueType:
        return "a boolean";
    case rapidjson::kObjectType:
        return "an object";
    case rapidjson::kArrayType:
        return "an array";
    case rapidjson::kStringType:
        return "a text";
    default:
        return "a number";
    }
}

static const char* kindOf(const Shape& shape)
{
    switch (shape.kind)
    {
    case EShape::Boolean:
        return "a boolean";
    case EShape::Int32:
    case EShape::Uint32:
    case EShape::Uint64:
    case EShape::Double:
        return "a number";
    case EShape::Text:
    case EShape::Name:
        return "a text";
    case EShape::List:
    case EShape::Tuple:
        return "an array";
    default:
        return "an object";
    }
}

std::string wrongKind(const JsonValue& value, const Shape& shape)
{
    return std::string(kindOf(value)) + " stands where " + kindOf(shape) + " is read";
}

std::string wrongNumber(const JsonValue& value, const Shape& shape)
{
    const std::string number = printing::briefText(value);
    if (shape.kind == EShape::Double)
    {
        return "the integer " + number + " stands where a number with a fraction is read; a reader does not take it";
    }
    if (value.IsDouble())
    {
        return number + " stands where an integer is read; a reader does not take it";
    }
    return number + " is out of the range that is read; a reader does not take it";
}

std::string unknownObject(const JsonValue& value)
{
    std::string told;
    for (const mp::wstring_view key : {WIDE("operation_type"), WIDE("format_type"), WIDE("type")})
    {
        const JsonValue* const name = json::member(value, key);
        if (name != nullptr)
        {
            told += (told.empty() ? "" : ", ") + mp::toNarrow(mp::wstring(key)) + ' ' + printing::briefText(*name);
        }
    }
    return told.empty() ? "it has no key that tells its class, and is passed over"
                        : "no class here has " + told + "; it is passed over";
}

} // namespace checking
