#pragma once

#include "vrx_api/command/ferrant_options.h"
#include "vrx_api/format_options/format_options.h"

#include <memory>

namespace vrx
{

/// The file of an import, and the settings for the formats that the translator may meet on the way: at most one object
/// a format. Made by the factories of `Command`. Reading throws `std::invalid_argument` for a value that is no object
/// or has no file.
class VRX_API ImportOptions : public FerrantOptions
{
public:
    /// Import.
    EOperationType operationType() const override;

    /// The settings for a format, or null.
    virtual std::shared_ptr<IFormatOptions> formatOptions(EFormatType format) const = 0;

    /// Replaces the settings for the object's own format. The object is shared; a null pointer is ignored.
    virtual void setFormatOptions(std::shared_ptr<IFormatOptions> options) = 0;
};

} // namespace vrx
