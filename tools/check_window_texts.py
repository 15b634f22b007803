#!/usr/bin/env python3
"""Checks the window's translations against its sources: each text of the code has a French one with the same
placeholders, each that counts has two, and none is left over; nor is one of English.txt."""

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


def translations(name, faults):
    texts = {}
    for number, line in enumerate((ROOT / "resources/window" / name).read_text(encoding="utf-8").splitlines(), 1):
        if line.startswith("#") or not line or line == "zero = one":
            continue
        english, sign, translated = line.partition(" = ")
        if not sign or not translated:
            faults.append(f"{name}:{number}: no translation")
        if english in texts:
            faults.append(f"{name}:{number}: {english!r} stands there already")
        texts[english] = translated.split(" | ")
    return texts


def main():
    faults = []
    wanted = texts_of_code()
    texts = {name: translations(name, faults) for name in ("French.txt", "English.txt")}
    for text, source in wanted.items():
        if text and not text.startswith("$") and text not in texts["French.txt"]:
            faults.append(f"{source}: {text!r} has no French text")
    for name, known in texts.items():
        for text, forms in known.items():
            if text not in wanted:
                faults.append(f"{name}: {text!r} is in no source")
            elif any(sorted(PLACEHOLDER.findall(text)) != sorted(PLACEHOLDER.findall(form)) for form in forms):
                faults.append(f"{name}: {text!r} and its translation differ in placeholders")
            elif "%n" in text and len(forms) != 2 and " in %n found" not in text:
                faults.append(f"{name}: {text!r} counts and has not two translations")
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
