#pragma once

// What a build with a foreign kernel includes in the stand-in's place.
#include <kernel_standin/kernel_standin.h>
