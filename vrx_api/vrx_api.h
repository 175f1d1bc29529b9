#pragma once

#include "vrx_api/vrx_api_command.h"
#include "vrx_api/vrx_api_exchange_common.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"
#include "vrx_api/vrx_api_exchange_object.h"
#include "vrx_api/vrx_api_exchange_structure.h"
#include "vrx_api/vrx_api_exchange_visualization.h"
#include "vrx_api/vrx_api_ferrant_info.h"
#include "vrx_api/vrx_api_format_options.h"
