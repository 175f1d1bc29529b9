#pragma once

#include <functional>
#include <string>

namespace bench
{

/// Does work in a process of its own, which begins as a copy of this one, and gives what the work returned there.
/// Throws `std::runtime_error` when the process does not end as it should.
std::string inChild(const std::function<std::string()>& work);

} // namespace bench
