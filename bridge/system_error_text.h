#pragma once

#include <string>
#include <system_error>

namespace vrx::bridge
{

inline std::string systemErrorText(const std::string& what, int error)
{
    return what + ": " + std::system_category().message(error);
}

} // namespace vrx::bridge
