#!/usr/bin/env bash
# The tree of the committed assembly, and of a newly generated one, is the one written down.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

"$host" --quiet "$vise" >"$scratch/committed"
diff -u "$example/tests/bench_vise.tree.txt" "$scratch/committed" || fail "the committed assembly has another tree"

"$generator" "$scratch/bench_vise.step"
"$host" --quiet "$scratch/bench_vise.step" >"$scratch/generated"
diff -u "$example/tests/bench_vise.tree.txt" "$scratch/generated" || fail "the generator makes another assembly"

# As IGES it has the same tree, but no materials.
"$generator" "$scratch/bench_vise.igs"
"$host" --quiet "$scratch/bench_vise.igs" >"$scratch/iges"
sed 's/, material [^]]*//' "$example/tests/bench_vise.tree.txt" | diff -u - "$scratch/iges" ||
    fail "the assembly has another tree as IGES"
"$host" --quiet --properties "$scratch/bench_vise.igs" >"$scratch/properties"
for line in 'schema: IGES 5.3' 'file name: bench_vise.igs' 'time stamp: 2024-01-01T00:00:00' 'author: make_bench_vise' \
    'organization: vrx_api' 'originating system: make_bench_vise' 'length unit of the file: millimetre'; do
    grep -qxF -- "  - $line" "$scratch/properties" || fail "no property $line in the IGES file's head"
done
[[ $(sed -n 's/.*- layer: //p' "$scratch/properties" | sort -n | uniq -c | xargs) == "3 1 7 2 4 3" ]] ||
    fail "the IGES file's parts are on other layers"

# Properties stand below their block, once for each block.
"$host" --quiet --properties "$vise" >"$scratch/properties"
[[ $(grep -c 'part number: cap screw M8x20' "$scratch/properties") -eq 1 ]] || fail "properties not once for each block"
for line in 'material: EN-GJL-250' 'density: 7.2' 'layer: castings' 'time stamp: 2024-01-01T00:00:00'; do
    grep -qF -- "- $line" "$scratch/properties" || fail "no property $line"
done
"$host" --quiet --properties --option layer_name_mode=saved_visu_rep "$vise" >"$scratch/properties"
! grep -qF -- '- layer:' "$scratch/properties" || fail "layers although the command asks for none"
