#pragma once

#include "vrx_api/command/ferrant_options.h"

namespace vrx
{

/// The file of an export. The version of the target format and the geometry flags are agreed between host and
/// translator. Made by the factories of `Command`. Reading throws `std::invalid_argument` for a value that is no object
/// or has no file.
class VRX_API ExportOptions : public FerrantOptions
{
public:
    /// Export.
    EOperationType operationType() const override;

    /// The version of the target format.
    virtual const wstring& formatVersion() const = 0;
    virtual void setFormatVersion(const wstring& version) = 0;
    /// Flags for the geometry.
    virtual int geometryFlags() const = 0;
    virtual void setGeometryFlags(int flags) = 0;
};

} // namespace vrx
