#pragma once

#include "acis_kernel/acis_kernel_export.h"
#include "acis_kernel/error.h"

/// A transaction is open from `api_bb_begin` to `api_bb_end`; they nest. The stand-in keeps no history to roll back:
/// an operation that fails leaves nothing behind.
ACIS_KERNEL void api_bb_begin(int linear);
ACIS_KERNEL void api_bb_end(outcome& result, int linear, int deleteEmpty);

/// Takes the changes of an operation that went well into the transaction.
ACIS_KERNEL void update_from_bb();

/// Whether changes are logged.
ACIS_KERNEL logical logging_opt_on();
ACIS_KERNEL void set_logging(int on);
