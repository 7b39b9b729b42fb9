#!/bin/sh
# Builds the sample host and opens a choice, which was saved on an office printer, on a wide-format device.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh

build=build/demo
work=$build/devices
driver=/usr/lib/cups/driver/openprinting-ppds

# Puts the first description into $2 whose name in the packages holds one of the patterns $3.. and which has
# job-control strings.
take_description() {
    kind=$1
    file=$2
    shift 2
    for pattern; do
        "$driver" list | sed -n 's/^"\([^"]*\)".*/\1/p' | grep -- "$pattern" >"$work/names" || continue
        while read -r name; do
            "$driver" cat "$name" >"$file" </dev/null || continue
            if grep -q '^\*JCLBegin' "$file"; then
                echo "$kind: ${name#*:}"
                return 0
            fi
        done <"$work/names"
    done
    echo "The packages hold no $kind with job-control strings." >&2
    return 1
}

take_real_devices() {
    need_packages openprinting-ppds || return 1
    take_description "Wide-format device" "$work/wide_format.ppd" 'Ricoh-MP_CW2200_PDF' 'CW2200' &&
        take_description "Office printer" "$work/office.ppd" 'Sharp/shac260\.ppd' 'Sharp/'
}

run() {
    echo
    echo "\$ plot_host $*"
    "$build/bin/plot_host" "$@"
}

need_packages cmake g++ libcli11-dev libcups2-dev ninja-build nlohmann-json3-dev
echo "Building plot_host"
mkdir -p "$work"
if ! { cmake --preset release -B "$build" -DMARVCON_BUILD_BENCH=OFF -DBUILD_TESTING=OFF &&
    cmake --build "$build" --target plot_host; } >"$build/build.log" 2>&1; then
    cat "$build/build.log" >&2
    exit 1
fi

if take_real_devices; then
    device=$work/wide_format.ppd
    choice=$work/office_choice.json
    echo
    echo "=== A choice is made on the office printer: its defaults"
    run --device "$work/office.ppd" --save "$choice"
else
    echo "No real devices to be had: the samples in examples/data serve instead."
    device=examples/data/sample_plotter.ppd
    choice=examples/data/office_choice.json
fi

echo
echo "=== The wide-format device opens that choice: foreign strings give way to its own, or go"
run --device "$device" --choice "$choice" --policy reset --save "$work/own_choice.json"
run --device "$device" --choice "$choice" --policy validate
echo
echo "=== Under keep they stay, except where the device has no such string at all"
run --device "$device" --choice "$choice" --policy keep
echo
echo "=== The choice as it was saved after the reset, opened again: nothing is changed"
run --device "$device" --choice "$work/own_choice.json" --policy validate
