#!/usr/bin/env python3
"""Makes the reference of the public contracts with Doxygen, from the Doxyfile that the build has configured.

Ends with 1 and Doxygen's words when a contract is undocumented or a page is wrong, with 77 where there is no Doxygen.
With --self-test, a header that lacks words first has to be told of.
"""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

LACKING = """#pragma once

// A contract with its words.
class PX_EXPORT PX_Told {
public:
    virtual long get_scale() const = 0;
    // Begins the plot.
    virtual bool begin(long scale) = 0;
    virtual bool end(long scale) = 0;  // ends it

    // Each moves the pen.
    virtual void up(long height) = 0;
    virtual void down(long height) = 0;

    virtual void turn(long angle) = 0;

private:
    void keep(long angle);
};

class PX_EXPORT PX_Untold {
public:
    long get_scale() const;
};

PX_EXPORT void px_untold(long scale);

// The same, in words: <scale>, \\scale and #scale.
PX_EXPORT void px_told(long scale);
"""
UNTOLD = {"turn", "PX_Untold", "px_untold"}


def complaints(doxygen, doxyfile):
    # The filter runs once for each header: by this very interpreter, not by one that looks for it first.
    made = subprocess.run([doxygen, "-"], input=doxyfile, env={**os.environ, "MARVCON_PYTHON": sys.executable},
                          stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=False)
    told = sorted(set(made.stderr.splitlines()))
    return told or ([f"doxygen ended with {made.returncode}"] if made.returncode else [])


def self_test(doxygen, doxyfile):
    with tempfile.TemporaryDirectory() as folder:
        header = pathlib.Path(folder, "lacking.h")
        header.write_text(LACKING, encoding="utf-8")
        told = complaints(doxygen, f'{doxyfile}\nINPUT = "{header}"\nUSE_MDFILE_AS_MAINPAGE =\n'
                                   f'OUTPUT_DIRECTORY = "{folder}"\n')
    names = {re.search(r"(?:Compound|Member) (\w+)", line) for line in told}
    if {name and name[1] for name in names} != UNTOLD:
        print("\n".join(["a header that lacks words is told of as:", *told]))
        return False
    return True


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("--self-test", action="store_true")
    arguments.add_argument("doxyfile", type=pathlib.Path)
    given = arguments.parse_args()
    doxygen = shutil.which("doxygen")
    if not doxygen:
        print("skipped: doxygen is not installed")
        return 77
    doxyfile = given.doxyfile.read_text(encoding="utf-8")
    if given.self_test and not self_test(doxygen, doxyfile):
        return 1
    told = complaints(doxygen, doxyfile)
    print("\n".join(told))
    return 1 if told else 0


if __name__ == "__main__":
    sys.exit(main())
