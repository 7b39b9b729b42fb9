#!/bin/sh
# Builds the sample host and opens a choice, which was saved on an office printer, on a wide-format device and
# on one that is fed from a roll; then plots a drawing to files and to a port. Pictures and plots lie in
# build/demo.
set -eu
cd "$(dirname "$0")/.."
. scripts/common.sh

build=build/demo
work=$build/devices

# Puts the first description into $2 whose name in the packages holds one of the patterns $4.. and which has a
# line of the pattern $3.
take_description() {
    kind=$1
    file=$2
    line=$3
    shift 3
    for pattern; do
        "$descriptions" list | sed -n 's/^"\([^"]*\)".*/\1/p' | grep -- "$pattern" >"$work/names" || continue
        while read -r name; do
            "$descriptions" cat "$name" >"$file" </dev/null || continue
            if grep -q -- "$line" "$file"; then
                echo "$kind: ${name#*:}"
                return 0
            fi
        done <"$work/names"
    done
    echo "The packages hold no $kind with a line like $line." >&2
    return 1
}

take_real_devices() {
    need_packages openprinting-ppds || return 1
    take_description "Wide-format device" "$work/wide_format.ppd" '^\*JCLBegin' 'Ricoh-MP_CW2200_PDF' 'CW2200' &&
        take_description "Office printer" "$work/office.ppd" '^\*JCLBegin' 'Sharp/shac260\.ppd' 'Sharp/' &&
        take_description "Roll-fed device" "$work/roll.ppd" '^\*InputSlot Roll' '1050C_PS3' '_PS3'
}

# Opens the choice on the device $2 under both strategies and draws the sheets of both.
draw() {
    for strategy in default nearest; do
        picture=$build/$1_$strategy.svg
        run --device "$2" --choice "$choice" --strategy "$strategy" --picture "$picture"
        echo "The sheet before and after: $picture"
    done
}

run() {
    echo
    echo "\$ plot_host $*"
    "$build/bin/plot_host" "$@"
}

need_packages cmake g++ libcli11-dev libcups2-dev ninja-build nlohmann-json3-dev librapidxml-dev
echo "Building plot_host"
mkdir -p "$work"
if ! { cmake --preset release -B "$build" -DMARVCON_WARNINGS_AS_ERRORS=OFF -DBUILD_TESTING=OFF &&
    cmake --build "$build" --target plot_host; } >"$build/build.log" 2>&1; then
    cat "$build/build.log" >&2
    exit 1
fi

if take_real_devices; then
    device=$work/wide_format.ppd
    roll=$work/roll.ppd
    choice=$work/office_choice.json
    echo
    echo "=== A choice is made on the office printer: its defaults"
    run --device "$work/office.ppd" --save "$choice"
else
    echo "No real devices to be had: the samples in examples/data serve instead."
    device=examples/data/sample_plotter.ppd
    roll=$device
    choice=examples/data/office_choice.json
fi

echo
echo "=== What the wide-format device would make of that choice: a dry run"
run --device "$device" --choice "$choice" --dry-run >"$work/report"
grep -v ' kept ' "$work/report" || true
echo
echo "=== It opens that choice: foreign strings give way to its own, or go"
run --device "$device" --choice "$choice" --policy reset --save "$work/own_choice.json"
run --device "$device" --choice "$choice" --policy validate
echo
echo "=== Under keep they stay, except where the device has no such string at all"
run --device "$device" --choice "$choice" --policy keep
echo
echo "=== The choice as it was saved after the reset, opened again: nothing is changed"
run --device "$device" --choice "$work/own_choice.json" --policy validate

echo
echo "=== The office printer's sheet on the wide-format device: its default, then the nearest it has"
draw wide_format "$device"
echo
echo "=== The same on the roll-fed device"
draw roll "$roll"

echo
echo "=== A drawing goes to a pen plotter that writes to a file"
plan=examples/data/floor_plan.svg
plot=$build/floor_plan.plt
plot_to() {
    # The report is known by now.
    run --drawing "$plan" --device "$@" >"$work/report"
    sed -n -e '1,2p' -e '$p' "$work/report"
}
first_lines() {
    head -n 8 "$1" | cat -v
    echo "..."
}
plot_to pen-plotter --to "file:$plot"
first_lines "$plot"

echo
echo "=== The same to a port, behind which a pipe stands for the device"
pipe=$work/pipe
rm -f "$pipe"
mkfifo "$pipe"
cat "$pipe" >"$work/from_port.plt" &
reader=$!
trap 'kill "$reader" 2>/dev/null || true' EXIT
plot_to pen-plotter --to port:LPT1 --map-port "LPT1=$pipe"
wait "$reader"
cmp "$plot" "$work/from_port.plt" && echo "The port got the bytes that the file has."

echo
echo "=== A choice from an older pen plotter: its pens and settings are repaired; then a chart with every pen"
chart=$build/pen_chart.plt
run --device pen-plotter --choice examples/data/old_pens.json --drawing examples/data/pen_chart.svg \
    --to "file:$chart" >"$work/report"
grep -v ' kept ' "$work/report" || true
echo "The pens are taken up in this order:"
grep -o 'SP[1-9];PW[^;]*;VS[^;]*;FS[^;]*' "$chart"

echo
echo "=== And as PostScript on the wide-format device"
plot_to "$device" --to "file:$build/floor_plan.ps"
first_lines "$build/floor_plan.ps"
