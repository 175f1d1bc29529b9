#pragma once

#include "vrx_api/info/ferrant_info.h"
#include "vrx_api/info/format.h"
#include "vrx_api/info/thirdparty_core.h"
