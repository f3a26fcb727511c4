#!/usr/bin/env python3
"""Checks every #include of the library's sources against its floors.

A folder may include only folders of its own floor or below. Windows-only code of a
portable folder sits in a win/ subfolder; portable code includes no Windows headers.
The programs (tools/, tests/, bench/) may include any floor, but no library source
includes a program. Prints every offending include and exits 1; prints a summary
line and exits 0 when there is none.
"""
import os
import re
import sys

# Folder -> floor, lowest first. The root CMakeLists.txt adds them in this order.
FLOORS = {
    "foundation": 1,
    "framework": 2,
    "text": 3,
    "displaylist": 4,
    "styling": 5,
    "drawing": 6,
    "images": 7,
    "slides": 7,
    "host": 8,
    "views": 9,
    "dialogs": 9,
    "controls": 9,
    "appdialogs": 9,
    "resources": 9,
    "dll": 10,
}
PROGRAMS = {"tools", "tests", "bench"}
# Folders that build for both platforms; their win/ subfolders are Windows only.
PORTABLE = {"foundation", "text", "displaylist", "styling", "drawing", "images", "slides",
            "host"}
WINDOWS_HEADERS = re.compile(r"#\s*include\s*<(windows|ole2|olectl|commctrl|shlobj|shellapi)\.h>",
                             re.I)
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.M)


def floor_of(path):
    top = path.split("/", 1)[0]
    if top in PROGRAMS:
        return 100
    return FLOORS.get(top)


def is_windows_only(path):
    return "/win/" in path or path.endswith("_win.cpp") or path.endswith("_win.h")


def check(root):
    problems = []
    count = 0
    for folder in FLOORS:
        for base, _, files in os.walk(os.path.join(root, folder)):
            for name in sorted(files):
                if not name.endswith((".h", ".cpp")):
                    continue
                full = os.path.join(base, name)
                rel = os.path.relpath(full, root).replace(os.sep, "/")
                with open(full, encoding="utf-8", errors="replace") as f:
                    text = f.read()
                mine = floor_of(rel)
                for included in INCLUDE.findall(text):
                    count += 1
                    if "/" not in included:
                        continue  # beside the file
                    theirs = floor_of(included)
                    if theirs is None:
                        problems.append(f"{rel}: includes {included}, which is on no floor")
                    elif theirs > mine:
                        problems.append(f"{rel} (floor {mine}): includes {included} "
                                        f"(floor {theirs})")
                top = rel.split("/", 1)[0]
                if top in PORTABLE and not is_windows_only(rel) and WINDOWS_HEADERS.search(text):
                    problems.append(f"{rel}: portable code includes a Windows header")
    return problems, count


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "..", "..")
    problems, count = check(os.path.abspath(root))
    for p in problems:
        print(p)
    if problems:
        print(f"{len(problems)} problems with the floors")
        return 1
    print(f"floors ok: {count} includes checked")
    return 0


if __name__ == "__main__":
    sys.exit(main())
