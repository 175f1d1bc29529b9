#pragma once

#include "vrx_api/format_options/format_options.h"
#include "vrx_api/json/fields.h"

#include <typeinfo>
#include <vector>

namespace vrx
{

/// The `readObject` of the settings of one format. Unlike the other regular classes, these leave no trace line.
template <class T>
void readOptionFields(T& options, const JsonValue& value, const char* className)
{
    static_cast<void>(&Listed<T>::s_entered);
    if (isObject(value, className))
    {
        // A wrong operation or format is only logged.
        options.imp::FormatOptions::readObject(value);
        readMembers(options, value);
    }
}

/// The classes of all settings for an import.
std::vector<const std::type_info*> importOptionClasses();

} // namespace vrx
