#!/usr/bin/env python3
"""Compares what tools/autocad_check.lsp printed in AutoCAD with what it printed on the desk:

    compare_checks.py AUTOCAD_LOG DESK_LOG

Lines that don't begin with VNCHECK are passed over. The exit code is 1 where a line differs or is missing."""

import sys
from pathlib import Path

PREFIX = "VNCHECK "


def told(path):
    text = Path(path).read_bytes().decode("utf-8", "replace")
    lines = [line.strip() for line in text.splitlines()]
    return [line.removeprefix(PREFIX).partition(" = ")[::2] for line in lines if line.startswith(PREFIX)]


def number_of(word):
    try:
        return float(word)
    except ValueError:
        return None


def alike(left, right):
    """The same words, numbers to five decimals."""
    left, right = left.split(), right.split()
    if len(left) != len(right):
        return False
    for one, other in zip(left, right):
        numbers = number_of(one), number_of(other)
        if None in numbers and one != other:
            return False
        if None not in numbers and abs(numbers[0] - numbers[1]) > 1e-5:
            return False
    return True


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    here, there = told(sys.argv[1]), told(sys.argv[2])
    different = 0
    for number, (name, value) in enumerate(here):
        if number >= len(there) or there[number][0] != name:
            print(f"{name}: the desk's log goes on elsewhere")
            different += 1
            break
        if not alike(value, there[number][1]):
            print(f"{name}: AutoCAD {value}, the desk {there[number][1]}")
            different += 1
    if not here or here[-1][0] != "end":
        print("AutoCAD's log doesn't come to the end")
        different += 1
    print(f"{len(here)} lines, {different} different")
    return 1 if different else 0


if __name__ == "__main__":
    sys.exit(main())
