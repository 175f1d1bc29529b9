#!/usr/bin/env bash
# What cannot be imported ends with the exit code and the message that help.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

expect 2 "no file" "$host"
expect 2 "no option --frobnicate" "$host" --frobnicate "$vise"
expect 2 "--option takes NAME=VALUE" "$host" --option visu_pmi_mode "$vise"
expect 2 "there are layer_name_mode, visu_pmi_mode" "$host" --option import_entities=root_only "$vise"
expect 2 "visu_pmi_mode takes unknown, all, none" "$host" --option visu_pmi_mode=some "$vise"
expect 2 "hidden_entities_mode takes unknown, all, none, only_with_visible_links" "$host" \
    --option hidden_entities_mode=some "$scratch/part.IGS"
expect 2 "no settings for files like $scratch/part.stl, only for those of STEP, IGES" "$host" \
    --option visu_pmi_mode=all "$scratch/part.stl"
expect 3 "does not read files like $scratch/part.igs" "$host" "$scratch/part.igs"
expect 3 "STEP files (AP203, AP214, AP242)|stp;step;p21" "$host" "$scratch/part.igs"
expect 4 "cannot start $scratch/none" "$host" --translator "$scratch/none" "$vise"
expect 4 "The translator does not say what it is." "$host" --translator "$(command -v cat)" "$vise"
# Standard output and pages that cannot be written.
result=0
"$host" --quiet "$vise" >/dev/full 2>"$scratch/err" || result=$?
[[ $result -eq 6 ]] || fail "exit code $result instead of 6 with standard output full"
expect 6 "cannot write $scratch/none/page.html" "$host" --view "$scratch/none/page.html" "$vise"

expect 1 "There is no file $scratch/missing.step." "$host" "$scratch/missing.step"
mkdir "$scratch/folder.step"
expect 1 "folder.step is not a file." "$host" "$scratch/folder.step"
: >"$scratch/empty.step"
expect 1 "empty.step is empty." "$host" "$scratch/empty.step"
echo "hello" >"$scratch/text.step"
expect 1 "text.step is not a STEP file: it does not begin with ISO-10303-21." "$host" "$scratch/text.step"
head -c 100000 "$vise" >"$scratch/cut.step"
expect 1 "cut.step is cut off: its end, END-ISO-10303-21, is missing." "$host" "$scratch/cut.step"
{ sed '/^DATA;/q' "$vise"; echo 'ENDSEC;'; echo 'END-ISO-10303-21;'; } >"$scratch/hollow.step"
expect 1 "hollow.step holds no product." "$host" "$scratch/hollow.step"

# Damage in the middle: the rest is imported, with a warning.
sed 's/^\(#[0-9]* = \)ADVANCED_FACE(/\1ADVANCED_FARCE(/' "$vise" >"$scratch/faces.step"
expect 0 "geometric entities could not be read. The model may be incomplete." "$host" "$scratch/faces.step"
sed '100s/^/) nonsense ;; (/' "$vise" >"$scratch/syntax.step"
expect 0 "The file has errors of syntax" "$host" "$scratch/syntax.step"
