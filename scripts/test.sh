#!/bin/sh
# Builds the toolkit and runs its tests: sh scripts/test.sh [--preset dev|asan|release]
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh

preset=dev
case $#:${1-} in
0:) ;;
2:--preset) preset=$2 ;;
*)
    echo "usage: sh scripts/test.sh [--preset dev|asan|release]" >&2
    exit 2
    ;;
esac

need_packages g++ cmake ninja-build libgtest-dev pkg-config python3 libcups2-dev libcli11-dev \
    nlohmann-json3-dev libpugixml-dev || exit 1
# What only some of the tests need: they are skipped without it.
need_packages clang-format-14 binutils-mingw-w64-x86-64 openprinting-ppds cups doxygen || true
case $preset in
asan)
    # For the build as well: it runs the test programs to ask for their tests.
    export ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1
    export UBSAN_OPTIONS=print_stacktrace=1
    ;;
esac

jobs=$(nproc)
launcher=
if command -v ccache >/dev/null; then
    launcher=ccache
fi
cmake --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER="$launcher"
cmake --build --preset "$preset" --parallel "$jobs"
exec ctest --preset "$preset" --parallel "$jobs"
