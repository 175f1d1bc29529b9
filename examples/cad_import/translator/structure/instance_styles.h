#pragma once

#include "vrx_api/vrx_api_exchange_common.h"

#include <NCollection_DataMap.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelMapHasher.hxx>
#include <TDocStd_Document.hxx>

#include <cstddef>
#include <utility>
#include <vector>

/// What the document says of the looks of single instances that stand deeper in the product: each style has a path of
/// components, and holds for the last one of them where it is reached by that path.
class InstanceStyles
{
public:
    explicit InstanceStyles(const Handle(TDocStd_Document) & document);

    /// The styles whose paths have been entered on the way down to a product, each with the number of its steps that
    /// are done; the longest way comes first. The styles with the longest way settle which others have been entered, so
    /// there are no more of these than steps in all paths.
    using Entered = std::vector<std::pair<std::size_t, std::size_t>>;

    struct Instance
    {
        vrx::ExcColor color; // without RGB: no colour of its own
        bool hidden = false;
        Entered below;
    };

    /// Of a component of a product.
    Instance of(const TDF_Label& component, const Entered& above) const;

private:
    struct Style
    {
        std::vector<TDF_Label> path; // of at least two components
        vrx::ExcColor color;
        bool hidden = false;
    };

    void add(const TDF_Label& component);

    std::vector<Style> m_styles;
    NCollection_DataMap<TDF_Label, std::vector<std::size_t>, TDF_LabelMapHasher> m_byFirst; // component of their paths
};
