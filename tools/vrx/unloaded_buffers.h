#pragma once

#include "mp/wide.h"

#include <functional>
#include <set>
#include <vector>

namespace tool
{

/// Those of the buffers of which a host was told that are still there at the end of its session. A living host may be
/// about to load them and gets a moment for that.
std::vector<mp::wstring> unloadedBuffers(const std::set<mp::wstring>& told, const std::function<bool()>& isHostGone);

} // namespace tool
