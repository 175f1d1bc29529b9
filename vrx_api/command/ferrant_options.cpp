#include "vrx_api/command/ferrant_options.h"

#include "vrx_api/command/export_options.h"
#include "vrx_api/command/import_options.h"

namespace vrx
{

EOperationType ImportOptions::operationType() const
{
    return EOperationType::Import;
}

EOperationType ExportOptions::operationType() const
{
    return EOperationType::Export;
}

} // namespace vrx
