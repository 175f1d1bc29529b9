#pragma once

#include "pmi/drawn_annotations.h"
#include "pmi/product_places.h"
#include "pmi/saved_views.h"

#include <memory>
#include <vector>

class ProductStructureBuilder;
struct CadModel;

/// What a STEP file draws of its product manufacturing information.
struct DrawnPmi
{
    ProductPlaces places;
    std::vector<DrawnAnnotation> annotations;
    std::vector<SavedView> views;
};

/// Null for a model without records.
std::unique_ptr<DrawnPmi> drawnPmi(const CadModel& model, const ProductStructureBuilder& blocks);
