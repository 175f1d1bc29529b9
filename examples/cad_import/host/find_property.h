#pragma once

#include "vrx_api/vrx_api_exchange_common.h"

#include <algorithm>

/// The first property of this name; null when there is none.
inline const vrx::ExcMiscProperty* findProperty(const vrx::ExcMiscData& data, const mp::wchar* name)
{
    const auto& all = data.properties();
    const auto found = std::find_if(all.begin(), all.end(), [name](const auto& one) { return one.name() == name; });
    return found != all.end() ? &*found : nullptr;
}
