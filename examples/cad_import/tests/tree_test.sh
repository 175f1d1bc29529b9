#!/usr/bin/env bash
# The tree of the committed assembly, and of a newly generated one, is the one written down.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

"$host" --quiet "$vise" >"$scratch/committed"
diff -u "$example/tests/bench_vise.tree.txt" "$scratch/committed" || fail "the committed assembly has another tree"

"$generator" "$scratch/bench_vise.step"
"$host" --quiet "$scratch/bench_vise.step" >"$scratch/generated"
diff -u "$example/tests/bench_vise.tree.txt" "$scratch/generated" || fail "the generator makes another assembly"

# Properties stand below their block, once for each block.
"$host" --quiet --properties "$vise" >"$scratch/properties"
[[ $(grep -c 'part number: cap screw M8x20' "$scratch/properties") -eq 1 ]] || fail "properties not once for each block"
for line in 'material: EN-GJL-250' 'density: 7.2' 'layer: castings' 'time stamp: 2024-01-01T00:00:00'; do
    grep -qF -- "- $line" "$scratch/properties" || fail "no property $line"
done
"$host" --quiet --properties --option layer_name_mode=saved_visu_rep "$vise" >"$scratch/properties"
! grep -qF -- '- layer:' "$scratch/properties" || fail "layers although the command asks for none"
