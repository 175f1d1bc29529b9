#pragma once

#include <TDF_Label.hxx>
#include <TDocStd_Document.hxx>

#include <vector>

/// How products hold each other in the XDE document.
namespace component_labels
{

/// The products at the top.
std::vector<TDF_Label> roots(const Handle(TDocStd_Document) & document);

/// The components of a product, without theirs.
std::vector<TDF_Label> of(const TDF_Label& product);

/// The product that a component places; of a label that is none, the label.
TDF_Label referred(const TDF_Label& component);

/// True when a component is hidden, or its product.
bool isHidden(const TDF_Label& component);

} // namespace component_labels
