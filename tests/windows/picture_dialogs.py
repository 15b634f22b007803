#!/usr/bin/env python3
"""Makes pictures of the native dialogs under Wine, for a look at them: picture_dialogs.py BUILD OUT [DPI...]

A picture for each dialog, language and resolution (96, 144 and 192 without one). Needs ImageMagick's `import`."""

import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import wine

ROOT = Path(__file__).resolve().parent.parent.parent
SCRIPTS = {
    "fmReplace": "VNREPLACE\nlstDestination = PORTE_80\nCboBlocReplacer : PORTE_90\nchkXScale\n",
    "fmAttSet": "VNREPLACE\nlstDestination = PORTE_80\nCboBlocReplacer : PORTE_90\nChkAttSet\nBtnAttSet\n",
    "fmLabels": "VNLABEL\nCombo2 = ETIQUETTE_PIECE\n",
    "fmAttFormat": "VNLABEL\nCombo2 = ETIQUETTE_PIECE\nListView1 # 1\nCombo1 = Compteur Auto\nBtnAttFormat\n",
    "fmParamIns": "VNLABEL\nCombo2 = ETIQUETTE_PIECE\nBtnParametre\n",
    "fmExtract": "VNEXTRACT\nBtnNew\n@242\nOKButton\nall\n\n",
    "fmVnMessage": "VNEXTRACT\nBtnNew\n@242\n",
    "fmReInsert": "VNINSERT\nCombo1 = PORTE_90\n",
    "fmAbout": "VNABOUT\n",
}
LANGUAGES = {"fr": "Fran\xe7ais", "en": "English"}


def picture(prefix, name, script, language, out):
    with tempfile.TemporaryDirectory() as folder:
        folder = Path(folder)
        install = folder / "install"
        install.mkdir()
        for file in (ROOT / "resources/languages").iterdir():
            shutil.copy(file, install)
        (install / "Vorlane.ini").write_bytes(f"Lng={LANGUAGES[language]}\r\n".encode("cp1252"))
        shutil.copy(ROOT / "samples/apartment.dxf", folder)
        (folder / "script.vns").write_text(script, encoding="utf-8")
        program = subprocess.Popen(
            ["wine", prefix.build / "stand-in.exe", "apartment.dxf", "--script", "script.vns", "--lisp",
             wine.windows_path(ROOT / "resources/vorlane.lsp"), "--install", "install", "--hold"],
            cwd=folder, env=prefix.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        wanted, told = f"[{name}]", b""
        while wanted.encode() not in told:
            line = program.stdout.readline()
            if not line:
                sys.stdout.write(told.decode("utf-8", "replace"))
                break
            told += line
        time.sleep(2)  # until what is told of is painted, too
        subprocess.run(["import", "-window", "root", out / f"{name}-{language}-{prefix.dpi}.png"],
                       env=prefix.environment, check=True)
        program.kill()
        program.wait()


def main():
    build, out = Path(sys.argv[1]), Path(sys.argv[2])
    out.mkdir(parents=True, exist_ok=True)
    for dpi in [int(word) for word in sys.argv[3:]] or [96, 144, 192]:
        with wine.Prefix(build / "prefix", build, dpi) as prefix:
            for name, script in SCRIPTS.items():
                for language in LANGUAGES:
                    picture(prefix, name, script, language, out)
                    print(name, language, dpi, flush=True)


if __name__ == "__main__":
    main()
