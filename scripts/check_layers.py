#!/usr/bin/env python3
"""Holds the include lines of toolkit/ and examples/ against the floors of the house, and all files to their length.

An include goes down, never up, never sideways between domains. Each violation is printed as
file:line: reason. With --self-test, every rule first has to catch a sample that breaks it.
"""

import argparse
import pathlib
import posixpath
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent

FLOORS = {"host": 0, "platform": 1, "core": 2, "marvcon": 3, "report": 4}
BACK_ENDS = {"posix", "win32", "scripted"}
FRAME = {"std_plotter_def", "std_plval"}
FRAME_FACE = {"interface.h", "factory_interface.h", "datum.h", "domain_objects.h"}
DOMAINS = {
    "std_meta_cfg", "std_media_cfg", "std_io_cfg", "std_res_color_mem_cfg", "std_phys_pen_cfg",
    "std_init_term_cfg", "std_custom_cfg", "std_linetype_caps", "std_raster_caps", "std_sys_io_caps",
    "std_plotter_io", "device_data", "font_usage",
}
# Who may read the interface.h of which other domain: the identity of the device, and the ports.
NEIGHBOURS = {
    ("std_io_cfg", "std_meta_cfg"), ("std_plotter_io", "std_meta_cfg"),
    ("std_res_color_mem_cfg", "std_meta_cfg"), ("std_plotter_io", "std_io_cfg"),
}
# Discovery makes the standard ports, and the validator of the output makes discoveries: there is no creator for them.
MAKERS = {("std_sys_io_caps", "std_io_cfg"), ("std_io_cfg", "std_sys_io_caps")}
CONTRACTS = {"interface.h", "catalogue_interface.h", "factory_interface.h"}
WIN_TYPES = "toolkit/platform/win_types.h"
PUBLIC_FACE = "toolkit/marvcon/marvcon.h"
# The add-on above the toolkit, which sees its public face; examples see both.
REPORT_FACE = "toolkit/report.h"
# A host names the ports and the print server of its machine; a driver does not.
MACHINES = {
    "toolkit/platform/posix/posix_platform.h": "examples/plot_host/posix",
    "toolkit/platform/win32/win32_platform.h": "examples/plot_host/windows",
}

HOUSE = {"toolkit", "examples"}
SUFFIXES = {".h", ".cpp", ".inc", ".rc"}
# Beside the house only the length counts.
YARD = {"tests", "bench", "fuzz", "scripts"}
YARD_SUFFIXES = {".h", ".cpp", ".py", ".sh"}
MOST_LINES = 600

INCLUDE = re.compile(r'^\s*#\s*include\b\s*(?:(<)|")?([^">]*)')
CONDITION = re.compile(r"^\s*#\s*(?:if|ifdef|ifndef|elif|elifdef|elifndef)\b(.*)")
OPERATING_SYSTEM = re.compile(
    r"\b(_WIN32|_WIN64|WIN32|WIN64|_WINDOWS|__CYGWIN__|__MINGW32__|__MINGW64__|linux|__linux|__linux__"
    r"|__gnu_linux__|unix|__unix|__unix__|__APPLE__|__MACH__|__FreeBSD__|__NetBSD__|__OpenBSD__|__ANDROID__"
    r"|_AIX|__sun)\b")


def without_comments(text):
    """The text with its comments blanked and its lines in place; a condition that goes on over several lines
    is drawn together on its first."""
    token = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)
    text = token.sub(lambda m: m[0] if m[0][0] == '"' else re.sub(r"[^\n]", " ", m[0]), text)
    return re.sub(r"^([ \t]*#[^\n]*(?:\\\n[^\n]*)+)",
                  lambda m: m[0].replace("\\\n", " ") + "\n" * m[0].count("\\\n"), text, flags=re.MULTILINE)


class File:
    def __init__(self, path, text):
        self.path = path
        self.line_count = len(text.splitlines())
        self.includes = []  # (line, path, in angle brackets)
        self.conditions = []  # (line, expression)
        for number, line in enumerate(without_comments(text).splitlines(), 1):
            if include := INCLUDE.match(line):
                self.includes.append((number, include[2].strip(), include[1] is not None))
            elif condition := CONDITION.match(line):
                self.conditions.append((number, condition[1]))

    def parts(self):
        return self.path.split("/")


def is_below(path, folder):
    return path.startswith(folder + "/")


def folder_in_marvcon(path):
    """The folder in toolkit/marvcon that holds the file; empty for an umbrella header beside the folders."""
    parts = path.split("/")
    return parts[2] if len(parts) > 3 and parts[:2] == ["toolkit", "marvcon"] else ""


def is_ground(path):
    """Whether a contract may stand on it."""
    return path == WIN_TYPES or is_below(path, "toolkit/core") or is_below(path, "toolkit/host")


class Checker:
    def __init__(self, texts):
        self.files = {path: File(path, text) for path, text in texts.items()}

    def violations(self):
        found = []
        for path in sorted(self.files):
            file = self.files[path]
            found += [(path, line, reason) for line, reason in self.of_file(file)]
        return found

    def of_file(self, file):
        yield from self.of_place(file)
        if file.parts()[0] not in HOUSE:
            return
        for line, condition in file.conditions:
            if (name := OPERATING_SYSTEM.search(condition)) and not self.may_ask_for_system(file.path):
                yield line, f"shared code asks for the operating system by {name[1]}"
        for line, target, in_brackets in file.includes:
            if target.lower() == "windows.h":
                if file.path != WIN_TYPES:
                    yield line, f"{WIN_TYPES} is the only door to <windows.h>"
            elif is_below(target, "toolkit"):
                if reason := self.forbidden(file.path, target):
                    yield line, reason
            elif not in_brackets and is_below(file.path, "toolkit") and not self.is_beside(file, target):
                yield line, "an include of our own names the file from the root of the tree"

    def of_place(self, file):
        parts = file.parts()
        if file.line_count > MOST_LINES:
            yield MOST_LINES + 1, f"{file.line_count} lines: the file has two subjects"
        if parts[0] == "toolkit" and file.path != REPORT_FACE and parts[1] not in {*FLOORS, "resources"}:
            yield 1, f"no rule knows the floor toolkit/{parts[1]}"
        elif (folder := folder_in_marvcon(file.path)) and folder not in DOMAINS | FRAME:
            yield 1, f"no rule knows the folder toolkit/marvcon/{folder}"

    @staticmethod
    def may_ask_for_system(path):
        return path == WIN_TYPES or is_below(path, "toolkit/platform/posix") or \
            is_below(path, "toolkit/platform/win32")

    @staticmethod
    def is_beside(file, target):
        # The resource compiler looks beside the script only.
        return file.path.endswith(".rc") and "/" not in target

    def forbidden(self, path, target):
        """Why the file may not include the target; empty if it may."""
        if posixpath.normpath(target) != target:
            return "an include of our own names the file from the root of the tree"
        if is_below(path, "examples"):
            if target in (PUBLIC_FACE, REPORT_FACE) or is_below(target, "toolkit/platform/scripted"):
                return ""
            if target in MACHINES and is_below(path, MACHINES[target]):
                return ""
            return f"an example sees the public faces only: {PUBLIC_FACE}, {REPORT_FACE}"
        if is_below(path, "toolkit/resources"):
            if is_below(target, "toolkit/resources") or is_below(target, "toolkit/platform/posix"):
                return ""
            return "the texts see only how a module of texts is made"
        if path == REPORT_FACE:
            return "" if is_below(target, "toolkit/report") else "the add-on's face covers its folder"
        if target == REPORT_FACE:
            return "an umbrella header is for those outside the toolkit"
        return self.wrong_floor(path, target) or self.wrong_room(path, target)

    @staticmethod
    def wrong_floor(path, target):
        own, other = path.split("/")[1], target.split("/")[1]
        if other not in FLOORS:
            return f"nobody includes toolkit/{other}"
        if own in FLOORS and FLOORS[other] > FLOORS[own]:
            return f"the floor {own} includes up, from {other}"
        if other == "platform" and (back_end := target.split("/")[2]) in BACK_ENDS:
            if not is_below(path, f"toolkit/platform/{back_end}"):
                return f"the back end {back_end} is nobody's but its own"
        return ""

    def wrong_room(self, path, target):
        if is_below(path, "toolkit/report") and is_below(target, "toolkit/marvcon") and target != PUBLIC_FACE:
            return f"the add-on sees the model by its public face only: {PUBLIC_FACE}"
        if not is_below(path, "toolkit/marvcon"):
            return ""
        folder, name = folder_in_marvcon(path), posixpath.basename(path)
        other, other_name = folder_in_marvcon(target), posixpath.basename(target)

        if is_below(target, "toolkit/marvcon"):
            if not other and path != PUBLIC_FACE:
                return "an umbrella header is for those outside the toolkit"
            if not folder and path != PUBLIC_FACE and other != posixpath.splitext(name)[0]:
                return "an umbrella header covers the folder of its own name"
            if folder in DOMAINS and other in DOMAINS and other != folder:
                may_see = (folder, other) in MAKERS or \
                    other_name == "interface.h" and (folder, other) in NEIGHBOURS
                if not may_see:
                    return f"the domain {folder} includes sideways, from {other}"
            if folder in DOMAINS and other in FRAME and other_name not in FRAME_FACE:
                return f"a domain sees of {other} its contracts only"
        if name in CONTRACTS and folder:
            return self.not_for_contract(path, target)
        return ""

    def not_for_contract(self, path, target):
        folder, other = folder_in_marvcon(path), folder_in_marvcon(target)
        if is_ground(target):
            return ""
        if not other:
            return "a contract sees core, host and other contracts only"
        if posixpath.basename(target) in CONTRACTS:
            return ""
        # The factory's contract names the values of every domain.
        if (other == folder or path.endswith("/factory_interface.h")) and self.is_value_header(target, set()):
            return ""
        return "a contract sees core, host, other contracts and its own values only"

    def is_value_header(self, path, seen):
        """Whether a header in a domain's folder stands on core and host alone, as values do."""
        if path in seen:
            return True
        seen.add(path)
        file = self.files.get(path)
        return file is not None and all(
            is_ground(target) or folder_in_marvcon(target) == folder_in_marvcon(path)
            and posixpath.basename(target) not in CONTRACTS and self.is_value_header(target, seen)
            for _, target, _ in file.includes if is_below(target, "toolkit"))


def texts_below(root):
    texts = {}
    for folder in HOUSE | YARD:
        suffixes = SUFFIXES if folder in HOUSE else YARD_SUFFIXES
        for path in sorted(root.joinpath(folder).rglob("*")):
            if path.suffix in suffixes and path.is_file():
                texts[path.relative_to(root).as_posix()] = path.read_text(encoding="utf-8")
    return texts


# Each sample is a house with one fault, or with none: the files, and where which reason has to be found.
def include(*targets):
    return "".join(f'#include "toolkit/{target}"\n' for target in targets)


IO = "toolkit/marvcon/std_io_cfg/"
PENS = "toolkit/marvcon/std_phys_pen_cfg/"
SAMPLES = {
    "a sound domain": (
        {IO + "interface.h": include("core/flags.h", "host/string.h", "platform/win_types.h",
                                     "marvcon/std_io_cfg/baud.h", "marvcon/std_plval/interface.h",
                                     "marvcon/std_meta_cfg/interface.h"),
         IO + "baud.h": "#include <cstdint>\n" + include("core/caps_type.h"),
         IO + "validator.cpp": include("marvcon/std_io_cfg/validator.h", "marvcon/std_plval/domain_objects.h",
                                       "marvcon/std_plval/datum.h", "platform/platform.h"),
         "toolkit/marvcon/std_io_cfg.h": include("marvcon/std_io_cfg/validator.h"),
         "toolkit/marvcon/std_plotter_io/open.cpp": include("marvcon/std_io_cfg/interface.h"),
         "toolkit/marvcon/std_plotter_def/factory_interface.h": include("marvcon/std_io_cfg/baud.h"),
         "toolkit/marvcon/std_plotter_def/class_factory.cpp": include("marvcon/std_io_cfg/validator.h"),
         "toolkit/marvcon/marvcon.h": include("marvcon/std_io_cfg.h"),
         REPORT_FACE: include("report/check.h"),
         "toolkit/report/check.cpp": include("marvcon/marvcon.h"),
         "examples/driver/main.cpp": include("report.h"),
         "toolkit/platform/posix/ports.cpp": "#ifdef __linux__\n" + include("platform/posix/ports.h"),
         WIN_TYPES: "#ifdef _WIN32\n#include <windows.h>\n#endif\n",
         "toolkit/resources/mvnres11.rc": '#include "error_texts.inc"\n',
         "examples/host/main.cpp": '#include "reader.h"\n' + include("marvcon/marvcon.h",
                                                                    "platform/scripted/scripted_platform.h"),
         "toolkit/core/list.h": "#if defined(__SSE2__)\n#endif // _WIN32\n"}, []),
    "host includes up": ({"toolkit/host/a.h": "\n" + include("platform/platform.h")}, [(2, "up")]),
    "platform includes up": ({"toolkit/platform/a.h": include("core/flags.h")}, [(1, "up")]),
    "core includes up": ({"toolkit/core/a.h": include("marvcon/std_io_cfg/interface.h")}, [(1, "up")]),
    "core knows a back end": ({"toolkit/core/a.cpp": include("platform/posix/a.h")}, [(1, "nobody's")]),
    "the toolkit knows a report": ({IO + "a.cpp": include("report/check.h")}, [(1, "up")]),
    "a back end knows another": ({"toolkit/platform/posix/a.cpp": include("platform/scripted/a.h")},
                                 [(1, "nobody's")]),
    "the machine knows its back end": ({"toolkit/platform/a.cpp": include("platform/win32/a.h")},
                                       [(1, "nobody's")]),
    "core knows the texts": ({"toolkit/core/a.cpp": include("resources/a.h")}, [(1, "nobody includes")]),
    "the texts know the core": ({"toolkit/resources/a.cpp": include("core/flags.h")},
                                [(1, "module of texts")]),
    "sideways": ({PENS + "validator.cpp": include("marvcon/std_io_cfg/interface.h")}, [(1, "sideways")]),
    "sideways to the identity": ({PENS + "a.cpp": include("marvcon/std_meta_cfg/interface.h")},
                                 [(1, "sideways")]),
    "a neighbour beyond its contract": ({IO + "a.cpp": include("marvcon/std_meta_cfg/catalogue.h")},
                                        [(1, "sideways")]),
    "sideways in angle brackets": ({PENS + "a.cpp": "#include <toolkit/marvcon/std_io_cfg/a.h>\n"},
                                   [(1, "sideways")]),
    "the frame beyond its contracts": ({PENS + "a.cpp": include("marvcon/std_plval/validator.h")},
                                       [(1, "contracts only")]),
    "a contract knows a class": (
        {PENS + "interface.h": include("marvcon/std_phys_pen_cfg/catalogue.h"),
         PENS + "catalogue.h": include("marvcon/std_phys_pen_cfg/interface.h")}, [(1, "its own values")]),
    "a contract knows a class by way of a value": (
        {PENS + "interface.h": include("marvcon/std_phys_pen_cfg/pen.h"),
         PENS + "pen.h": include("marvcon/std_phys_pen_cfg/catalogue.h"),
         PENS + "catalogue.h": include("marvcon/std_phys_pen_cfg/interface.h")}, [(1, "its own values")]),
    "a contract knows the platform": ({PENS + "interface.h": include("platform/platform.h")},
                                      [(1, "core, host and other contracts")]),
    "a contract knows the values of the frame": (
        {PENS + "interface.h": include("marvcon/std_plval/datum.h"),
         "toolkit/marvcon/std_plval/datum.h": ""}, [(1, "its own values")]),
    "an umbrella from inside": ({PENS + "a.cpp": include("marvcon/marvcon.h")}, [(1, "umbrella")]),
    "an umbrella over two": ({"toolkit/marvcon/std_io_cfg.h": include("marvcon/std_phys_pen_cfg/pen.h")},
                             [(1, "own name")]),
    "an example behind the face": ({"examples/a.cpp": include("marvcon/std_io_cfg/validator.h")},
                                   [(1, "public faces")]),
    "an example at the platform": ({"examples/drivers/a.h": include("platform/posix/posix_platform.h"),
                                    "examples/plot_host/posix/a.h": include("platform/posix/posix_platform.h")},
                                   [(1, "public face")]),
    "an example at another machine": (
        {"examples/plot_host/a.h": include("platform/posix/posix_platform.h"),
         "examples/plot_host/windows/a.h": include("platform/posix/posix_platform.h")},
        [(1, "public face"), (1, "public face")]),
    "a second door": ({"toolkit/platform/win32/a.h": "#  include <Windows.h>\n"}, [(1, "only door")]),
    "a sound add-on": (
        {REPORT_FACE: include("report/a.h"),
         "toolkit/report/a.h": include("marvcon/marvcon.h", "report/b.h", "core/fields.h"),
         "examples/a.cpp": include("report.h")}, []),
    "the model knows the add-on": ({PENS + "a.cpp": include("report/a.h"),
                                    "toolkit/core/a.cpp": include("report.h")}, [(1, "umbrella"), (1, "up")]),
    "the add-on behind the face": ({"toolkit/report/a.cpp": include("marvcon/std_phys_pen_cfg/pen.h")},
                                   [(1, "public face")]),
    "an example behind the add-on's face": ({"examples/a.cpp": include("report/a.h")},
                                            [(1, "public faces")]),
    "a relative include": ({"toolkit/core/a.cpp": '#include "flags.h"\n'}, [(1, "root of the tree")]),
    "a winding include": ({"toolkit/core/a.cpp": include("core/../marvcon/a.h")}, [(1, "root of the tree")]),
    "asks for the system": ({"toolkit/core/a.cpp": "/*\n#ifdef _WIN32\n*/\n#ifdef _WIN32\n#endif\n"},
                            [(4, "_WIN32")]),
    "asks for the system in a second line": (
        {"examples/a.cpp": "#if defined(A) || \\\n    defined(__linux__)\n#endif\n#elif __APPLE__\n"},
        [(1, "__linux__"), (4, "__APPLE__")]),
    "too long": ({"toolkit/core/a.cpp": "\n" * (MOST_LINES + 1)}, [(601, "601 lines")]),
    "too long beside the house": (
        {"tests/a.cpp": include("marvcon/std_io_cfg/a.h") + "#ifdef _WIN32\n" + "\n" * MOST_LINES,
         "scripts/a.py": "\n" * MOST_LINES}, [(601, "602 lines")]),
    "long enough": ({"toolkit/core/a.cpp": "\n" * MOST_LINES}, []),
    "an unknown floor": ({"toolkit/attic/a.cpp": ""}, [(1, "no rule knows")]),
    "an unknown domain": ({"toolkit/marvcon/std_scan_cfg/a.cpp": ""}, [(1, "no rule knows")]),
}


def self_test():
    failed = 0
    for name, (texts, expected) in SAMPLES.items():
        found = [(line, reason) for _, line, reason in Checker(texts).violations()]
        as_expected = len(found) == len(expected) and all(
            line == wanted_line and wanted in reason
            for (line, reason), (wanted_line, wanted) in zip(found, expected))
        if not as_expected:
            failed += 1
            print(f"{name}: found {found}, not {expected}")
    return failed


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--self-test", action="store_true", help="try the rules on samples first")
    if parser.parse_args().self_test and self_test():
        return 1

    texts = texts_below(ROOT)
    if PUBLIC_FACE not in texts:
        print(f"{PUBLIC_FACE}: not found, so that nothing was checked")
        return 1
    found = Checker(texts).violations()
    for path, line, reason in found:
        print(f"{path}:{line}: {reason}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
