#pragma once

// geometry/shared_acis_buffer.h stands apart: it needs the modelling kernel's headers.
#include "vrx_api/geometry/block_geometry.h"
