#pragma once

#include <Interface_InterfaceModel.hxx>

/// The kernel draws no more of a tessellated annotation than the first set of strips, where it stands by itself. So
/// this makes one of all sets of an annotation, with its outlines, where it is placed. To be called between the reading
/// of a file with the taught entities and its transfer.
void gatherTessellatedAnnotations(const Interface_InterfaceModel& entities);
