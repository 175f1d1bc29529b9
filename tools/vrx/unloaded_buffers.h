#pragma once

#include "mp/wide.h"

#include <functional>
#include <set>

namespace tool
{

/// Those that are there.
std::set<mp::wstring> existingBuffers(const std::set<mp::wstring>& names);

/// Those of the buffers of which a host was told that are still there at the end of its session. A living host may be
/// about to load them and gets a moment for that.
std::set<mp::wstring> unloadedBuffers(const std::set<mp::wstring>& told, const std::function<bool()>& isHostGone);

} // namespace tool
