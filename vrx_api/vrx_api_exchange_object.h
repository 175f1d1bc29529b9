#pragma once

#include "vrx_api/exchange/bytes.h"
#include "vrx_api/exchange/compressor.h"
#include "vrx_api/exchange/exchange_object.h"
#include "vrx_api/exchange/exchange_object_registry.h"
#include "vrx_api/exchange/exchange_object_wrapper.h"
#include "vrx_api/exchange/json_binary_io.h"
#include "vrx_api/exchange/message_object.h"
#include "vrx_api/exchange/progress.h"
#include "vrx_api/exchange/static_exchange_object.h"
#include "vrx_api/json/json_fwd.h"
#include "vrx_api/json/json_object.h"
#include "vrx_api/json/json_text_io.h"
