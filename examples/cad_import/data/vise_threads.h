#pragma once

#include <TDocStd_Document.hxx>

class STEPCAFControl_Writer;

namespace vise
{

/// A thread on all cylinders of one radius that a part has, in millimetres.
struct Thread
{
    const char* part;
    double radius;
    bool isInternal;
    const char* designation;
    double diameter;
    double pitch;
    double depth;
};

inline const Thread kThreads[] = {
    {"cap screw M8x20", 4, false, "M8x1.25", 8, 1.25, 20}, {"cap screw M10x30", 5, false, "M10x1.5", 10, 1.5, 30},
    {"base", 4.25, true, "M10x1.5", 10, 1.5, 20},          {"fixed jaw", 3.4, true, "M8x1.25", 8, 1.25, 16},
    {"sliding jaw", 3.4, true, "M8x1.25", 8, 1.25, 16},    {"spindle", 10, false, "Tr20x4", 20, 4, 122},
    {"spindle nut", 10.2, true, "Tr20x4", 20, 4, 32},
};

/// States them in what a writer has made of the vise for a STEP file. Throws std::runtime_error when there is no such
/// cylinder.
void addThreads(STEPCAFControl_Writer& writer, const Handle(TDocStd_Document) & document);

} // namespace vise
