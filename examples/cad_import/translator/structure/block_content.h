#pragma once

#include "mp/wide.h"
#include "vrx_api/vrx_api_exchange_common.h"

#include <TDF_Label.hxx>

#include <vector>

/// What the XDE document says of one product: its label, and the labels of the shapes of which it consists when XDE
/// has made an assembly of them.
class BlockContent
{
public:
    BlockContent(const TDF_Label& label, std::vector<TDF_Label> shapes);

    /// The product's colour: its own, or that of the first of its shapes that has one. No colour if none has.
    vrx::ExcColor color() const;

    void addCounts(vrx::ExcMiscData& data) const;

    static vrx::ExcColor colorOf(const TDF_Label& label);

private:
    // The label itself, its shapes, and their solids and shells that have a label.
    std::vector<TDF_Label> m_labels;
};
