#pragma once

// What a build with a foreign kernel includes in the stand-in's place.
#include <acis_kernel/acis_kernel.h>
