#!/usr/bin/env python3
"""Checks the help: a page in every language for every dialog, its captions on it, no link into the void.

    check_help.py              the pages
    check_help.py --compiled   makes the compiled help file too and checks what is in it (exit code 77 where chmcmd or
                               extract_chmLib isn't installed)"""

import html
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import chm_contexts
import make_help_file as maker

ROOT = Path(__file__).resolve().parent.parent
SKIPPED = 77
FORM = re.compile(r'(?:Form|Dialog)\((?:session, )?"(fm\w+)",\s*"(\d*)",\s*"[^"]*"(?:,\s*(\d+))?\)')
LANGUAGE_FILES = {"fr": "Francais.LNG", "en": "English.LNG"}
BESIDE = re.compile(r"<!--.*?-->|<code>.*?</code>|<[^>]*>", re.S)  # what isn't prose
# Entries that no drafter reads: replaced as the dialog opens, or of a control that is never shown.
UNSEEN = {"001_0", "001_1", "001_2", "001_3", "002_1", "002_3", "002_9", "004_0", "006_1", "009_7", "011_11", "012_35"}


def dialogs():
    """Name, tag and help context of every dialog in the sources."""
    for path in sorted((ROOT / "src").glob("*/fm_*.cpp")):
        for name, tag, context in FORM.findall(path.read_text(encoding="utf-8")):
            yield name, tag, int(context or 0)


def captions(folder, tag):
    text = (ROOT / "resources/languages" / LANGUAGE_FILES[folder]).read_bytes().decode("cp1252")
    for key, value in re.findall(rf"^({tag}_\d+)=(.*?)\s*$", text, re.M):
        if key not in UNSEEN:
            yield value


def plain(path):
    text = re.sub(r"<[^>]+>", "", path.read_text(encoding="utf-8"))
    return re.sub(r"\s+", " ", html.unescape(text))


def check_dialogs():
    table = {row[2]: (int(row[0]), row[1]) for row in maker.table("contexts.txt") if len(row) == 3}
    for name, tag, context in dialogs():
        if context == 0:
            continue
        if name not in table or table[name][0] != context:
            yield f"contexts.txt: no page for {name}, {context}"
            continue
        for folder, _ in maker.languages():
            page = maker.HELP / folder / f"{table[name][1]}.html"
            text = plain(page) if page.exists() else ""
            yield from (f"{folder}/{page.name} doesn't explain \"{caption}\"" for caption in captions(folder, tag)
                        if caption not in text)
    yield from (f"contexts.txt: there is no dialog {name}" for name in table.keys() - {d[0] for d in dialogs()})


def check_pages():
    wanted = {f"{folder}/{page}.html" for folder, _ in maker.languages() for _, page in maker.contexts()}
    there = {str(path.relative_to(maker.HELP)) for path in maker.HELP.rglob("*.html")}
    yield from (f"{path} is missing" for path in sorted(wanted - there))
    yield from (f"{path} belongs to no help context" for path in sorted(there - wanted))
    for path in sorted(there):
        page = maker.HELP / path
        text = page.read_text(encoding="utf-8")
        if f'<html lang="{page.parent.name}">' not in text or '<meta charset="utf-8">' not in text:
            yield f"{path}: wrong language or no charset"
        if page.parent.name == "fr" and (sign := re.search("[^\n]{0,20}([ \n][;:!?»]|«[ \n])", BESIDE.sub("", text))):
            yield f"{path}: a line may break at \"{sign[0]}\": a no-break space belongs there"
        for link in re.findall(r'(?:href|src)="([^"#]+)', text):
            if not (page.parent / link).is_file():
                yield f"{path}: dead link {link}"


def check_compiled():
    with tempfile.TemporaryDirectory() as name:
        made, unpacked = Path(name) / "made", Path(name) / "unpacked"
        subprocess.run([sys.executable, ROOT / "tools/make_help_file.py", made], check=True)
        chm_contexts.extract(made / "Vorlane.chm", unpacked)
        files = [path for pattern in ("*.html", "*.css", "*.png") for path in maker.HELP.rglob(pattern)]
        for path in files:
            inside = unpacked / path.relative_to(maker.HELP)
            if not inside.is_file() or inside.read_bytes() != path.read_bytes():
                yield f"Vorlane.chm: {path.relative_to(maker.HELP)} doesn't come out as it went in"
        if (mapped := chm_contexts.read_contexts(unpacked)) != dict(maker.mapped_pages()):
            yield f"Vorlane.chm maps {mapped}"
        if str(made).encode() in b"".join(path.read_bytes() for path in unpacked.rglob("*") if path.is_file()):
            yield "Vorlane.chm names the folder that it was made in"


def main():
    faults = [*check_pages(), *check_dialogs()]
    if "--compiled" in sys.argv:
        if not (shutil.which("chmcmd") and shutil.which("extract_chmLib")):
            print("skipped: chmcmd (fp-utils) or extract_chmLib (libchm-bin) isn't installed")
            return SKIPPED
        faults += check_compiled()
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
