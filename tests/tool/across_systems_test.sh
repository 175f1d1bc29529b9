#!/usr/bin/env bash
# usage: across_systems_test.sh LINUX_BUILD WINDOWS_BUILD [CAD_FILE...]
# Imports of the example, of its vise or of these files, recorded on Linux: replayed on Linux and under Wine, and
# recorded again under Wine and replayed on Linux, hosts get the same messages, the same bytes in all buffers, and the
# same tree with the same figures.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
linux=$(realpath "$1")/bin
windows=$(realpath "$2")
shift 2
[[ $# -gt 0 ]] || set -- "$here/../../examples/cad_import/data/bench_vise.step"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

under_wine() {
    "$here/../../scripts/run-under-wine" "$windows/wine" \
        "/usr/lib/gcc/x86_64-w64-mingw32/12-posix:/usr/x86_64-w64-mingw32/lib" "$@"
}
windows_path() { printf 'Z:%s' "${1//\//\\}"; }

vrx_exe=$(windows_path "$windows/bin/vrx.exe")

# on_linux FILE TRANSLATOR [ARGUMENT...], and on_wine: what the two hosts print.
on_linux() {
    "$linux/vrx_tool_test_host" "${@:2}"
    "$linux/cad_reader" "$@"
}
on_wine() {
    {
        under_wine "$windows/bin/vrx_tool_test_host.exe" "${@:2}"
        under_wine "$windows/bin/cad_reader.exe" "$@"
    } | tr -d '\r'
}

cat >"$scratch/recorder" <<END
#!/bin/sh
exec "$linux/vrx" record --force -o "$scratch/linux.vrxcap" -- "$linux/cad_translator"
END
chmod +x "$scratch/recorder"

for file; do
    name=$(basename "$file")
    "$linux/cad_host" --quiet --translator "$scratch/recorder" "$file" >/dev/null || fail "cannot record $name"
    on_linux "$name" "$linux/vrx" replay "$scratch/linux.vrxcap" >"$scratch/there"
    on_wine "$name" "$vrx_exe" replay "$(windows_path "$scratch/linux.vrxcap")" >"$scratch/wine"
    cmp "$scratch/there" "$scratch/wine" || fail "a replay under Wine differs: $name"
    under_wine "$windows/bin/vrx_tool_test_host.exe" "$vrx_exe" record --force \
        -o "$(windows_path "$scratch/windows.vrxcap")" -- \
        "$vrx_exe" replay "$(windows_path "$scratch/linux.vrxcap")" >/dev/null
    on_linux "$name" "$linux/vrx" replay "$scratch/windows.vrxcap" >"$scratch/back"
    cmp "$scratch/there" "$scratch/back" || fail "what was recorded under Wine differs: $name"
    echo "$name: $(grep -c ' bytes, ' "$scratch/there") buffers, $(wc -l <"$scratch/there") lines"
done
