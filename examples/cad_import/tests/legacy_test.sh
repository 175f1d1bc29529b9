#!/usr/bin/env bash
# The older interface on the command line: its settings, and what it tells of components.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# The tree is that of the other interface; behind it come the components.
"$host" --quiet --legacy "$vise" >"$scratch/tree"
sed '/^components$/,$d' "$scratch/tree" | diff -u "$example/tests/bench_vise.tree.txt" - || fail "another tree"
grep -qxF '  1: bench vise' "$scratch/tree" || fail "no component without a material"
grep -qxF '  2: base, material EN-GJL-250, density 7.2 g/cm3' "$scratch/tree" || fail "no material of a component"

"$host" --quiet --legacy --json "$vise" >"$scratch/tree.json"
node -e '
    const product = JSON.parse(require("fs").readFileSync(process.argv[1]));
    const [names, materials] = [product.component_names, product.component_materials];
    const right = names.length === materials.length && names[1].handle === 2 && names[1].name === "base"
        && materials[1].handle === 2 && materials[1].name === "EN-GJL-250" && materials[1].density === 7.2
        && materials[0].has_material === false;
    process.exit(right ? 0 : 1);' "$scratch/tree.json" || fail "other components in the JSON"
"$host" --quiet --json "$vise" >"$scratch/tree.json"
! grep -q component_names "$scratch/tree.json" || fail "components that nobody asked for"

# A colour of the file that has an index is told as that.
"$host" --quiet --legacy "$example/tests/cart.step" >"$scratch/tree"
grep -qxF '  left ball .. right ball (ball) x2 color 1 [part: 1 solid, 1 face]' "$scratch/tree" || fail "no colour index"
grep -qF '  lid (lid) #fa0505' "$scratch/tree" || fail "a colour index that does not match"
"$host" --quiet --legacy --option colors_mode=rgb "$example/tests/cart.step" | grep -qF ' #ff0000 ' || fail "no colour"

# The bodies are scaled with all the rest.
"$host" --quiet --legacy --bodies --option ins_units_scaling=true --option ins_units_def_source=centimeters \
    "$example/tests/cart.step" >"$scratch/tree"
grep -q '^product cart, units centimeter$' "$scratch/tree" || fail "another unit"
grep -q '^  ball: .* area 3.14159265359, .* box (-0.5 -0.5 -0.5) to (0.5 0.5 0.5)$' "$scratch/tree" || fail "another ball"

# Settings of the format count beside those of the interface; wrong ones are answered with what there is.
"$host" --quiet --legacy --properties --option layer_name_mode=saved_visu_rep "$vise" >"$scratch/tree"
! grep -qF -- '- layer:' "$scratch/tree" || fail "layers although the command asks for none"
expect 2 "visu_pmi_mode, use_interop_mp, pmi_mode, product_structure_mode" "$host" --legacy --option some=1 "$vise"
expect 2 "pmi_mode takes none, graphical, semantic" "$host" --legacy --option pmi_mode=all "$vise"
expect 2 "step_rotate_yz takes true, false" "$host" --legacy --option step_rotate_yz=1 "$vise"
expect 2 "alternate_search_paths takes files=FOLDER" "$host" --legacy --option alternate_search_paths=parts=/ "$vise"
expect 2 "there is no setting pmi_mode" "$host" --option pmi_mode=none "$vise"
