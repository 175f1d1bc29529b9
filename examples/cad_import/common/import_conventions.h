#pragma once

#include "mp/wide.h"

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
///
/// Settings of the older interface, for files of all formats; those for the format count beside them. A command that
/// does not name them asks for "graphical", "as_mechanical_components", "matching_index" and "import_show".
/// - "pmi_mode": "graphical" sends the drawn annotations and the saved views; "semantic" sends the annotations as data;
///   "none" does not read the PMI. On the current interface both are sent.
/// - "product_structure_mode": "as_mechanical_components" sends all there is, and the names and materials of components
///   by their handles; "as_blocks" sends the same blocks and references without the file's properties, names and
///   materials; "none" sends, as plainly, one part for each product at the top, with all its shapes in place.
/// - "colors_mode": "rgb" sends colours as the file has them. "matching_index" does so too, but a block reference whose
///   colour has a colour index of drawings also has the property "color index". "nearest_index" sends each colour as
///   the nearest one that has an index, with its own alpha, and all block references that have a colour have the
///   property.
/// - "hidden_parts_mode": "import_hide" sends hidden components and shapes hidden; "import_show" sends nothing hidden;
///   "do_not_import" does not send hidden components, nor the blocks that only these use. A part that is sent keeps its
///   hidden shapes, which are marked as hidden.
/// - "ins_units_def_source" with "ins_units_scaling": the whole model is scaled to this unit, with the lengths, areas
///   and volumes among its properties; a file that names no unit is in millimetres then.
/// - "ins_units_def_source" alone: the unit of a file that names none, whose numbers are sent as they are. All other
///   files are sent in millimetres.
/// - "step_rotate_yz": the Y axis of a STEP file becomes the Z axis. What stands at the top of the product, and its
///   scene as a whole, are turned by 90 degrees around X.
/// - "alternate_search_paths": under the key "files" a folder. A file that is not where the command says is looked for
///   there by its name, and so are the files to which a STEP assembly refers when they are not beside it; but not those
///   to which these refer in their turn.
/// - "debug_log": what the modelling kernel tells for debugging while it reads a file is sent to the log as well.
/// - "temporary_dwg", "use_interop_mp", "import_acis_with_draftwell" and "solidworks_rotate_yz" have no effect.
///
/// The handle of a component is the position of its block reference, from 1, among all of the product structure: first
/// those at the top, then those of each block in the order of the blocks. A component's material is that of its block,
/// with the density in g/cm3, or 0 when the file does not tell; thermal conductivity and specific heat are always 0. A
/// component without a material has an entry that says so.
namespace import_conventions
{

inline const mp::wchar* const kFiles = WIDE("files");

} // namespace import_conventions
