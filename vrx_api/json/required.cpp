#include "vrx_api/json/required.h"

#include <stdexcept>

namespace vrx
{

wstring_view requiredText(const JsonValue& object, Key key, const char* message)
{
    const JsonValue* const text = findString(object, key);
    if (text == nullptr)
    {
        throw std::invalid_argument(message);
    }
    return textOf(*text);
}

void requireObject(const JsonValue& value, const char* message)
{
    if (!value.IsObject())
    {
        throw std::invalid_argument(message);
    }
}

} // namespace vrx
