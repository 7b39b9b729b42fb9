#!/bin/sh
# Runs all of bench/ and writes the tables of docs/performance.md: sh scripts/bench.sh [repetitions, 5]
set -eu
cd "$(dirname "$0")/.."
. scripts/common.sh

repetitions=${1-5}
case $#:$repetitions in
[01]:[1-9] | [01]:[1-9][0-9]) ;;
*)
    echo "usage: sh scripts/bench.sh [repetitions, 1 to 99]" >&2
    exit 2
    ;;
esac

need_packages g++ cmake ninja-build pkg-config python3 libbenchmark-dev libcups2-dev libcli11-dev \
    nlohmann-json3-dev librapidxml-dev || exit 1

build=build/bench
build_preset bench

# Beside libcups: a real office printer, and the sample where it cannot be had.
need_packages openprinting-ppds || true
description=$build/office.ppd
name=$("$descriptions" list 2>/dev/null | sed -n 's|^"\([^"]*Sharp/shac260\.ppd\)".*|\1|p' | head -n 1) || name=
if [ -z "$name" ] || ! "$descriptions" cat "$name" >"$description"; then
    cp examples/data/sample_plotter.ppd "$description"
fi

mkdir -p "$build/results"
rm -f "$build"/results/*.json
for program in "$build"/bin/*_bench; do
    name=$(basename "$program")
    echo "$name"
    set -- "$program"
    if [ "$name" = ppd_bench ]; then
        set -- "$@" "$description"
    fi
    "$@" --benchmark_repetitions="$repetitions" --benchmark_enable_random_interleaving=true \
        --benchmark_report_aggregates_only=true --benchmark_out="$build/results/$name.json" \
        --benchmark_out_format=json >"$build/results/$name.log" 2>&1 || {
        cat "$build/results/$name.log" >&2
        exit 1
    }
done
exec python3 scripts/bench_tables.py "$build/results" docs/performance.md
