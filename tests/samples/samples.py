#!/usr/bin/env python3
"""The programs on the pages, README.md and docs/*.md: taken out, compiled by the build, and run.

A cpp block that begins with an include begins a program; the further ones, up to the next such, go on with it. The
text block that follows is what the program prints, and a text block with a name behind the word is a file that it
leaves: all of it is compared.
"""

import argparse
import pathlib
import re
import subprocess
import sys
import tempfile

FENCE = re.compile(r"^```(\w*)[ \t]*(\S*)\n(.*?)^```$", re.DOTALL | re.MULTILINE)


class Program:
    def __init__(self, name):
        self.name = name
        self.source = ""
        self.leaves = {}  # what it prints stands under no name


def programs_of(page):
    text = page.read_text(encoding="utf-8")
    programs = []
    for block in FENCE.finditer(text):
        language, name, code = block.groups()
        line = text.count("\n", 0, block.start(3)) + 1
        if language == "cpp":
            if code.startswith("#include"):
                programs.append(Program(page.stem + (f"-{len(programs) + 1}" if programs else "")))
            elif not programs:
                sys.exit(f"{page}:{line}: a program begins with an include")
            programs[-1].source += f'#line {line} "{page.name}"\n{code}'
        elif language == "text" and programs:
            if name in programs[-1].leaves:
                sys.exit(f"{page}:{line}: the program has printed, or left a file of that name, before")
            programs[-1].leaves[name] = code
    return programs


def extract(pages, folder):
    folder.mkdir(parents=True, exist_ok=True)
    for page in pages:
        for program in programs_of(page):
            source = folder / f"{program.name}.cpp"
            if not source.exists() or source.read_text(encoding="utf-8") != program.source:
                source.write_text(program.source, encoding="utf-8")
            print(f"{page};{program.name}")


def run(page, name, executable):
    program = next(program for program in programs_of(page) if program.name == name)
    if "" not in program.leaves:
        print(f"{page} does not say what {name} prints")
        return 1
    wrong = 0
    with tempfile.TemporaryDirectory() as folder:
        ran = subprocess.run([executable], cwd=folder, capture_output=True, text=True, timeout=60, check=False)
        if ran.returncode:
            wrong += 1
            print(f"{name} ended with {ran.returncode}:\n{ran.stderr}")
        for file, wanted in program.leaves.items():
            path = pathlib.Path(folder, file)
            left = ran.stdout if not file else path.read_text(encoding="utf-8") if path.exists() else "nothing"
            if left != wanted:
                wrong += 1
                print(f"{name} {f'left in {file}' if file else 'printed'}:\n{left}\ninstead of:\n{wanted}")
    return 1 if wrong else 0


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    tasks = arguments.add_subparsers(dest="task", required=True)
    task = tasks.add_parser("extract", help="writes the sources, and prints the page and the name of each")
    task.add_argument("--to", type=pathlib.Path, required=True)
    task.add_argument("pages", type=pathlib.Path, nargs="+")
    task = tasks.add_parser("run", help="runs a program of a page")
    task.add_argument("page", type=pathlib.Path)
    task.add_argument("name")
    task.add_argument("executable")
    given = arguments.parse_args()
    if given.task == "extract":
        return extract(given.pages, given.to)
    return run(given.page, given.name, given.executable)


if __name__ == "__main__":
    sys.exit(main())
