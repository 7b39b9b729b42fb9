#!/usr/bin/env python3
"""Writes what the benchmarks measured into the tables of a page: bench_tables.py RESULTS PAGE

RESULTS is a folder of the benchmarks' JSON files. A table of the page stands between a line
"<!-- table: NAME -->" and a line "<!-- end -->"; what is between them is replaced."""

import json
import pathlib
import re
import sys

# What is measured; our benchmark, the peer's and what it is, the floor's and what that is.
BESIDE = [
    ("copy and release, 50 objects", "copy/counted/50", "`std::shared_ptr`", "copy/shared/50",
     "plain pointer", "copy/plain/50"),
    ("copy and release, 2,000 objects", "copy/counted/2000", "`std::shared_ptr`", "copy/shared/2000",
     "plain pointer", "copy/plain/2000"),
    ("copy and release, 20,000 objects", "copy/counted/20000", "`std::shared_ptr`", "copy/shared/20000",
     "plain pointer", "copy/plain/20000"),
    ("find a name, the last of 1,000", "find/named_list", "`std::find_if` over shared pointers", "find/vector",
     "plain pointers to the names", "find/plain"),
    ("sort 200 records, in order already", "sort/toolkit/200", "`std::list::sort`", "sort/std_list/200", "", ""),
    ("validate the saved choices of an office printer", "saved/toolkit", "libcups marks and checks them",
     "saved/libcups", "", ""),
    ("the nearest size of that printer", "size/toolkit", "libcups' table of standard sizes", "size/libcups", "", ""),
    ("the nearest of 33 sizes", "nearest/toolkit/33", "", "", "walk over the sheets alone", "nearest/plain/33"),
] + [
    (f"write {size} to {place}", f"write/channel/{number}/{count}", "`fwrite`", f"write/stdio/{number}/{count}", floor,
     f"write/plain/{number}/{count}")
    for number, place in ((1, "a file"), (0, "the null device"))
    for count, size, floor in ((1, "1 byte", "`memcpy`, `write(2)`"), (16, "16 bytes", "`memcpy`, `write(2)`"),
                               (256, "256 bytes", "`memcpy`, `write(2)`"), (65536, "64 KiB", "`write(2)`"))
]

# What grows with what, and the benchmark of each size.
GROWTH = [
    ("the nearest size, none of them identical", "sizes", "nearest/toolkit", (33, 330, 3300)),
    ("list of resolutions, all different", "modes of 20", "list/apart", (10, 50, 100)),
    ("list of resolutions, the same in every mode", "modes of 20", "list/shared", (10, 50, 100)),
    ("list of the counts of colours", "modes", "list/colors", (10, 50, 100)),
    ("sort, in order already", "records", "sort/toolkit", (20, 200, 1000, 2000)),
    ("validate every domain, all marked as validated", "modes of 20", "every_domain", (1, 50)),
]

ALONE = [
    ("validate media of 33 sizes and strings, all marked as validated", "media/all_validated"),
    ("the same, all marks cleared, the last size of the list", "media/marks_cleared"),
    ("the second and each later discovery of the machine's ports", "later_discovery"),
]


def medians(folder):
    """The median of the processor's time of each benchmark, in nanoseconds."""
    units = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
    times = {}
    for file in sorted(folder.glob("*.json")):
        for run in json.loads(file.read_text())["benchmarks"]:
            if run.get("error_occurred"):
                sys.exit(f"{file.name}: {run['name']}: {run['error_message']}")
            if run.get("aggregate_name", "median") == "median":
                name = re.sub(r"/(iterations|repeats):\d+|_median$", "", run["run_name"])
                times[name] = run["cpu_time"] * units[run["time_unit"]]
    return times


def shown(time):
    for unit, length in (("ms", 1e6), ("us", 1e3), ("ns", 1)):
        if time >= length or unit == "ns":
            return f"{time / length:.3g} {unit}"


def ratio(time, other):
    return f"{time / other:.2g}" if time < 100 * other else f"{time / other:,.0f}"


def table(heads, rows, right):
    lines = ["| " + " | ".join(heads) + " |",
             "| " + " | ".join("---:" if column in right else "---" for column in range(len(heads))) + " |"]
    return "\n".join(lines + ["| " + " | ".join(row) + " |" for row in rows])


def tables(times):
    beside = []
    for what, ours, peer, of_peer, floor, of_floor in BESIDE:
        time = times[ours]
        row = [what, shown(time)]
        for other, of_other in ((peer, of_peer), (floor, of_floor)):
            row += [other, shown(times[of_other]), ratio(time, times[of_other])] if other else ["", "", ""]
        beside.append(row)
    growth = [[what, " / ".join(f"{count:,}" for count in counts) + " " + of,
               " / ".join(shown(times[f"{name}/{count}"]) for count in counts)]
              for what, of, name, counts in GROWTH]
    alone = [[what, shown(times[name])] for what, name in ALONE]
    return {
        "beside": table(["What", "Ours", "Peer", "Its time", "Ratio", "Floor", "Its time", "Ratio"], beside,
                        (1, 3, 4, 6, 7)),
        "growth": table(["What", "Of", "Time"], growth, (2,)),
        "alone": table(["What", "Time"], alone, (1,)),
    }


def main():
    if len(sys.argv) != 3 or not pathlib.Path(sys.argv[1]).is_dir():
        sys.exit("usage: bench_tables.py RESULTS PAGE, where RESULTS is a folder")
    page = pathlib.Path(sys.argv[2])
    try:
        made = tables(medians(pathlib.Path(sys.argv[1])))
    except KeyError as missing:
        sys.exit(f"bench_tables.py: the results have no {missing}")
    text = page.read_text()
    for name, lines in made.items():
        text, count = re.subn(rf"(<!-- table: {name} -->\n).*?(<!-- end -->\n)",
                              lambda found, lines=lines: f"{found[1]}{lines}\n{found[2]}", text, flags=re.DOTALL)
        if count != 1:
            sys.exit(f"bench_tables.py: {page} has {count} tables {name}")
    page.write_text(text)
    print("\n\n".join(made.values()))


if __name__ == "__main__":
    main()
