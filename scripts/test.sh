#!/bin/sh
# Builds the toolkit and runs its tests: sh scripts/test.sh [--preset dev|asan|release|windows]
set -eu
cd "$(dirname "$0")/.."
. scripts/common.sh

preset=dev
case $#:${1-} in
0:) ;;
2:--preset) preset=$2 ;;
*)
    echo "usage: sh scripts/test.sh [--preset dev|asan|release|windows]" >&2
    exit 2
    ;;
esac

need_packages cmake ninja-build python3 libcli11-dev nlohmann-json3-dev librapidxml-dev || exit 1
if [ "$preset" = windows ]; then
    if ! need_packages g++-mingw-w64-x86-64-posix wine wine64 googletest; then
        echo "skipped: nothing was built or run for Windows, for want of the cross compiler or Wine"
        exit 0
    fi
else
    need_packages g++ libgtest-dev pkg-config libcups2-dev || exit 1
    # What only some of the tests need: they are skipped without it.
    need_packages clang-format-14 binutils-mingw-w64-x86-64 openprinting-ppds cups doxygen || true
fi
case $preset in
asan)
    # For the build as well: it runs the test programs to ask for their tests.
    export ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1
    export UBSAN_OPTIONS=print_stacktrace=1
    ;;
esac

jobs=$(nproc)
build_preset "$preset"
if [ "$preset" != windows ]; then
    exec ctest --preset "$preset" --parallel "$jobs"
fi

# One start makes Wine's folder, before two tests try at a time.
export WINEPREFIX="$PWD/build/windows/wine" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
unset DISPLAY
if ! timeout 180 wine wineboot --init >/dev/null 2>&1; then
    echo "Wine does not start" >&2
    exit 1
fi
failed=0
timeout 900 ctest --preset windows --parallel "$jobs" || failed=$?
wineserver --kill || true

# A file of tests counts as many as there are in it, what is no such file as one.
total=0
echo
while IFS='|' read -r file reason; do
    count=$(grep -cE '^TEST(_F|_P)?\(|^    def test_' "tests/$file") || count=1
    total=$((total + count))
    printf '%4d  %s: %s\n' "$count" "$file" "$reason"
done <build/windows/not_on_windows.txt
echo "Skipped on Windows: $total tests, for the reasons above"
exit "$failed"
