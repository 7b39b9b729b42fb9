#!/bin/sh
# Searches for inputs that break the toolkit, two programs at a time: sh scripts/fuzz.sh [seconds for each, 60]
set -eu
cd "$(dirname "$0")/.."
. scripts/common.sh

seconds=${1-60}
case $#:$seconds in
[01]:[1-9] | [01]:[1-9][0-9] | [01]:[1-9][0-9][0-9] | [01]:[1-9][0-9][0-9][0-9] | [01]:[1-9][0-9][0-9][0-9][0-9]) ;;
*)
    echo "usage: sh scripts/fuzz.sh [seconds, 1 to 99999]" >&2
    exit 2
    ;;
esac

need_packages g++ cmake ninja-build pkg-config libcups2-dev || exit 1
need_packages clang-14 libclang-rt-14-dev || {
    echo "skipped: nothing was searched, for want of clang and its runtime"
    exit 0
}

# Every test builds deep trees: the stack of each allocation is not worth its time.
export ASAN_OPTIONS=malloc_context_size=2:quarantine_size_mb=16
export UBSAN_OPTIONS=print_stacktrace=1
export seconds
export build=build/fuzz

build_preset fuzz

mkdir -p "$build/artifacts"
# What one program found goes into the start of its next search. The engine's own schedule is left out: keeping its
# books takes longer than a test.
if ls fuzz/corpus | xargs -P 2 -I '{}' sh -c '
    mkdir -p "$build/found/{}"
    if "$build/bin/{}_fuzz" -max_total_time="$seconds" -max_len=1200 -len_control=0 -entropic=0 \
        -timeout=10 -rss_limit_mb=1024 -artifact_prefix="$build/artifacts/{}-" \
        "$build/found/{}" "fuzz/corpus/{}" >"$build/{}.log" 2>&1; then
        echo "{}: nothing found. $(grep "^Done" "$build/{}.log")"
    else
        grep -v "^#" "$build/{}.log" | tail -n 60
        echo "{}: FOUND, see $build/{}.log. Once more: $build/bin/{}_fuzz $build/artifacts/{}-..."
        exit 1
    fi'; then
    exit 0
fi
echo "The search found something that has to be mended." >&2
exit 1
