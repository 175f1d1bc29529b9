#pragma once

#include "mp/wide.h"
#include "pmi/drawn_annotations.h"
#include "pmi/product_places.h"
#include "reading/step_records.h"
#include "vrx_api/vrx_api_exchange_visualization.h"

#include <gp_Ax3.hxx>

#include <cstdint>
#include <optional>
#include <vector>

class ProductBlocks;
struct CadModel;

/// A view that is saved in a STEP file, in millimetres and in the coordinates of the product that it shows.
///
/// All writers agree on the two axes of a view, but neither on the side from which it is seen nor on the coordinates in
/// which its eye and its window are given. So it is seen from the side from which its annotations are read, and its
/// camera looks at the middle of the product without saying how much of it is in the picture.
struct SavedView
{
    mp::wstring name;
    gp_Ax3 axes;         // to the right, up, and to the viewer; at the middle of the product
    double distance = 1; // from there to the eye
    bool isPerspective = false;
    std::optional<gp_Ax3> section; // what stands before the first plane of a section is away
    std::vector<int> annotations;  // the ids of their records
    /// The product definition that the annotations tell of, or none.
    StepRecord product;
    /// The block of that product, or else the only one at the top; 0 when there is none.
    std::uint64_t block = 0;
};

/// The saved views of a STEP file whose PMI was kept, with those of its annotations that they show.
std::vector<SavedView> savedViews(const CadModel& model, const ProductBlocks& blocks, const ProductPlaces& places,
                                  const std::vector<DrawnAnnotation>& annotations);

vrx::ExcCamera cameraOf(const SavedView& view);

/// The coefficients are positive for the points that stay. Empty for a view without a section.
vrx::ExcClippingPlane clippingPlaneOf(const SavedView& view);

/// Adds saved views to the scene of the product as a whole: each as a view with its plane and annotations, and as a
/// capture with its camera. What is shown of a part is shown where the part first stands, if anywhere.
void addSavedViews(vrx::ExcVisualizationData& scene, const std::vector<SavedView>& views, const ProductPlaces& places);
