#pragma once

#include "vrx_api/json/enum_table.h"
#include "vrx_api/visualization/visu_geometry_type.h"

namespace vrx
{

inline constexpr EnumName<EVisuGeometryType> kVisuGeometryTypes[] = {
    {EVisuGeometryType::Unknown, WIDE("unknown")},
    {EVisuGeometryType::Part, WIDE("part")},
    {EVisuGeometryType::Construction, WIDE("construction")},
    {EVisuGeometryType::FtaConstructed, WIDE("fta_constructed")},
};
constexpr const auto& enumTable(EVisuGeometryType)
{
    return kVisuGeometryTypes;
}

} // namespace vrx
