#pragma once

#include "vrx_api/format_options/catia_options.h"
#include "vrx_api/format_options/format_options.h"
#include "vrx_api/format_options/format_type.h"
#include "vrx_api/format_options/native_options.h"
#include "vrx_api/format_options/neutral_options.h"
#include "vrx_api/format_options/shared_modes.h"
#include "vrx_api/format_options/shared_settings.h"
#include "vrx_api/format_options/solidworks_options.h"
