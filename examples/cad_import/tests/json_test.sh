#!/usr/bin/env bash
# The JSON form carries the tree of the text form, and each instance in its place.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

"$host" --quiet --json "$vise" >"$scratch/tree.json"
sed -E 's/ \[.*\]$//; /^product |^[0-9]+ blocks|^volume, /d' "$example/tests/bench_vise.tree.txt" >"$scratch/expected"
node "$example/tests/json_lines.js" "$scratch/tree.json" >"$scratch/lines"
diff -u "$scratch/expected" "$scratch/lines" || fail "the JSON has another tree"

# The sliding jaw's plate set is turned half around Z; its two screws lie along X, turned about Y. So it is as IGES too.
"$generator" "$scratch/bench_vise.igs"
"$host" --quiet --json "$scratch/bench_vise.igs" >"$scratch/iges_tree.json"
for tree in tree iges_tree; do
    node -e '
        const tree = JSON.parse(require("fs").readFileSync(process.argv[1])).tree;
        const child = (node, name) => node.children.find((c) => c.name === name);
        const near = (a, b) => a.flat().every((x, i) => Math.abs(x - b[i]) < 1e-9);
        const set = child(child(tree[0], "sliding jaw"), "front plate");
        const screw = child(set, "left screw");
        const right = near(set.affine, [-1, 0, 0, 0, -1, 0, 0, 0, 1]) && near(set.translation, [-30, 0, 38])
            && near(screw.affine, [0, 0, 1, 0, 1, 0, -1, 0, 0]) && near(screw.translation, [5, -28, 0]);
        process.exit(right ? 0 : 1);' "$scratch/$tree.json" || fail "an instance is not where it should be in $tree"
done

# The PMI is in the JSON, for programs, or in the table.
expect 2 "--pmi-table goes with the tree as text" "$host" --pmi-table --json "$vise"
expect 2 "--holes goes with the tree as text" "$host" --holes --json "$vise"
node -e '
    const pmi = JSON.parse(require("fs").readFileSync(process.argv[1])).pmi;
    const lists = ["dimensions", "tolerances", "datums", "datum_targets", "notes", "views"];
    process.exit(lists.every((list) => Array.isArray(pmi[list])) ? 0 : 1);' "$scratch/tree.json" || fail "no PMI in the JSON"

# The mechanical data stand with the parts.
node -e '
    const blocks = JSON.parse(require("fs").readFileSync(process.argv[1])).blocks;
    const lists = ["materials", "layers", "holes", "patterns", "threads", "entities", "stated"];
    const right = (block) => block.is_part
        ? block.mass > 0 && lists.every((list) => Array.isArray(block[list])) && block.stated.every((one) => one.agrees)
        : block.mass === undefined;
    process.exit(blocks.every(right) ? 0 : 1);' "$scratch/tree.json" || fail "no mechanical data in the JSON"
expect 2 "--view-name goes with" "$host" --view-name top "$vise"
expect 6 "there is no saved view top, and no other" "$host" --view-name top --view "$scratch/page.html" "$vise"
