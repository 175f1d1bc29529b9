#pragma once

#include "vrx_api/common/color.h"
#include "vrx_api/common/entity.h"
#include "vrx_api/common/full_subent_path.h"
#include "vrx_api/common/matrix.h"
#include "vrx_api/common/misc_data.h"
#include "vrx_api/common/subent_id.h"
#include "vrx_api/common/transformation.h"
#include "vrx_api/common/units.h"
#include "vrx_api/common/vector.h"
#include "vrx_api/exchange/stage_finished.h"
