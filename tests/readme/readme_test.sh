#!/usr/bin/env bash
# usage: tests/readme/readme_test.sh
# Runs all commands of README.md, in the order in which they stand there, in this source folder. The programs and the
# lines for CMake that it shows become a host and a translator on the installed package.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
[[ ! -e import.vrxcap ]] || { echo "import.vrxcap is in the way" >&2; exit 1; }
scratch=$(mktemp -d)
trap 'rm -rf "$scratch" import.vrxcap' EXIT

# blocks LANGUAGE NUMBER: the text of that fenced block, or of all.
blocks() {
    awk -v language="$1" -v number="${2:-}" '
        /^```$/ { inside = 0 }
        inside { print }
        $0 == "```" language { count++; inside = number == "" || count == number }' README.md
}

blocks sh >"$scratch/commands"
[[ $(wc -l <"$scratch/commands") -gt 15 ]] || { echo "the commands of README.md are not found" >&2; exit 1; }
CCACHE_DIR=$(ccache --get-config cache_dir)
# Ninja, as in the presets, so that the compiler's cache knows the library from there.
export CCACHE_DIR HOME=$scratch CMAKE_GENERATOR=Ninja
bash -xeuo pipefail "$scratch/commands" >"$scratch/output"
# Text, pictures and programs, not just no error:
for words in bench_vise exc_product_structure json-schema.org; do
    grep -qF "$words" "$scratch/output" || { echo "the commands did not print $words" >&2; exit 1; }
done

mkdir "$scratch/program"
{
    echo "cmake_minimum_required(VERSION 3.25)"
    echo "project(readme LANGUAGES CXX)"
    echo "add_executable(my_translator translator.cpp)"
    blocks cmake
    echo "add_executable(my_host host.cpp)"
    echo "target_link_libraries(my_host PRIVATE vrx_api::bridge)"
} >"$scratch/program/CMakeLists.txt"
blocks cpp 1 >"$scratch/program/translator.cpp"
blocks cpp 2 >"$scratch/program/host.cpp"
cmake -S "$scratch/program" -B "$scratch/build" -DCMAKE_PREFIX_PATH="$HOME/vrx_api"
cmake --build "$scratch/build"
[[ $("$scratch/build/my_host" "$scratch/build/my_translator") == "hex bolt of bolt.step" ]]

flags=$(PKG_CONFIG_PATH=$HOME/vrx_api/lib/pkgconfig pkg-config --cflags --libs vrx_api_bridge)
# shellcheck disable=SC2086 # the flags are words
g++ -std=c++17 "$scratch/program/host.cpp" $flags -Wl,-rpath,"$HOME/vrx_api/lib" -o "$scratch/host"
[[ $("$scratch/host" "$scratch/build/my_translator") == "hex bolt of bolt.step" ]]

# Every page that it names is there.
grep -oE '\]\([^)#]+' README.md | cut -c3- | while read -r page; do
    [[ -e $page ]] || { echo "README.md names $page, which is not there" >&2; exit 1; }
done
