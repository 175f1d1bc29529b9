#pragma once

/// What the settings of an import do in this translator.
///
/// Settings for STEP files:
/// - "layer_name_mode": the layers that shapes are on are sent with the blocks, but for "saved_visu_rep".
/// - "visu_pmi_mode": "none" leaves out the product manufacturing information; otherwise all of it is sent.
///
/// "unknown" leaves it to the translator, which sends all there is.
