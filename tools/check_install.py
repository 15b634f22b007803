#!/usr/bin/env python3
"""Checks that an installed program uses the resources that were installed with it, and not those of the tree.

    check_install.py BUILD_FOLDER"""

import os
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
MARK = "Moved with the program"


def main():
    with tempfile.TemporaryDirectory(prefix="vorlane-install-") as name:
        folder = Path(name)
        subprocess.run(["cmake", "--install", sys.argv[1], "--prefix", folder / "first"], check=True, stdout=subprocess.DEVNULL)
        # Nothing may hold on to the place that it was installed at.
        installed = (folder / "first").rename(folder / "second")
        english = installed / "share/vorlane/languages/English.LNG"
        lines = english.read_bytes().split(b"\r\n")
        english.write_bytes(b"\r\n".join(b"001_6=" + MARK.encode() if line.startswith(b"001_6=") else line for line in lines))
        (folder / "act.vns").write_text("VNABOUT\nOKButton\n")
        done = subprocess.run([installed / "bin/vorlane-console", ROOT / "samples/apartment.dxf", "--script", folder / "act.vns"],
                              env={"PATH": os.environ["PATH"], "XDG_DATA_HOME": str(folder / "data"), "LANG": "en_US.UTF-8"},
                              capture_output=True, text=True)
        if done.returncode or MARK not in done.stdout:
            print(done.stdout + done.stderr + "\nThe installed program doesn't use the resources beside it.")
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
