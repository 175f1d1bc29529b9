#pragma once

#include <cstdint>

namespace vrx
{

/// The form of the options in a command. The first two share one form.
enum class EFerrantInterface : std::int32_t
{
    UConnect = 0,
    Connect = 1,
    Legacy = 2,
};

} // namespace vrx
