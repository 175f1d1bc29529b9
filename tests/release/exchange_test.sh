#!/usr/bin/env bash
# usage: tests/release/exchange_test.sh PACKAGE
# Lets a program of release 0.1 and one of PACKAGE, today's installed version, exchange all that the frozen files hold:
# each is host and translator once. Release 0.1 is built from its sources in this repository, once, into build/release-0.1.
set -euo pipefail

package=$(realpath "$1")
readonly package
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
readonly commit=0863f2779fbb7f2367bb05262f98817595642c62 # v0.1.0
readonly home=$PWD/build/release-0.1

fetch_release() {
    git cat-file -e "$commit^{commit}" 2>/dev/null && return
    git fetch --quiet --unshallow || true
    git cat-file -e "$commit^{commit}" 2>/dev/null && return
    echo "release 0.1, commit $commit, is not in this repository; a full clone has it" >&2
    return 1
}

# As cheap as can be: it is to exchange a few objects.
install_release() {
    rm -rf "$home"
    mkdir -p "$home/source"
    git archive "$commit" | tar -x -C "$home/source"
    cmake -S "$home/source" -B "$home/build" -G Ninja -DCMAKE_BUILD_TYPE=None -DCMAKE_CXX_FLAGS="-O0 -g0 -w" \
        -DVRX_API_BUILD_{TESTS,TOOLS,EXAMPLES,READER,BENCH}=OFF
    cmake --build "$home/build" -j 2
    cmake --install "$home/build" --prefix "$home/package"
    rm -rf "$home/source" "$home/build"
    touch "$home/installed"
}

# program NAME PREFIX: builds the program of the package there.
program() {
    cmake -S tests/release -B "$home/$1" -G Ninja -DCMAKE_PREFIX_PATH="$2"
    cmake --build "$home/$1"
}

if [[ ! -e $home/installed ]]; then
    fetch_release
    install_release
fi
program program-0.1 "$home/package"
rm -rf "$home/program-today"
program program-today "$package"

version_of() { ldd "$home/$1/exchange" | grep -om1 'libvrx_api\.so\.[0-9.]*'; }
if [[ $(version_of program-0.1) == "$(version_of program-today)" ]]; then
    echo "both programs use $(version_of program-today)" >&2
    exit 1
fi
"$home/program-today/exchange" host tests/data/frozen "$home/program-0.1/exchange"
"$home/program-0.1/exchange" host tests/data/frozen "$home/program-today/exchange"
