#!/usr/bin/env python3
"""Checks language files against the delivered ones: which entries are missing, left over, empty or not translated.

    check_languages.py [FILE.LNG ...]

Without arguments the delivered files check each other. With files it checks those, as a translator wants it."""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DELIVERED = ROOT / "resources/languages"
KEY = re.compile(r":language$|msg_\d+$|\d{3}_(me|\d+)$", re.I)
# The French says in two messages what another language may say in one.
MAY_LACK = {"msg_130"}
# Signs that stand for a text to come, and words that are the same in both languages.
SAME = {"_", "#", "...", "0", "OK", "Tag", "Message", "Rotation", "Copyright", "CheckBox1", "Quillet 1.0",
        "Longueur Auto Monoclic"}


def read(path):
    """The entries of a file by key in small letters, and what is wrong with its lines."""
    entries, faults = {}, []
    data = path.read_bytes()
    if re.search(rb"(?<!\r)\n|\r(?!\n)", data) or not data.endswith(b"\r\n"):
        faults.append("lines must end in carriage return and line feed, the last one too")
    for number, line in enumerate(data.decode("cp1252", "replace").splitlines(), 1):
        key, equals, value = line.partition("=")
        if not equals or not KEY.match(key):
            faults.append(f"line {number} is no entry: {line}")
            continue
        if key.lower() in entries:
            faults.append(f"line {number}: {key} stands twice")
        entries.setdefault(key.lower(), value)
        if "\u00c3" in value or "\ufffd" in value:
            faults.append(f"line {number} isn't in the single-byte code page (Windows-1252): {line}")
    return entries, faults


def compare(entries, model, others):
    """Against the French file, which has every key; a text is untranslated where it is one of the delivered files'."""
    missing = sorted(model.keys() - entries.keys() - MAY_LACK)
    yield from (f"{key} is missing: {model[key]}" for key in missing)
    yield from (f"{key} serves nothing" for key in sorted(entries.keys() - model.keys() - MAY_LACK))
    for key, value in entries.items():
        if key in model and not value.strip():
            yield f"{key} is empty: {model[key]}"
        elif value not in SAME and any(value == other.get(key) for other in (model, *others)):
            yield f"{key} isn't translated: {value}"


def main():
    french = DELIVERED / "Francais.LNG"
    files = [Path(name) for name in sys.argv[1:]] or [french, *sorted(set(DELIVERED.glob("*.LNG")) - {french})]
    model, wrong = read(french)[0], False
    for path in files:
        entries, faults = read(path)
        if not path.samefile(french):
            others = [read(other)[0] for other in DELIVERED.glob("*.LNG") if not path.samefile(other)]
            faults += compare(entries, model, others)
        for fault in faults:
            print(f"{path.name}: {fault}")
        wrong = wrong or bool(faults)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
