#!/bin/sh
# Runs clang-tidy over the toolkit and the examples, with the checks of .clang-tidy. It is slow, and
# therefore not one of the tests.
set -eu
cd "$(dirname "$0")/.."
. scripts/common.sh

need_packages g++ cmake ninja-build libgtest-dev python3 libcups2-dev libcli11-dev nlohmann-json3-dev librapidxml-dev \
    clang-tidy || exit 1
cmake --preset dev >/dev/null
exec run-clang-tidy -quiet -p build/dev -j "$(nproc)" "$PWD/(toolkit|examples)/"
