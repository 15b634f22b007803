#!/usr/bin/env python3
"""Makes the pictures of the dialogs on the help's pages, without a display, from the samples:

    make_help_pictures.py [PLAY_ACTS]     (build/test/play-acts, which paints its dialogs)

ImageMagick makes them small: each user's install folder gets them."""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import make_help_file as maker

ROOT = maker.HELP.parent.parent
LOCALES = {"fr": "fr_FR.UTF-8", "en": "en_US.UTF-8"}
# Every dialog at work; what it shows before its last act is its picture.
SCRIPT = """VNABOUT
OKButton
VNREPLACE
lstDestination : porte_80
CboBlocReplacer : porte_90
ChkAttSet
BtnAttSet
ListView1 : repere
Combo2 : code
OKButton
BtnClose
VNLABEL
BtnImport
file projects/site_survey/releve_piece.dxf
Combo1 : Incrément Auto
ListView1 # 3
Combo1 : Périmètre Auto Monoclic
ListView1 # 2
Combo1 : Aire Auto Polyclic
BtnAttFormat
Text2 =  m²
Combo1 # 2
OKButton
BtnParametre
Option1
OKButton
OKButton
VNEXTRACT
BtnNew
first ETIQUETTE_PIECE
OKButton
all

ListView2 # 2
BtnSave
file rooms.txt
BtnClose
OPEN projects/site_survey/template.dxf
VNINSERT
Combo1 : survey_point
BtnData
file projects/site_survey/survey_points.txt
ListView1 = DeltaX
ComboBox1 = 1.5
ListView1 = DeltaY
ComboBox1 = 2
Check1
ListView1 = X_
BtnClose
"""


def main():
    play_acts = Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build/test/play-acts").resolve()
    pages = {row[2]: row[1] for row in maker.table("contexts.txt") if len(row) == 3}
    for language, _ in maker.languages():
        with tempfile.TemporaryDirectory(prefix="vorlane-pictures-") as name:
            folder = Path(name)
            (folder / "projects").mkdir()
            (folder / "projects/site_survey").symlink_to(ROOT / "samples")
            (folder / "pictures").mkdir()
            script = SCRIPT if language == "en" else SCRIPT.replace("1.5", "1,5")
            (folder / "dialogs.vns").write_text(script, encoding="utf-8")
            environment = {"PATH": os.environ["PATH"], "LANG": LOCALES[language], "QT_QPA_PLATFORM": "offscreen",
                           "XDG_DATA_HOME": name, "VORLANE_PICTURES": f"{name}/pictures"}
            subprocess.run([play_acts, "projects/site_survey/apartment.dxf", "--script", "dialogs.vns"], cwd=folder, env=environment,
                           check=True, stdout=subprocess.DEVNULL)
            for picture in (folder / "pictures").iterdir():
                made = maker.HELP / language / f"{pages[picture.stem]}.png"
                subprocess.run(["convert", picture, "-strip", "+dither", "-colors", "48", f"PNG8:{made}"], check=True)
                if shutil.which("optipng"):
                    subprocess.run(["optipng", "-quiet", "-o2", made], check=True)


if __name__ == "__main__":
    main()
