#pragma once

#include "vrx_api/command/ferrant_interface.h"
#include "vrx_api/json/enum_table.h"

namespace vrx
{

inline constexpr EnumName<EFerrantInterface> kInterfaces[] = {
    {EFerrantInterface::UConnect, WIDE("uconnect")},
    {EFerrantInterface::Connect, WIDE("connect")},
    {EFerrantInterface::Legacy, WIDE("legacy")},
};
constexpr const auto& enumTable(EFerrantInterface)
{
    return kInterfaces;
}
constexpr EFerrantInterface enumFallback(EFerrantInterface)
{
    return EFerrantInterface::UConnect;
}

} // namespace vrx
