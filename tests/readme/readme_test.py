#!/usr/bin/env python3
"""The first page in the README is the program that stands beside this file, and prints what it says there."""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent


def main():
    readme = ROOT.joinpath("README.md").read_text(encoding="utf-8")
    page = re.search(r"```cpp\n(.*?)```.*?```text\n(.*?)```", readme, re.DOTALL)
    if not page:
        print("README.md has no first page with its output")
        return 1
    wrong = 0
    if page[1] != pathlib.Path(__file__).with_name("first_page.cpp").read_text(encoding="utf-8"):
        wrong += 1
        print("README.md and tests/readme/first_page.cpp differ")
    printed = subprocess.run([sys.argv[1]], capture_output=True, text=True, check=True).stdout
    if page[2] != printed:
        wrong += 1
        print(f"the program printed:\n{printed}instead of:\n{page[2]}")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
