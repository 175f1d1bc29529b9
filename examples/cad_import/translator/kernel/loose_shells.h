#pragma once

#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

/// The shells of a shape that belong to no solid, in the order in which the kernel maps the shape.
inline TopTools_IndexedMapOfShape looseShells(const TopoDS_Shape& shape)
{
    TopTools_IndexedMapOfShape shells;
    for (TopExp_Explorer explorer(shape, TopAbs_SHELL, TopAbs_SOLID); explorer.More(); explorer.Next())
    {
        shells.Add(explorer.Current());
    }
    return shells;
}
