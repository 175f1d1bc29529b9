#pragma once

#include <TopoDS_Shape.hxx>

class ENTITY_LIST;

/// Adds a solid to the list as a body of the kernel. The body's payload is the solid in Open CASCADE's binary form; the
/// body's faces, edges and vertices are those of the solid, listed in the order in which `TopExp::MapShapes` numbers
/// them.
void addSolidBody(const TopoDS_Shape& solid, ENTITY_LIST& bodies);
