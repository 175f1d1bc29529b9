#!/usr/bin/env bash
# usage: planted_test.sh FOLDER_OF_THE_PROGRAMS FOLDER_OF_THE_EXAMPLE
# Records an import of the bench vise, finds nothing wrong in it, and finds each defect that is planted in it.
set -euo pipefail

programs=$1
vise=$2/data/bench_vise.step
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cat >"$scratch/recorder" <<END
#!/bin/sh
exec "$programs/vrx" record -o "$scratch/capture" -- "$programs/cad_translator"
END
chmod +x "$scratch/recorder"

"$programs/cad_host" --quiet --translator "$scratch/recorder" "$vise" >/dev/null
"$programs/vrx" check "$scratch/capture"
[[ $("$programs/vrx" check --json "$scratch/none" "$scratch/capture" 2>/dev/null || echo $?) == $'[]\n3' ]]
VRX_CAPTURE=$scratch/capture "$programs/vrx_tool_planted_tests" --gtest_brief=1
