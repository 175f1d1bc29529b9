#!/usr/bin/env bash
# usage: run_tests.sh VRX
# The tests of the Python package, with the system's Python and numpy (python3-numpy). VRX is the program vrx.
set -euo pipefail

[[ $# -eq 1 ]] || { echo "usage: run_tests.sh VRX" >&2; exit 2; }
VRX=$(realpath "$1")
export VRX PYTHONDONTWRITEBYTECODE=1
/usr/bin/python3 -c "import numpy" || { echo "numpy is missing: apt-get install python3-numpy" >&2; exit 1; }
exec /usr/bin/python3 -W error -m unittest discover -s "$(dirname "${BASH_SOURCE[0]}")"
