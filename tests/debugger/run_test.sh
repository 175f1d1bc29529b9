#!/usr/bin/env bash
# usage: tests/debugger/run_test.sh BUILD_DIR
# GDB looks at the test programs: while they run, at their core dumps, and with the printers that it loads by itself.
# Each time it must print what stands in the transcripts beside this script. It may not call functions in the programs.
set -euo pipefail

readonly build=${1:?the build folder is missing}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly here
readonly printers=$here/../../tools/debugger/vrx_gdb.py
work=$(mktemp -d)
readonly work
trap 'rm -rf "$work"' EXIT
unset DEBUGINFOD_URLS
export LC_ALL=C.UTF-8

# The commands of a transcript, each behind a line that repeats it.
commands_of() {
    sed -n 's/^(gdb) \(.*\)/echo (gdb) \1\\n\n\1/p' "$1"
}

# compare NAME TRANSCRIPT OPTION...: what GDB prints, without addresses and its values' numbers, is the transcript.
compare() {
    local name=$1 transcript=$2
    shift 2
    {
        echo "set may-call-functions off"
        echo "set print pretty on"
        commands_of "$transcript"
    } >"$work/commands"
    timeout 120 gdb -nx -q -batch "$@" -x "$work/commands" >"$work/output" 2>&1 </dev/null ||
        { cat "$work/output" && return 1; }
    sed -En '/^\(gdb\) /,$p' "$work/output" | sed -E 's/^\$[0-9]+ = //; s/0x[0-9a-f]{12}\b/ADDRESS/g' >"$work/shown"
    if ! diff -u "$transcript" "$work/shown"; then
        echo "FAILED: $name"
        head -n 20 "$work/output"
        return 1
    fi
    echo "passed: $name"
}

run_to_look=(-ex "break look" -ex run -ex up)

# check PROGRAM TRANSCRIPT
check() {
    local program=$build/bin/$1 core=$work/$1.core
    # Read before there is a program, as in a .gdbinit.
    compare "$1, running" "$2" -iex "source $printers" "${run_to_look[@]}" "$program"
    timeout 120 gdb -nx -q -batch "${run_to_look[@]}" -ex "generate-core-file $core" "$program" >"$work/output" 2>&1
    compare "$1, core dump" "$2" -ex "source $printers" -ex up "$program" "$core"
}

check vrx_api_debugger_eyes "$here/eyes.txt"
check vrx_api_debugger_json "$here/json_eyes.txt"
check vrx_api_debugger_json_unpacked "$here/json_eyes.txt"

# As it is installed: under the path of the real file of the library.
library=$(readlink -f "$build/lib/libvrx_api.so")
mkdir -p "$work/auto-load/$(dirname "$library")"
cp "$printers" "$work/auto-load/$library-gdb.py"
compare "printers that GDB loads by itself" "$here/eyes.txt" \
    -iex "set auto-load scripts-directory \$datadir/auto-load:$work/auto-load" \
    -iex "add-auto-load-safe-path $work/auto-load" "${run_to_look[@]}" "$build/bin/vrx_api_debugger_eyes"
