#pragma once

#include "vrx_api/format_options/format_type.h"
#include "vrx_api/json/json_object.h"

namespace vrx
{

/// What a command works on: the file, and whether it is imported or exported.
class VRX_API FerrantOptions : public IJsonObject
{
public:
    /// The path of the CAD file that is read or written.
    virtual const wstring& file() const = 0;
    virtual void setFile(const wstring& file) = 0;
    /// Whether it is an import or an export.
    virtual EOperationType operationType() const = 0;
};

} // namespace vrx
