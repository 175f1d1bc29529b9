#pragma once

#include "vrx_api/vrx_api_exchange_common.h"

#include <NCollection_DataMap.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelMapHasher.hxx>
#include <TDocStd_Document.hxx>
#include <TopLoc_Location.hxx>

#include <memory>

class ProductStructureBuilder;

/// Where the XDE document's shapes first stand in the product as a whole.
class ProductPlaces
{
public:
    /// Of what the blocks of a product structure are made of.
    ProductPlaces(const Handle(TDocStd_Document) & document, const ProductStructureBuilder& blocks);

    /// Of the shape of a label, or of which the label tells a part. Null for a shape that is not moved.
    std::shared_ptr<vrx::ExcTransformation> firstPlaceOf(const TDF_Label& shape) const;

    /// False for the shape of a label, or a part of it, that stands nowhere.
    bool hold(const TDF_Label& shape) const { return find(shape) != nullptr; }

private:
    const TopLoc_Location* find(const TDF_Label& shape) const;

    NCollection_DataMap<TDF_Label, TopLoc_Location, TDF_LabelMapHasher> m_places;
};
