#!/usr/bin/env bash
# What the host measures of the bodies that arrive is what the translator measures of its solids.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# Lines "block N body N ...": one number after the other, without words.
numbers() { sed -n 's/.*\(block [0-9]* body [0-9]*\)/\1/p' "$1" | sed 's/ id [0-9]*:/:/; s/[^0-9.e+-]/ /g; s/\be\b/ /g'; }

# agree A B TOLERANCE: both files have the same lines of 13 numbers, to this part of each number.
agree() {
    paste -d ' ' "$1" "$2" | awk -v tolerance="$3" '
        NF == 0 || NF % 2 || NF / 2 != 13 { print "a line without its other: " $0; exit 1 }
        {
            # The box, the last six numbers, is as exact as it is large.
            size = 0
            for (i = 8; i <= 13; ++i) size = ($i < 0 ? -$i : $i) > size ? ($i < 0 ? -$i : $i) : size
            for (i = 1; i <= 13; ++i) {
                scale = i < 8 ? ($i < 0 ? -$i : $i) : size
                difference = $i - $(i + 13)
                if ((difference < 0 ? -difference : difference) > tolerance * scale) { print "they differ: " $0; exit 1 }
            }
        }'
}

# compare FILE BODIES: the host restores this many bodies, and both programs agree on them.
compare() {
    "$host" --quiet --bodies "$1" >"$scratch/host"
    "${translator}_figures" "$1" 2>"$scratch/figures"
    sed -n '/^bodies$/,$p' "$scratch/host" >"$scratch/bodies"
    [[ $(grep -c ' body ' "$scratch/bodies") -eq $2 ]] || fail "not $2 bodies in $1"
    numbers "$scratch/bodies" >"$scratch/received"
    numbers "$scratch/figures" >"$scratch/measured"
    agree "$scratch/received" "$scratch/measured" 1e-9 || fail "host and translator do not agree on $1"
}

"$generator" "$scratch/bench_vise.step"
compare "$scratch/bench_vise.step" "$("$host" --quiet --properties "$vise" | sed -n 's/.*- solids: //p' | awk '{ n += $1 } END { print n }')"

# The IGES form has the same bodies, in the same order, of other blocks. The curves in which faces meet are made anew
# from it.
without_blocks() { awk '{ $1 = 0; print }' "$1"; }
without_blocks "$scratch/received" >"$scratch/step_bodies"
"$generator" "$scratch/bench_vise.igs"
compare "$scratch/bench_vise.igs" "$(wc -l <"$scratch/step_bodies")"
without_blocks "$scratch/received" >"$scratch/iges_bodies"
agree "$scratch/step_bodies" "$scratch/iges_bodies" 1e-5 || fail "the bodies of the IGES form differ"

# Every file that is given besides, whatever it holds.
for file in ${STEP_FILES:-}; do
    "$host" --quiet --bodies "$file" >"$scratch/host"
    compare "$file" "$(sed -n '/^bodies$/,$p' "$scratch/host" | grep -c ' body ')"
done

"$host" --quiet "$vise" >"$scratch/host"
! grep -q ' body ' "$scratch/host" || fail "bodies that nobody asked for"
expect 2 "--bodies goes with the tree as text" "$host" --bodies --json "$vise"

# A body's id names it among all of the import.
"$host" --quiet --bodies "$vise" | sed -n 's/.* id \([0-9]*\):.*/\1/p' | sort >"$scratch/ids"
[[ -s $scratch/ids && -z $(uniq -d "$scratch/ids") ]] || fail "bodies with one id"
