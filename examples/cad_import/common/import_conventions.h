#pragma once

#include "mp/wide.h"

/// What the settings of an import do in this translator.
///
/// Settings for STEP files:
/// - "layer_name_mode": the layers that shapes are on are sent with the blocks, but for "saved_visu_rep".
/// - "visu_pmi_mode": "none" leaves out the product manufacturing information; otherwise all of it is sent.
///
/// "unknown" leaves it to the translator, which sends all there is.
///
/// A command of the older interface also brings the names and materials of components, by their handles. The handle of
/// a component is the position of its block reference, from 1, among all of the product structure: first those at the
/// top, then those of each block in the order of the blocks. A material is the one of the component's block, with its
/// density in g/cm3; the file tells of no thermal conductivity and no specific heat, which are 0. A component without a
/// material has an entry that says so.
///
/// Settings of the older interface, for files of all formats; those for the format count beside them:
/// - "pmi_mode": "graphical" sends the drawn annotations and the saved views; "semantic" sends neither, but the message
///   still tells how much PMI the file holds; "none" does not read the PMI.
/// - "product_structure_mode": "as_mechanical_components" sends all there is; "as_blocks" sends the same blocks and
///   references without their free properties, and neither names nor materials by handles; "none" sends, in the same
///   way, one part for each product at the top, with all its shapes in place.
/// - "colors_mode": colours always travel as red, green and blue. With "matching_index" those that have a colour index
///   of drawings (see color_index.h) mean that index; with "nearest_index" each colour is sent as the nearest one that
///   has an index; with "rgb" they mean no index. The alpha is sent in all of them.
/// - "ins_units_def_source" with "ins_units_scaling": the whole model is scaled to this unit: transformations, bodies,
///   scenes, and the lengths, areas and volumes among the properties; a file that names no unit is in millimetres then.
/// - "ins_units_def_source" without "ins_units_scaling": the unit of a file that names none, whose numbers are sent as
///   they are. Otherwise it has no effect: a model is sent in millimetres.
/// - "step_rotate_yz": the Y axis of a STEP file becomes the Z axis: the block references at the top and the scene of
/// the
///   product as a whole are turned by 90 degrees around X.
/// - "hidden_parts_mode": "import_hide" sends hidden components and shapes hidden; "import_show" sends nothing hidden;
///   "do_not_import" does not send hidden components, nor the blocks that only these use, but still sends the hidden
///   shapes within a part.
/// - "alternate_search_paths": under the key "files" a folder. A file that is not where the command says is looked for
///   there by its name, and so are the files to which a STEP assembly refers when they are not beside it; but not those
///   to which these refer in their turn.
namespace import_conventions
{

inline const mp::wchar* const kFiles = WIDE("files");

} // namespace import_conventions
