#!/usr/bin/env bash
# The older interface on the command line: its settings, and what it tells of components.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# The tree is that of the other interface; behind it come the components.
"$host" --quiet --legacy "$vise" >"$scratch/tree"
sed '/^components$/,$d' "$scratch/tree" | diff -u "$example/tests/bench_vise.tree.txt" - || fail "another tree"
grep -qxF '  1: bench vise' "$scratch/tree" || fail "no component without a material"
grep -qxF '  2: base, material EN-GJL-250, density 7.2 g/cm3' "$scratch/tree" || fail "no material of a component"

"$host" --quiet --legacy --json "$vise" >"$scratch/tree.json"
grep -q component_names "$scratch/tree.json" || fail "no names of components in the JSON"
[[ $(grep -A3 '"handle": 2,' "$scratch/tree.json" | xargs) == *"name: base "*"density: 7.2" ]] ||
    fail "other components in the JSON"
"$host" --quiet --json "$vise" >"$scratch/tree.json"
! grep -q component_names "$scratch/tree.json" || fail "components that nobody asked for"

# The bodies are scaled with all the rest.
"$host" --quiet --legacy --bodies --option ins_units_scaling=true --option ins_units_def_source=centimeters \
    "$example/tests/cart.step" >"$scratch/tree"
grep -q '^product cart, units centimeter$' "$scratch/tree" || fail "another unit"
grep -q '^  ball: .* area 3.14159265359, .* box (-0.5 -0.5 -0.5) to (0.5 0.5 0.5)$' "$scratch/tree" || fail "another ball"

# Settings of the format stand beside those of the interface; wrong ones are answered with what there is.
expect 2 "visu_pmi_mode, use_interop_mp, pmi_mode, product_structure_mode" "$host" --legacy --option some=1 "$vise"
expect 2 "pmi_mode takes none, graphical, semantic" "$host" --legacy --option pmi_mode=all "$vise"
expect 2 "step_rotate_yz takes true, false" "$host" --legacy --option step_rotate_yz=1 "$vise"
expect 2 "alternate_search_paths takes files=FOLDER" "$host" --legacy --option alternate_search_paths=parts=/ "$vise"
expect 2 "there is no setting pmi_mode" "$host" --option pmi_mode=none "$vise"
