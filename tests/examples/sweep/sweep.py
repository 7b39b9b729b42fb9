#!/usr/bin/env python3
"""Lets ppd_sweep run over the printer descriptions of the installed packages.

usage: sweep.py PROGRAM [--sample N] [--check]

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
FOLDER = pathlib.Path("/usr/share/ppd")


def all_descriptions():
    """(how many names, name, bytes) of every description.

    Some programs carry theirs within them, packed as one; asked, they would unpack all for each.
    """
    for program in sorted(DRIVERS.iterdir()) if DRIVERS.is_dir() else ():
        if b"ppds_compressed_b64" not in program.read_bytes():
            continue
        index = runpy.run_path(str(program), run_name="index")["load"]()
        unpacked = lzma.decompress(base64.b64decode(index.pop("ARCHIVE")))
        for name, (start, length, described) in index.items():
            yield len(described), name, unpacked[start : start + length]
    for path in sorted(FOLDER.rglob("*.ppd*")) if FOLDER.is_dir() else ():
        content = path.read_bytes()
        yield 1, str(path), gzip.decompress(content) if path.suffix == ".gz" else content


def read_all():
    """The numbers of names and of files, and (name, bytes) of every description, each content once."""
    names = files = 0
    found = {}
    for count, name, content in all_descriptions():
        names += count
        files += 1
        found.setdefault(content, name)
    return names, files, [(name, content) for content, name in found.items()]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--sample", type=int, metavar="N", help="N evenly drawn descriptions")
    parser.add_argument("--check", action="store_true", help="only the device check")
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
        mode = ["--check"] if arguments.check else []
        return subprocess.run([arguments.program, folder, *mode], check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
