#include "vrx_api/json/kind.h"

#include "kolt/log.h"
#include "vrx_api/json/json_value.h"

#include <stdexcept>

namespace vrx
{

static bool report(bool right, const char* className, const char* complaint)
{
    if (!right && className != kSilently)
    {
        kolt::log(kolt::kError, className, complaint);
    }
    return right;
}

bool expectObject(bool isObject, const char* className)
{
    return report(isObject, className, " object should have a JSON object type.");
}

bool isObject(const JsonValue& value, const char* className)
{
    return expectObject(value.IsObject(), className);
}

bool isArray(const JsonValue& value, const char* className)
{
    return report(value.IsArray(), className, " object should have a JSON array type.");
}

void requireObject(const JsonValue& value, const char* message)
{
    if (!value.IsObject())
    {
        throw std::invalid_argument(message);
    }
}

void requireArray(const JsonValue& value, const char* message)
{
    if (!value.IsArray())
    {
        throw std::invalid_argument(message);
    }
}

} // namespace vrx
