#pragma once

#include <TDocStd_Document.hxx>

namespace vise
{

/// The whole assembly with names, colours, layers, materials and validation properties.
Handle(TDocStd_Document) document();

} // namespace vise
