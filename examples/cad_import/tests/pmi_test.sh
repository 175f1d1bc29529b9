#!/usr/bin/env bash
# The PMI of a file, as the host tells it. STEP_FILES may name the public test cases, which are held against what their
# texts state and their drawings say, of holes too.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

"$host" --quiet --pmi-table "$example/tests/pin.step" | sed -n '/^PMI/,$p' >"$scratch/table"
diff -u "$example/tests/pin.pmi.txt" "$scratch/table" || fail "the PMI is told otherwise"

"$host" --quiet --json "$example/tests/pin.step" >"$scratch/pin.json"
node "$example/tests/drawn_frames.js" "$scratch/pin.json" || fail "the page draws other frames"

# What is missing is told to be missing: a datum and the form of a zone. Of two records with one number the first counts.
sed -e '/^#106=/d' -e '/^#166=/d' -e "s/^#108=.*/&\n#108=DATUM('','',#4,.F.,'Z');/" "$example/tests/pin.step" >"$scratch/gaps.step"
"$host" --quiet --pmi-table "$scratch/gaps.step" >"$scratch/gaps" 2>/dev/null
grep -q "⌖ – Ⓜ ? B Ⓜ / ⌖ – Ⓜ ? " "$scratch/gaps" || fail "gaps are filled"

# A dimension between two parts belongs to the product, whose page finds them by their blocks. What holds for all of a
# part belongs to the part.
"$host" --quiet --pmi-table "$example/tests/cart.step" >"$scratch/cart"
grep -A2 "the product" "$scratch/cart" | grep -q "20  block 2 face 0; block 3 face 0" || fail "no dimension of the product"
sed -n '/lid: block/,$p' "$scratch/cart" | grep -q "⌓ 0.7 all over" || fail "no tolerance of a part"

for file in ${STEP_FILES:-}; do
    "$host" --quiet --json "$file" >"$scratch/pmi.json"
    node "$example/tests/stated_pmi.js" "$(basename "$file")" "$scratch/pmi.json" || fail "$file states other PMI"
    node "$example/tests/stated_holes.js" "$(basename "$file")" "$scratch/pmi.json" || fail "$file has other holes"
done
