#!/usr/bin/env bash
# usage: tests/consumer/subproject_test.sh FOLDER
# Builds the library as a part of another project, static, and installs it from there; then a program links what was
# installed, by CMake and by pkg-config.
set -euo pipefail
sources=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../..")
rm -rf "$1"
mkdir -p "$1"
cd "$1"

cmake -S "$sources/tests/consumer/subproject" -B parent -G Ninja -DVRX_API_SOURCE="$sources" -DVRX_API_INSTALL=ON
cmake --build parent -j 2
parent/static_library
cmake --install parent --prefix "$PWD/made"
mv made moved

CMAKE_PREFIX_PATH=$PWD/moved PKG_CONFIG_PATH=$PWD/moved/lib/pkgconfig \
    "$sources/tests/consumer/run" consumer consumer static_library
