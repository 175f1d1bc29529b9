#pragma once

#include "vrx_api/vrx_api_exchange_structure.h"

/// The length unit of the file, in which the tolerances of feature control frames are: by the name that it has as the
/// unit of a dimension, such as "mm", and otherwise as the file has it. Empty when the product does not tell.
mp::wstring fileLengthUnit(const vrx::ExcProductStructure& structure);
