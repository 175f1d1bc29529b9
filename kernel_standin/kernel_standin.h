#pragma once

// The kernel's interface. Names in the kernel's own spelling are the kernel's; names in this project's spelling are
// additions of the stand-in, by which programs without the kernel build entities and look into them.

#include "kernel_standin/api.h"
#include "kernel_standin/entity.h"
#include "kernel_standin/entity_list.h"
#include "kernel_standin/error.h"
#include "kernel_standin/file.h"
#include "kernel_standin/owned_entities.h"
#include "kernel_standin/transaction.h"
