#!/usr/bin/env python3
"""Lets ppd_sweep run over the printer descriptions of the installed packages.

usage: sweep.py PROGRAM [--sample N]

Exit code 77 where there are none.
"""
import argparse
import gzip
import lzma
import base64
import pathlib
import runpy
import subprocess
import sys
import tempfile

DRIVERS = pathlib.Path("/usr/lib/cups/driver")
FOLDERS = (pathlib.Path("/usr/share/ppd"),)


def archives():
    """The programs that carry their descriptions within them, packed as one."""
    for program in sorted(DRIVERS.iterdir()) if DRIVERS.is_dir() else ():
        if b"ppds_compressed_b64" in program.read_bytes():
            yield program


def read_all():
    """(name, bytes) of every description, each content once.

    One by one, the program unpacks its whole archive for each of them.
    """
    seen = set()

    def is_new(content):
        known = len(seen)
        seen.add(content)
        return len(seen) > known

    names = 0
    files = 0
    found = []
    for program in archives():
        index = runpy.run_path(str(program), run_name="index")["load"]()
        unpacked = lzma.decompress(base64.b64decode(index.pop("ARCHIVE")))
        for name, (start, length, described) in index.items():
            names += len(described)
            files += 1
            content = unpacked[start : start + length]
            if is_new(content):
                found.append((name, content))
    for folder in FOLDERS:
        for path in sorted(folder.rglob("*.ppd*")) if folder.is_dir() else ():
            content = path.read_bytes()
            content = gzip.decompress(content) if path.suffix == ".gz" else content
            names += 1
            files += 1
            if is_new(content):
                found.append((str(path), content))
    return names, files, found


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--sample", type=int, metavar="N", help="N evenly drawn descriptions")
    arguments = parser.parse_args()
    if not pathlib.Path(arguments.program).is_file():
        parser.error(f"there is no program '{arguments.program}'; the target ppd_sweep builds it")

    names, files, found = read_all()
    if not found:
        print("Skipped: no package with printer descriptions is installed.")
        return 77
    print(f"{names} names for {files} files, {len(found)} of them different.", file=sys.stderr)
    wanted = min(arguments.sample or len(found), len(found))
    with tempfile.TemporaryDirectory() as folder:
        for at in range(wanted):
            name, content = found[at * len(found) // wanted]
            leaf = "_".join(pathlib.PurePath(name).parts[-2:])
            pathlib.Path(folder, f"{at:05}_{leaf}").write_bytes(content)
        del found
        return subprocess.run([arguments.program, folder], check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
