#pragma once

#include "vrx_api/format_options/format_type.h"
#include "vrx_api/json/enum_table.h"
#include "vrx_api/json/key.h"

namespace vrx
{

// The two members that name the class of an object.
inline constexpr Key kOperationKey = WIDE("operation_type");
inline constexpr Key kFormatKey = WIDE("format_type");

inline constexpr EnumName<EOperationType> kOperationTypes[] = {
    {EOperationType::Import, WIDE("import")},
    {EOperationType::Export, WIDE("export")},
};
constexpr const auto& enumTable(EOperationType)
{
    return kOperationTypes;
}

inline constexpr EnumName<EFormatType> kFormatTypes[] = {
    {EFormatType::Unknown, WIDE("unknown")},
    {EFormatType::General, WIDE("general")},
    {EFormatType::CGM, WIDE("CGM")},
    {EFormatType::ACIS, WIDE("ACIS")},
    {EFormatType::Parasolid, WIDE("parasolid")},
    {EFormatType::CatiaV5, WIDE("CatiaV5")},
    {EFormatType::CatiaV5Drawing, WIDE("CatiaV5Drawing")},
    {EFormatType::CatiaV4, WIDE("CatiaV4")},
    {EFormatType::IGES, WIDE("IGES")},
    {EFormatType::STEP, WIDE("STEP")},
    {EFormatType::STL, WIDE("STL")},
    {EFormatType::Creo, WIDE("Creo")},
    {EFormatType::NX, WIDE("NX")},
    {EFormatType::SolidWorks, WIDE("SolidWorks")},
    {EFormatType::SolidWorksDrawing, WIDE("SolidWorksDrawing")},
    {EFormatType::SolidEdge, WIDE("SolidEdge")},
    {EFormatType::JT, WIDE("JT")},
    {EFormatType::Inventor, WIDE("Inventor")},
    {EFormatType::PDF3D, WIDE("3D_PDF")},
    {EFormatType::XML3D, WIDE("3D_XML")},
    {EFormatType::Autocad, WIDE("autocad")},
    {EFormatType::U3D, WIDE("U3D")},
    {EFormatType::VDA_FS, WIDE("VDA_FS")},
    {EFormatType::XML_EBOM, WIDE("XML_EBOM")},
    {EFormatType::XCGM, WIDE("XCGM")},
    {EFormatType::Graphical, WIDE("graphical")},
    {EFormatType::Mechanical, WIDE("mechanical")},
    {EFormatType::Picture, WIDE("picture")},
    {EFormatType::IFC, WIDE("IFC")},
    {EFormatType::EDrawings, WIDE("EDrawings")},
    {EFormatType::UDL, WIDE("UDL")},
};
constexpr const auto& enumTable(EFormatType)
{
    return kFormatTypes;
}

} // namespace vrx
