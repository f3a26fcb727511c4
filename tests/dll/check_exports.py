#!/usr/bin/env python3
"""Checks the export table of the DLL against the list of what a host links against.

Usage: check_exports.py OBJDUMP CXXFILT DLL EXPECTED [--without ENTRY]

EXPECTED holds one entry a line ('#' starts a comment): "class NAME" admits every
member, the vtable and the type information of that class ("class NAME<*>" every
instance of a template); any other line is one function or object by its demangled
name. Every entry must be exported, and every exported name must belong to an entry.
Prints what is missing and what is exported without an entry, and exits 1 when there
is either. --without leaves one entry out of the list (the check's own test).
"""
import re
import subprocess
import sys

PREFIXES = ("vtable for ", "typeinfo for ", "typeinfo name for ", "VTT for ",
            "non-virtual thunk to ", "virtual thunk to ", "covariant return thunk to ",
            "guard variable for ")


def exported_names(objdump, cxxfilt, dll):
    dump = subprocess.run([objdump, "-p", dll], capture_output=True, text=True, check=True).stdout
    part = dump.split("[Ordinal/Name Pointer] Table", 1)
    rows = re.findall(r"^\s*\[\s*\d+\]\s+(\S+)\s*$", part[1] if len(part) > 1 else "", re.M)
    if not rows:
        return []
    out = subprocess.run([cxxfilt], input="\n".join(rows) + "\n", capture_output=True,
                         text=True, check=True).stdout
    return [line.strip() for line in out.splitlines() if line.strip()]


def scope_of(name):
    """The qualified scope before the last name of a demangled symbol, or ''."""
    for p in PREFIXES:
        if name.startswith(p):
            return name[len(p):]  # the whole name is the class
    head, depth = "", 0
    for ch in name:
        if ch == "(" and depth == 0:
            break
        if ch in "<(":
            depth += 1
        elif ch in ">)":
            depth -= 1
        head += ch
    # the last "::" at depth 0
    depth, cut = 0, -1
    for i, ch in enumerate(head):
        if ch == "<":
            depth += 1
        elif ch == ">":
            depth -= 1
        elif depth == 0 and head.startswith("::", i):
            cut = i
    return head[:cut] if cut >= 0 else ""


def class_entry(scope, classes, templates):
    if scope in classes:
        return scope
    for t in templates:
        if scope.startswith(t + "<"):
            return t + "<*>"
    return None


def main():
    objdump, cxxfilt, dll, expected_file = sys.argv[1:5]
    without = sys.argv[6] if len(sys.argv) > 6 and sys.argv[5] == "--without" else None
    classes, names, templates = set(), set(), set()
    with open(expected_file, encoding="utf-8") as f:
        for line in f:
            line = line.strip()
            if not line or line.startswith("#"):
                continue
            if line == without:
                continue
            if line.startswith("class ") and line.endswith("<*>"):
                templates.add(line[len("class "):-3].strip())
            elif line.startswith("class "):
                classes.add(line[len("class "):].strip())
            else:
                names.add(line)
    have = exported_names(objdump, cxxfilt, dll)
    if not have:
        print(f"no exported names found in {dll}")
        return 1
    seen_classes, seen_names, stray = set(), set(), []
    for name in have:
        if name in names:
            seen_names.add(name)
            continue
        scope = scope_of(name)
        owner = None
        while scope:
            owner = class_entry(scope, classes, templates)
            if owner:
                break
            # a nested class belongs to its enclosing class
            scope = scope_of(scope)
        if owner:
            seen_classes.add(owner)
        else:
            stray.append(name)
    expected_classes = classes | {t + "<*>" for t in templates}
    missing = sorted(names - seen_names) + sorted("class " + c
                                                  for c in expected_classes - seen_classes)
    for m in missing:
        print(f"not exported: {m}")
    for s in sorted(stray):
        print(f"exported without an entry: {s}")
    print(f"{len(have)} names exported; {len(expected_classes)} classes and {len(names)} functions"
          f" expected;"
          f" {len(missing)} missing, {len(stray)} unexpected")
    return 1 if missing or stray else 0


if __name__ == "__main__":
    sys.exit(main())
