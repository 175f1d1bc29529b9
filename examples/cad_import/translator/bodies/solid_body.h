#pragma once

#include <TopoDS_Shape.hxx>

class BODY;

/// Makes a new body one of a solid. The body's payload is the solid in Open CASCADE's binary form; the body's faces,
/// edges and vertices are those of the solid, listed in the order in which `TopExp::MapShapes` numbers them.
void fillBody(BODY& body, const TopoDS_Shape& solid);
