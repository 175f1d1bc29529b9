#!/usr/bin/env bash
# usage: across_systems_test.sh LINUX_BUILD WINDOWS_BUILD [CAD_FILE...]
# Imports of the example, of its vise or of these files, recorded on Linux: replayed on Linux and under Wine, and
# recorded again under Wine and replayed on Linux, a host gets the same messages and the same bytes in all buffers.
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
host_exe=$windows/bin/vrx_tool_test_host.exe

cat >"$scratch/recorder" <<END
#!/bin/sh
exec "$linux/vrx" record --force -o "$scratch/linux.vrxcap" -- "$linux/cad_translator"
END
chmod +x "$scratch/recorder"

for file; do
    name=$(basename "$file")
    "$linux/cad_host" --quiet --translator "$scratch/recorder" "$file" >/dev/null || fail "cannot record $name"
    "$linux/vrx_tool_test_host" "$linux/vrx" replay "$scratch/linux.vrxcap" >"$scratch/there"
    under_wine "$host_exe" "$vrx_exe" replay "$(windows_path "$scratch/linux.vrxcap")" | tr -d '\r' >"$scratch/wine"
    cmp "$scratch/there" "$scratch/wine" || fail "a replay under Wine differs: $name"
    under_wine "$host_exe" "$vrx_exe" record --force -o "$(windows_path "$scratch/windows.vrxcap")" -- \
        "$vrx_exe" replay "$(windows_path "$scratch/linux.vrxcap")" >/dev/null
    "$linux/vrx_tool_test_host" "$linux/vrx" replay "$scratch/windows.vrxcap" >"$scratch/back"
    cmp "$scratch/there" "$scratch/back" || fail "what was recorded under Wine differs: $name"
    echo "$name: $(grep -c ' bytes, ' "$scratch/there") buffers, $(wc -l <"$scratch/there") lines"
done
