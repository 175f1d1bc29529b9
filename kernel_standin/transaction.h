#pragma once

#include "kernel_standin/error.h"
#include "kernel_standin/kernel_standin_export.h"

/// A transaction is open from `api_bb_begin` to `api_bb_end`; they nest. The stand-in keeps no history to roll back:
/// an operation that fails leaves nothing behind.
KERNEL_STANDIN void api_bb_begin(int linear);
KERNEL_STANDIN void api_bb_end(outcome& result, int linear, int deleteEmpty);

/// Takes the changes of an operation that went well into the transaction.
KERNEL_STANDIN void update_from_bb();

/// Whether changes are logged.
KERNEL_STANDIN logical logging_opt_on();
KERNEL_STANDIN void set_logging(int on);
