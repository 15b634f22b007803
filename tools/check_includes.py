#!/usr/bin/env python3
"""Holds every source to the one list of rooms, cmake/RoomList.cmake: a room includes itself and what its
line links (and what those link). src/ sees the standard library besides, nothing else. Tests and benchmarks see the
rooms that they are linked with, and the helpers of those rooms' tests."""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
ROOM_LINE = re.compile(r"vorlane_room\(\s*(\w+)\s+([\w/]+)(?:\s+LINKS\s+([\w\s]+?))?(?:\s+SYSTEM\s+[^)]*)?\)")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)
# Headers of the C++ standard library have no dot; these few of C's are in it by their old names or are
# POSIX, which the desk may use.
POSIX = {"fcntl.h", "unistd.h", "sys/stat.h", "sys/types.h", "sys/uio.h", "sys/wait.h", "sys/xattr.h", "dirent.h", "errno.h",
         "spawn.h", "iconv.h", "poll.h", "signal.h", "limits.h", "stdlib.h", "pwd.h", "sys/mman.h", "sys/resource.h", "termios.h"}
# Libraries that one room alone may use.
LIBRARIES = {"desk/console": {"histedit.h"},
             "desk/dxf": {"emmintrin.h"}}  # what every 64-bit Intel or AMD processor has, behind its own switch


# A room's inside that few others may see.
INNER = {"desk/drawing/inside.h": {"drawing", "import"}, "desk/drawing/store.h": {"drawing", "import"}}


def rooms():
    text = (ROOT / "cmake/RoomList.cmake").read_text()
    found = {}
    for name, folder, links in ROOM_LINE.findall(text):
        found[name] = (folder, links.split())
    return found


def reachable(table, name):
    seen, queue = set(), [name]
    while queue:
        room = queue.pop()
        if room not in seen:
            seen.add(room)
            queue += table[room][1]
    return seen


def header_prefix(folder):
    """How an include of a room's header begins: "basic/" for src/basic, "desk/dxf/" for desk/dxf."""
    return folder.removeprefix("src/") + "/"


def faults():
    table = rooms()
    prefixes = {header_prefix(folder): name for name, (folder, _) in table.items()}
    for name, (folder, links) in table.items():
        for link in links:
            if name in reachable(table, link):
                yield f"cmake/RoomList.cmake: {name} and {link} include each other"
        allowed = reachable(table, name)
        for source in sorted((ROOT / folder).glob("*")):
            if source.suffix not in (".h", ".cpp"):
                continue
            text = source.read_text(encoding="utf-8")
            for mark, header in INCLUDE.findall(text):
                line = text[: text.find(header)].count("\n") + 1
                where = f"{source.relative_to(ROOT)}:{line}"
                if mark == '"':
                    room = next((r for p, r in prefixes.items() if header.startswith(p)), None)
                    if room is None:
                        yield f'{where}: "{header}" is in no room (includes are written from the root of the rooms)'
                    elif room not in allowed:
                        yield f"{where}: {name} may not include {room} ({header})"
                    elif name not in INNER.get(header, {name}):
                        yield f"{where}: {header} is the inside of {room}"
                elif "." in header or "/" in header:
                    qt_or_windows = folder.startswith(("faces/qt", "faces/win32", "desk/window", "windows"))
                    qt_or_windows = qt_or_windows or source.stem.endswith("_windows")
                    allowed_here = POSIX | LIBRARIES.get(folder, set()) if folder.startswith("desk/") else set()
                    if not qt_or_windows and header not in allowed_here:
                        yield f"{where}: <{header}> is not of the standard library"
    known = {folder for folder, _ in table.values()}
    for top in ("src", "desk", "faces", "windows"):
        for folder in sorted((ROOT / top).iterdir()):
            if folder.is_dir() and any(folder.iterdir()) and str(folder.relative_to(ROOT)) not in known:
                yield f"{folder.relative_to(ROOT)}: no room of that folder in cmake/RoomList.cmake"


def linked(table, folder, function):
    """The rooms that each test folder or benchmark of a CMakeLists.txt links, with those that they link."""
    text = (ROOT / folder / "CMakeLists.txt").read_text()
    for name, links in re.findall(rf"^{function}\((\w+) ([\w ]+)\)", text, re.M):
        yield name, set().union(*(reachable(table, link) for link in links.split()))


def outside_faults():
    """Faults of tests/ and bench/."""
    table = rooms()
    prefixes = {header_prefix(folder): name for name, (folder, _) in table.items()}
    tests = dict(linked(table, "tests", "vorlane_tests"))

    def check(source, who, allowed, seen):
        if source in seen:
            return
        seen.add(source)
        for mark, header in INCLUDE.findall(source.read_text(encoding="utf-8")):
            if mark == "<":
                continue
            beside, helper = source.parent / header, ROOT / header
            room = next((r for p, r in prefixes.items() if header.startswith(p)), None)
            where = f"{source.relative_to(ROOT)} ({header})"
            if header.startswith(("tests/", "bench/")) and helper.exists():
                rooms_of_helper = tests.get(helper.parent.name, set())
                if not rooms_of_helper <= allowed:
                    yield f"{where}: helpers of tests/{helper.parent.name} need rooms that {who} isn't linked with"
                yield from check(helper, who, allowed, seen)
            elif room is not None:
                if room not in allowed:
                    yield f"{where}: {who} isn't linked with {room}"
                elif header in INNER and who != f"tests/{room}":
                    yield f"{where}: the inside of {room}"
            elif beside.exists():
                yield from check(beside, who, allowed, seen)
            else:
                yield f"{where}: neither in a room nor in tests/ or bench/"

    for folder, allowed in tests.items():
        for source in sorted((ROOT / "tests" / folder).glob("*.cpp")):
            yield from check(source, f"tests/{folder}", allowed, set())
    for name, allowed in linked(table, "bench", "vorlane_bench"):
        yield from check(ROOT / f"bench/{name}_bench.cpp", f"bench/{name}", allowed, set())


def main():
    found = list(faults()) + list(outside_faults())
    for fault in found:
        print(fault)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
