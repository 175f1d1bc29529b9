#pragma once

#include <TDocStd_Document.hxx>

/// Writes an assembly as an IGES file with names, colours and layers: each product is a subfigure, each instance one of
/// its instances, each part's shape a solid. Layers become numbers, and what IGES has no place for is left out. False
/// if the file cannot be written.
bool writeIges(const Handle(TDocStd_Document) & document, const char* path);
