#!/usr/bin/env python3
"""Judges a saved drawing against the one that it was made from:

    check_drawing.py ORIGINAL RESULT [--imports]

- ezdxf reads the result, and its audit finds nothing that the original didn't have;
- byte for byte, the result differs from the original only in block references (with their attributes and what
  they own) that are gone, in new references and lines, and in the handle seed; with --imports also in new
  blocks, styles and layers.

Prints what it found; exits with 1 if anything is wrong. ASCII drawings only."""

import re
import sys

import ezdxf
from ezdxf import recover

REFERENCE_PARTS = {"INSERT", "ATTRIB", "SEQEND"}
NEW = REFERENCE_PARTS | {"LINE"}


def objects(path):
    """The file as a list of (type, handle, text): one item for each group 0 and what follows it."""
    with open(path, "rb") as file:
        lines = [line + "\n" for line in file.read().decode("latin-1").split("\n")]
    found, begin = [], 0
    codes = range(0, len(lines) - 1, 2)
    starts = [i for i in codes if lines[i].strip() == "0"] + [len(lines)]
    for begin, end in zip(starts, starts[1:]):
        handle = None
        kind = lines[begin + 1].strip()
        wanted = "105" if kind == "DIMSTYLE" else "5"
        for i in range(begin + 2, end - 1, 2):
            if lines[i].strip() == wanted:
                handle = lines[i + 1].strip()
                break
        if kind == "SECTION" or kind == "ENDSEC":
            handle = None
        found.append((kind, handle, "".join(lines[begin:end])))
    return found


def without_seed(text):
    return re.sub(r"(\$HANDSEED\s+5\s+)[0-9A-Fa-f]+", r"\1*", text)


def owned_by_gone(text, gone):
    """Whether an object names an owner (group 330) that is gone itself."""
    return any(handle in gone for handle in re.findall(r"^\s*330\r?\n\s*([0-9A-Fa-f]+)", text, re.M))


def differences(original, result, imports):
    """Texts that tell what differs beyond what a replacement may change; counts of removed and added objects."""
    before, after = objects(original), objects(result)
    old_handles = {handle for _, handle, _ in before if handle}
    kept = {handle for _, handle, _ in after if handle}
    gone = old_handles - kept
    faults, removed, added = [], {}, {}
    i = j = 0
    while i < len(before) or j < len(after):
        old = before[i] if i < len(before) else (None, None, "")
        new = after[j] if j < len(after) else (None, None, "")
        if old[0] is not None and without_seed(old[2]) == without_seed(new[2]):
            i, j = i + 1, j + 1
        elif new[0] is not None and (new[1] not in old_handles if new[1] else new[0] in NEW and old[2] != new[2]
                                     and old[0] not in REFERENCE_PARTS):
            if new[0] not in NEW and not imports:
                faults.append(f"new {new[0]} #{new[1]}")
            added[new[0]] = added.get(new[0], 0) + 1
            j += 1
        elif (old[0] in REFERENCE_PARTS or owned_by_gone(old[2], gone)) and (old[1] not in kept or not old[1]):
            removed[old[0]] = removed.get(old[0], 0) + 1
            i += 1
        elif imports and old[0] == new[0] and old[1] == new[1]:
            i, j = i + 1, j + 1
        else:
            faults.append(f"{old[0]} #{old[1]} became {new[0]} #{new[1]}")
            i, j = i + 1, j + 1
        if len(faults) > 20:
            break
    return faults, removed, added


def findings(path):
    document, auditor = recover.readfile(path)
    auditor = document.audit()
    return {(e.code, e.message) for e in auditor.errors + auditor.fixes}, document


def main():
    original, result = sys.argv[1:3]
    faults, removed, added = differences(original, result, "--imports" in sys.argv)
    ezdxf.readfile(result)
    old, _ = findings(original)
    new, _ = findings(result)
    faults += [f"audit: {message}" for _, message in sorted(new - old, key=str)]
    counts = lambda table: ", ".join(f"{n} {kind}" for kind, n in sorted(table.items())) or "none"
    print(f"removed: {counts(removed)}")
    print(f"added: {counts(added)}")
    for fault in faults:
        print(f"WRONG: {fault}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
