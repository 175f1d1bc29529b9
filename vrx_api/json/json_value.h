#pragma once

#include "vrx_api/json/json_fwd.h"

#ifndef RAPIDJSON_HAS_STDSTRING
#define RAPIDJSON_HAS_STDSTRING 0
#endif

#include <rapidjson/document.h>
