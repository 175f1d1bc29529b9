#pragma once

#include "reading/step_records.h"
#include "vrx_api/vrx_api_exchange_common.h"

#include <TDF_Label.hxx>
#include <TopLoc_Location.hxx>

#include <memory>
#include <unordered_map>

class ProductStructureBuilder;
struct CadModel;

/// Where the products of a STEP file first stand in the product as a whole.
class ProductPlaces
{
public:
    struct Place
    {
        TDF_Label shape;
        TopLoc_Location location;
    };

    /// Of what the blocks of a product structure are made of.
    ProductPlaces(const CadModel& model, const ProductStructureBuilder& blocks);

    /// Of a product definition. Null for one that stands nowhere.
    const Place* find(const StepRecord& product) const;

private:
    std::unordered_map<int, Place> m_places; // by the id of the product definition
};
