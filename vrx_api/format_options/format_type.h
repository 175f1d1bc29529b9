#pragma once

#include <cstdint>

namespace vrx
{

/// What settings are for. There is no number 0.
enum class EOperationType : std::int32_t
{
    Import = 1,
    Export = 2,
};

/// The CAD formats of a translator, and some groups of formats.
enum class EFormatType : std::int32_t
{
    Unknown = 0,
    General = 1,
    CGM = 2,
    ACIS = 3,
    Parasolid = 4,
    CatiaV5 = 5,
    CatiaV5Drawing = 6,
    CatiaV4 = 7,
    IGES = 8,
    STEP = 9,
    STL = 10,
    Creo = 11,
    NX = 12,
    SolidWorks = 13,
    SolidWorksDrawing = 14,
    SolidEdge = 15,
    JT = 16,
    Inventor = 17,
    PDF3D = 18,
    XML3D = 19,
    Autocad = 20,
    U3D = 21,
    VDA_FS = 22,
    XML_EBOM = 23,
    XCGM = 24,
    Graphical = 25,
    Mechanical = 26,
    Picture = 27,
    IFC = 28,
    EDrawings = 29,
    UDL = 30,
};

} // namespace vrx
