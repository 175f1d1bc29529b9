# Sourced by the tests: SCRIPT <folder of the programs> <folder of the example>
# shellcheck shell=bash disable=SC2034
set -euo pipefail

host=$1/cad_host
translator=$1/cad_translator
generator=$1/make_bench_vise
example=$2
vise=$example/data/bench_vise.step
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# expect CODE TEXT COMMAND...: the command ends with the code and says the text on standard error.
expect() {
    local code=$1 text=$2 result=0
    shift 2
    "$@" >"$scratch/out" 2>"$scratch/err" || result=$?
    [[ $result -eq $code ]] || { cat "$scratch/err"; fail "exit code $result instead of $code: $*"; }
    grep -qF -- "$text" "$scratch/err" || { cat "$scratch/err"; fail "no \"$text\" said by: $*"; }
}
