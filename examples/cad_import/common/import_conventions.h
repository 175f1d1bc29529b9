#pragma once

/// What the settings of an import do in this translator.
///
/// Settings for STEP files:
/// - "layer_name_mode": the layers that shapes are on are sent with the blocks, but for "saved_visu_rep".
/// - "visu_pmi_mode": "none" leaves out the product manufacturing information; otherwise all of it is sent.
///
/// Settings for IGES files:
/// - "import_entities": "root_only" sends the entities on which no other depends, with all that is in them;
///   "root_and_nonroot" also sends those that belong to others but can stand by themselves, such as the members of a
///   group, once more at the top of the product.
/// - "hidden_entities_mode": "all" sends hidden entities too, hidden on their block references; "none" sends none, nor
///   what is in them; "only_with_visible_links" sends a hidden entity only when a visible one refers to it.
///
/// "unknown" leaves it to the translator, which sends all there is, once.
