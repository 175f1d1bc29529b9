#!/usr/bin/env bash
# The tree of the committed assembly, and of a newly generated one, is the one written down.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

"$host" --quiet "$vise" >"$scratch/committed"
diff -u "$example/tests/bench_vise.tree.txt" "$scratch/committed" || fail "the committed assembly has another tree"

"$generator" "$scratch/bench_vise.step"
"$host" --quiet "$scratch/bench_vise.step" >"$scratch/generated"
diff -u "$example/tests/bench_vise.tree.txt" "$scratch/generated" || fail "the generator makes another assembly"

# As IGES it has the same tree, but neither materials nor stated figures, and all screws of a kind look alike.
"$generator" "$scratch/bench_vise.igs"
"$host" --quiet "$scratch/bench_vise.igs" >"$scratch/iges"
sed -E 's/, material [^]]*//; s/^21 blocks/20 blocks/; s/, mass .*//; /^volume, /d
    /left screw \(/{N; s/left screw \((.*)\) (#.*)\n.*/left screw .. right screw (\1) x2 \2/}' \
    "$example/tests/bench_vise.tree.txt" | diff -u - "$scratch/iges" ||
    fail "the assembly has another tree as IGES"
"$host" --quiet --properties "$scratch/bench_vise.igs" >"$scratch/properties"
for line in 'schema: IGES 5.3' 'file name: bench_vise.igs' 'time stamp: 2024-01-01T00:00:00' 'author: make_bench_vise' \
    'organization: vrx_api' 'originating system: make_bench_vise' 'length unit of the file: millimetre'; do
    grep -qxF -- "  - $line" "$scratch/properties" || fail "no property $line in the IGES file's head"
done

# Properties stand below their block, once for each block.
"$host" --quiet --properties "$vise" >"$scratch/properties"
[[ $(grep -c 'part number: cap screw M8x20' "$scratch/properties") -eq 1 ]] || fail "properties not once for each block"
grep -qF -- '- time stamp: 2024-01-01T00:00:00' "$scratch/properties" || fail "no properties of the file"
