#pragma once

#include "vrx_api/structure/block.h"
#include "vrx_api/structure/block_reference.h"
#include "vrx_api/structure/product_structure.h"
