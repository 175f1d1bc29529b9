#pragma once

// The kernel's interface. Names in the kernel's own spelling are the kernel's; names in this project's spelling are
// additions of the stand-in, by which programs without the kernel build entities and look into them.

#include "acis_kernel/api.h"
#include "acis_kernel/entity.h"
#include "acis_kernel/entity_list.h"
#include "acis_kernel/error.h"
#include "acis_kernel/file.h"
#include "acis_kernel/owned_entities.h"
#include "acis_kernel/transaction.h"
