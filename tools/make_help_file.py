#!/usr/bin/env python3
"""Makes the compiled help file of the pages in resources/help, with chmcmd of Debian's fp-utils and extract_chmLib of
its libchm-bin.

    make_help_file.py FOLDER [--chmcmd PROGRAM]

FOLDER receives the project and Vorlane.chm. The file holds every language. A help context number opens its page in the
first language of languages.txt; the same number plus 1,000,000 opens it in the second, and so on."""

import argparse
import html
import re
import shutil
import subprocess
import sys
from pathlib import Path

import chm_contexts

HELP = Path(__file__).resolve().parent.parent / "resources/help"
LANGUAGE_STEP = 1_000_000
START = 0  # the number of the start page in contexts.txt; it has no context of its own


def table(name):
    for line in (HELP / name).read_text(encoding="utf-8").splitlines():
        if line.strip():
            yield line.split(None, 2)


def contexts():
    """Help context number, page."""
    return [(int(number), page) for number, page, *_ in table("contexts.txt")]


def languages():
    """Folder, name of the language."""
    return [(folder, name) for folder, name in table("languages.txt")]


def mapped_pages():
    """Help context number as the compiled file knows it, path of the page."""
    for i, (folder, _) in enumerate(languages()):
        for number, page in contexts():
            if number != START:
                yield number + i * LANGUAGE_STEP, f"{folder}/{page}.html"


def title(path):
    text = (HELP / path).read_text(encoding="utf-8")
    return html.unescape(re.search(r"<title>(.*?)</title>", text, re.S).group(1))


def project():
    start = f"{languages()[0][0]}/start.html"
    files = ["style.css"] + [f"{folder}/{page}{kind}" for folder, _ in languages() for _, page in contexts()
                             for kind in (".html", ".png") if (HELP / folder / f"{page}{kind}").exists()]
    numbers = list(mapped_pages())
    lines = ["[OPTIONS]", "Compatibility=1.1 or later", "Compiled file=Vorlane.chm", "Contents file=Vorlane.hhc",
             f"Default topic={start}", "Title=Vorlane", "Language=0x040c French", "Full-text search=Yes", "Auto Index=No"]
    lines += ["", "[FILES]", *files, "", "[ALIAS]", *(f"topic_{number}={path}" for number, path in numbers)]
    lines += ["", "[MAP]", *(f"#define topic_{number} {number}" for number, _ in numbers), ""]
    return "\n".join(lines)


def contents():
    def entry(name, path):
        return (f'<li><object type="text/sitemap"><param name="Name" value="{html.escape(name)}">'
                f'<param name="Local" value="{path}"></object>')

    lines = ['<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">', "<html><body>", "<ul>"]
    for folder, name in languages():
        lines += [entry(name, f"{folder}/start.html"), "<ul>"]
        lines += [entry(title(f"{folder}/{page}.html"), f"{folder}/{page}.html") for n, page in contexts() if n != START]
        lines += ["</ul>"]
    return "\n".join(lines + ["</ul>", "</body></html>", ""])


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder", type=Path)
    parser.add_argument("--chmcmd", default="chmcmd")
    options = parser.parse_args()
    folder = options.folder.resolve()
    shutil.copytree(HELP, folder, dirs_exist_ok=True)
    (folder / "Vorlane.hhp").write_text(project(), encoding="cp1252")
    (folder / "Vorlane.hhc").write_text(contents(), encoding="cp1252")
    (folder / "Vorlane.chm").unlink(missing_ok=True)
    done = subprocess.run([options.chmcmd, "Vorlane.hhp"], cwd=folder, capture_output=True, text=True)
    if done.returncode or not (folder / "Vorlane.chm").exists():
        sys.exit(f"{options.chmcmd} failed:\n{done.stdout}{done.stderr}")
    chm_contexts.mend_contexts(folder / "Vorlane.chm", folder)


if __name__ == "__main__":
    main()
