#pragma once

#include "vrx_api/vrx_api_exchange_common.h"

#include <IGESData_IGESModel.hxx>

/// What the global section of an IGES file tells of the file, under the names that the head of a STEP file has.
vrx::ExcMiscData igesHead(const IGESData_IGESModel& entities, bool namesUnit);
