#pragma once

#include "common/body_figures.h"
#include "kernel_standin/kernel_standin.h"

/// Measures a restored body by the B-rep that comes with it. Throws ModelFailure when there is none, when
/// its faces, edges and vertices are not those of the body, or when the kernel can't take it.
BodyFigures measuredBody(ENTITY& body, EBox box);
