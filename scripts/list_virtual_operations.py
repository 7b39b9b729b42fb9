#!/usr/bin/env python3
"""Lists the virtual operations of the toolkit's contracts in the order of their tables.

Drivers are built against these tables: an operation that moves, or one that is put in before others, breaks
every driver that is not built anew. The listing is checked in, so that this never happens unnoticed; the
order is read from the compiler's debug information, which names the place of pure operations too.
"""

import argparse
import difflib
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
LISTING = ROOT / "tests" / "virtual_operations.txt"
SKIPPED = 77

# A list has the same table for every element type: one stands for all.
SOURCE = """
#include "toolkit/marvcon/marvcon.h"
struct Element {
    bool operator==(const Element&) const;
};
bool px_sorts_before(const Element&, const Element&, bool);
template class PX_Sortable_Atomic_Object_List<Element>;
"""

HEAD = """\
The virtual operations of each contract, in the order of its table; ~ is the destructor. Those of the bases
come first and stand with the base. A change to a line that stands here breaks drivers: operations are added
at the end of a class only, and never removed. Written by scripts/list_virtual_operations.py --update.
"""

ENTRY = re.compile(r"^ <(\d+)><([0-9a-f]+)>: Abbrev Number: \d+(?: \((DW_TAG_\w+)\))?$")
ATTRIBUTE = re.compile(r"^\s+<[0-9a-f]+>\s+DW_AT_(\w+)\s*: (.*)$")


class Record:
    def __init__(self):
        self.name = ""
        self.is_complete = True
        self.bases = []  # (offset in the object, debug entry)
        self.operations = {}  # place -> mangled name
        self.declares_destructor = False


def is_gnu(compiler):
    macros = subprocess.run([compiler, "-dM", "-E", "-x", "c++", "/dev/null"], capture_output=True, text=True)
    return "__GNUC__" in macros.stdout and "__clang__" not in macros.stdout


def debug_information(compiler):
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder, "contracts.cpp")
        compiled = pathlib.Path(folder, "contracts.o")
        source.write_text(SOURCE, encoding="utf-8")
        # A class is told in full although nothing here uses it or defines its first operation.
        subprocess.run(
            [compiler, "-std=c++20", "-g", "-fno-eliminate-unused-debug-types", "-femit-class-debug-always",
             f"-I{ROOT}", "-c", str(source), "-o", str(compiled)], check=True)
        return subprocess.run(["readelf", "--debug-dump=info", str(compiled)], check=True,
                              capture_output=True, text=True).stdout


def plain(value):
    """The value without the form that it is stored in; versions of readelf differ in how they tell it."""
    form = r"^(?:\(\w+\) )?(?:\((?:indirect (?:line )?string, )?offset: 0x[0-9a-f]+\): )?"
    return re.sub(form, "", value).strip()


def read_records(text):
    records = {}
    open_records = {}  # depth -> record
    entries = []  # (tag, attributes, record around it, own record)
    attributes = {}
    for line in text.splitlines():
        if entry := ENTRY.match(line):
            depth, address, tag = int(entry[1]), entry[2], entry[3]
            attributes = {}
            record = None
            if tag in ("DW_TAG_class_type", "DW_TAG_structure_type"):
                record = records[address] = Record()
            entries.append((tag, attributes, open_records.get(depth - 1), record))
            open_records[depth] = record
        elif attribute := ATTRIBUTE.match(line):
            attributes[attribute[1]] = plain(attribute[2])

    for tag, attributes, outer, record in entries:
        if record:
            record.name = attributes.get("name", "")
            record.is_complete = "declaration" not in attributes
        elif outer and tag == "DW_TAG_inheritance":
            offset = attributes.get("data_member_location", "0")
            # A virtual base has an expression for an offset; only classes of the language's library have one.
            if "block" not in offset:
                outer.bases.append((int(offset, 0), attributes["type"].strip("<>").removeprefix("0x")))
        elif outer and tag == "DW_TAG_subprogram" and "virtuality" in attributes:
            if attributes["name"].startswith("~"):
                outer.declares_destructor = "artificial" not in attributes
            elif place := re.search(r"DW_OP_constu: (\d+)", attributes.get("vtable_elem_location", "")):
                outer.operations[int(place[1])] = attributes.get("linkage_name", attributes["name"])
    return records


class Tables:
    def __init__(self, records):
        self.records = records

    def primary_base(self, record):
        """The base whose table the class goes on with."""
        for offset, address in sorted(record.bases):
            base = self.records[address]
            if offset == 0 and self.length(base) > 0:
                return base
        return None

    def length(self, record):
        base = self.primary_base(record)
        start = self.length(base) if base else 0
        return start + sum(2 if operation == "~" else 1 for operation in self.own_operations(record))

    def own_operations(self, record):
        """The operations that the class adds. Debug information leaves out the place of a destructor, which
        takes two: it stands in the gap."""
        base = self.primary_base(record)
        place = self.length(base) if base else 0
        operations = []
        last = max(record.operations, default=-1)
        while place <= last:
            if place in record.operations:
                operations.append(record.operations[place])
                place += 1
            else:
                operations.append("~")
                place += 2
        if record.declares_destructor and not base and "~" not in operations:
            operations.append("~")
        return operations


def demangled(names):
    result = subprocess.run(["c++filt"], input="\n".join(names), check=True, capture_output=True, text=True)
    return result.stdout.splitlines()


def is_contract(name):
    return re.match(r"(PX|MVNK|Std)_", name) and not name.startswith("PX_Std_")


def listing(compiler):
    records = read_records(debug_information(compiler))
    tables = Tables(records)
    stand_ins = {r.name.split("<")[0] for r in records.values() if r.name.endswith("<Element>")}
    blocks = {}
    for record in records.values():
        template, _, arguments = record.name.partition("<")
        if not record.is_complete or not is_contract(record.name):
            continue
        if arguments and template in stand_ins and arguments != "Element>":
            continue
        operations = tables.own_operations(record)
        # The order of several tables in one object is a matter of the contract as well.
        if not operations and (arguments or len(record.bases) < 2):
            continue
        names = [name if name == "~" else re.sub(r"^[^(]*::", "", name) for name in demangled(operations)]
        bases = ", ".join(records[address].name for _, address in sorted(record.bases))
        head = record.name + (" : " + bases if bases else "")
        blocks[record.name] = "\n".join([head] + ["    " + name for name in names])
    return HEAD + "".join("\n" + blocks[name] + "\n" for name in sorted(blocks))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--compiler", default="g++")
    parser.add_argument("--update", action="store_true", help="write the listing instead of comparing it")
    arguments = parser.parse_args()

    if not is_gnu(arguments.compiler):
        print("skipped: the listing is made with g++")
        return SKIPPED
    text = listing(arguments.compiler)
    if arguments.update:
        LISTING.write_text(text, encoding="utf-8")
        return 0
    frozen = LISTING.read_text(encoding="utf-8")
    if text == frozen:
        return 0
    name = LISTING.relative_to(ROOT).as_posix()
    changes = difflib.unified_diff(frozen.splitlines(True), text.splitlines(True), name, "as built")
    sys.stdout.writelines(changes)
    print(f"The tables are not those of {name}.")
    return 1


if __name__ == "__main__":
    sys.exit(main())
