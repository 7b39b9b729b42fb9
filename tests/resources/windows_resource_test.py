#!/usr/bin/env python3
"""Compiles the error texts as a Windows resource and reads them back, in every language.

A resource compiler that takes the texts for another code page, or drops one, says nothing about it.
"""

import argparse
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
RESOURCES = ROOT / "toolkit" / "resources"
SKIPPED = 77

STRING_TABLE = 6
LANGUAGES = {"ENGLISH": 0x0409, "GERMAN": 0x0407}


def source_texts():
    """Number -> text, for each language."""
    lines = RESOURCES.joinpath("error_texts.inc").read_text(encoding="utf-8").splitlines()
    calls = [line for line in lines if line.startswith("MVN_ERROR_TEXT(")]
    entries = [re.fullmatch(r'MVN_ERROR_TEXT\((\d+), "(.*)", "(.*)"\)', call) for call in calls]
    if not entries or not all(entries):
        raise SystemExit("error_texts.inc: an entry is not one line with two literals")
    return {"ENGLISH": {int(e[1]): e[2] for e in entries}, "GERMAN": {int(e[1]): e[3] for e in entries}}


def resource_texts(data):
    """(language, number) -> text of all string tables in a .res file: blocks of sixteen counted texts."""
    texts = {}
    place = 0
    while place < len(data):
        size, header_size = struct.unpack_from("<II", data, place)
        type_mark, kind, name_mark, block = struct.unpack_from("<HHHH", data, place + 8)
        # Version, memory flags, language: they follow the type and the name, here numbers both.
        language = struct.unpack_from("<IHH", data, place + 16)[2]
        at = place + header_size
        if type_mark == 0xFFFF and name_mark == 0xFFFF and kind == STRING_TABLE:
            for index in range(16):
                length = struct.unpack_from("<H", data, at)[0]
                text = data[at + 2:at + 2 + 2 * length].decode("utf-16-le")
                at += 2 + 2 * length
                if text:
                    texts[language, (block - 1) * 16 + index] = text
        place = (place + header_size + size + 3) & ~3
    return texts


def compiled(windres, compiler, language):
    with tempfile.TemporaryDirectory() as folder:
        result = pathlib.Path(folder, "texts.res")
        # The host's compiler will do as preprocessor. No code page is given: the script names its own.
        preprocessor = [f"--preprocessor={compiler}"] + [
            f"--preprocessor-arg={argument}" for argument in ("-E", "-xc-header", "-DRC_INVOKED")]
        call = [windres, *preprocessor, f"-DMVN_TEXTS_{language}", "-O", "res", "mvnres11.rc", str(result)]
        subprocess.run(call, cwd=RESOURCES, check=True)
        return result.read_bytes()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--windres", default="x86_64-w64-mingw32-windres")
    parser.add_argument("--compiler", default="c++")
    arguments = parser.parse_args()
    if not shutil.which(arguments.windres):
        print(f"skipped: {arguments.windres} is not installed")
        return SKIPPED

    wrong = 0
    for language, texts in source_texts().items():
        wanted = {(LANGUAGES[language], number): text for number, text in texts.items()}
        found = resource_texts(compiled(arguments.windres, arguments.compiler, language))
        for key in sorted(wanted.keys() | found.keys()):
            if wanted.get(key) != found.get(key):
                wrong += 1
                print(f"{language}: text {key[1]} of language {key[0]:#06x}")
                print(f"    is        {found.get(key)!r}\n    should be {wanted.get(key)!r}")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
