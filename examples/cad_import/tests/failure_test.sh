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
expect 3 "does not read files like $scratch/part.stl" "$host" "$scratch/part.stl"
expect 3 "STEP files (AP203, AP214, AP242)|stp;step;p21" "$host" "$scratch/part.stl"
expect 3 "IGES files|igs;iges" "$host" "$scratch/part.stl"
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

# The same of IGES files, which the first line tells of whatever the name.
"$generator" "$scratch/vise.igs"
: >"$scratch/empty.igs"
expect 1 "empty.igs is empty." "$host" "$scratch/empty.igs"
echo "hello" >"$scratch/text.igs"
expect 1 "text.igs is not an IGES file in its ASCII form: its first line is no record of the start section." \
    "$host" "$scratch/text.igs"
head -c 100000 "$scratch/vise.igs" >"$scratch/cut.igs"
expect 1 "cut.igs is cut off: its end, the record of the terminate section, is missing." "$host" "$scratch/cut.igs"
grep -v '[DP] *[0-9]*$' "$scratch/vise.igs" >"$scratch/hollow.igs"
expect 1 "hollow.igs holds no geometry." "$host" "$scratch/hollow.igs"
cp "$scratch/vise.igs" "$scratch/named.step"
expect 0 "" "$host" "$scratch/named.step"
cp "$vise" "$scratch/named.igs"
expect 0 "" "$host" "$scratch/named.igs"

# Damage in the middle: the rest is imported, with a warning.
sed 's/^\(#[0-9]* = \)ADVANCED_FACE(/\1ADVANCED_FARCE(/' "$vise" >"$scratch/faces.step"
expect 0 "geometric entities could not be read. The model may be incomplete." "$host" "$scratch/faces.step"
sed '100s/^/) nonsense ;; (/' "$vise" >"$scratch/syntax.step"
expect 0 "The file has errors of syntax" "$host" "$scratch/syntax.step"
awk 'substr($0, 73, 1) == "P" && /^190,/ { $0 = sprintf("%-64s%s", "190,;", substr($0, 65)) } { print }' \
    "$scratch/vise.igs" >"$scratch/planes.igs"
expect 0 "geometric entities could not be read. The model may be incomplete." "$host" "$scratch/planes.igs"
awk 'substr($0, 73, 1) == "P" && /^408,/ && ++count == 2 { sub(/,,0,1,/, ",2.,0,1,"); $0 = substr($0, 1, 64) substr($0, 67) } { print }' \
    "$scratch/vise.igs" >"$scratch/scaled.igs"
expect 0 "1 of the file's entities could not be translated. The model may be incomplete." "$host" "$scratch/scaled.igs"
# What XDE cannot place, since it is mirrored or no placement at all, is left out and not put anywhere else.
for matrix in '-1.,0.,0.,0.,0.,1.,0.,0.,0.,0.,1.,28.' '1.1,0.,0.,0.,0.,1.,0.,0.,0.,0.,1.,28.'; do
    awk -v matrix="124,$matrix;" 'substr($0, 73, 1) == "P" && /^124,1\.,0\.,0\.,0\.,0\.,1\.,0\.,0\.,0\.,0\.,1\.,28\.;/ {
            $0 = sprintf("%-64s%s", matrix, substr($0, 65)) } { print }' "$scratch/vise.igs" >"$scratch/matrix.igs"
    expect 0 "1 of the file's entities could not be translated. The model may be incomplete." "$host" "$scratch/matrix.igs"
done
# Geometry that the kernel does not know: the surface of a plane as a solid of constructive geometry.
awk '/^ *190 / { sub(/ 190/, " 150") } /^190,/ { sub(/^190/, "150") } { print }' "$scratch/vise.igs" >"$scratch/block.igs"
expect 0 "The model may be incomplete." "$host" "$scratch/block.igs"
# A unit that nobody knows.
sed 's/^\(.*\),2, G0000002/\1,3, G0000002/; s/^2HMM,\(.*\)G0000003$/2HXX,\1G0000003/' "$scratch/vise.igs" >"$scratch/unit.igs"
expect 0 "The file names no unit of lengths that is known: its numbers are taken for millimetres." \
    "$host" "$scratch/unit.igs"
expect 0 "" "$host" --legacy --option ins_units_def_source=inches "$scratch/unit.igs"
grep -q 'units inch$' "$scratch/out" || fail "not the unit that the command names for a file without one"
grep -v 'P *[0-9]*$' "$scratch/vise.igs" >"$scratch/bare.igs"
expect 1 "Nothing in $scratch/bare.igs could be translated: The file is damaged" "$host" "$scratch/bare.igs"
