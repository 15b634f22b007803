#!/usr/bin/env python3
"""Checks the window's translations against its sources: each text of the code has a French one with the same
placeholders, and none is left over."""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
STRING = r'((?:"(?:[^"\\]|\\.)*"\s*)+)'
CALL = re.compile(r'\b(?:tr|text|QT_TR_NOOP|QT_TRANSLATE_NOOP)\(\s*(?:"window",\s*)?' + STRING)
# Texts that reach the translation by a table: labels of properties, names of colours.
TABLES = {
    "property_rows.cpp": re.compile(r'(?:add\(|\{)\s*' + STRING + r',\s*(?:PropertyEdit|figure|QString|qt_face::|\[)'),
    "color_choice.cpp": re.compile(r'(?<=[{,])\s*' + STRING + r'(?=[,}])'),
}
PLACEHOLDER = re.compile(r"%\d|%n")


def joined(literals):
    """Adjacent literals as one text."""
    parts = re.findall(r'"((?:[^"\\]|\\.)*)"', literals)
    return "".join(parts).replace('\\"', '"')


def texts_of_code():
    found = {}
    for source in sorted((ROOT / "desk/window").glob("*.cpp")):
        code = source.read_text(encoding="utf-8")
        patterns = [CALL] + ([TABLES[source.name]] if source.name in TABLES else [])
        for pattern in patterns:
            for literals in pattern.findall(code):
                if '"' in literals:
                    found.setdefault(joined(literals), source.name)
    return found


def main():
    faults = []
    french = {}
    for number, line in enumerate((ROOT / "resources/window/French.txt").read_text(encoding="utf-8").splitlines(), 1):
        if line.startswith("#") or not line:
            continue
        english, sign, translated = line.partition(" = ")
        if not sign or not translated:
            faults.append(f"French.txt:{number}: no translation")
        if english in french:
            faults.append(f"French.txt:{number}: {english!r} stands there already")
        french[english] = translated
    wanted = texts_of_code()
    for text, source in wanted.items():
        if text.startswith("$") or not text:
            continue
        if text not in french:
            faults.append(f"{source}: {text!r} has no French text")
        elif sorted(PLACEHOLDER.findall(text)) != sorted(PLACEHOLDER.findall(french[text])):
            faults.append(f"{source}: {text!r} and its French text differ in placeholders")
    faults += [f"French.txt: {text!r} is in no source" for text in french if text not in wanted]
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
