#pragma once

#include "vrx_api/command/command.h"
#include "vrx_api/command/export_options.h"
#include "vrx_api/command/ferrant_interface.h"
#include "vrx_api/command/ferrant_options.h"
#include "vrx_api/command/import_options.h"
#include "vrx_api/command/result.h"
#include "vrx_api/legacy/export_options.h"
#include "vrx_api/legacy/import_options.h"
#include "vrx_api/legacy/ins_units.h"
