#!/usr/bin/env python3
"""Runs transcripts and accepts their stories after showing what changed:

    accept_acts.py [--console FILE] [NAME...]     (all without a name)"""

import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


def main():
    names = sys.argv[1:]
    console = ROOT / "build/test/vorlane-console"
    if names[:1] == ["--console"]:
        console, names = Path(names[1]), names[2:]
    scripts = sorted((ROOT / "tests/acts").glob("*.vns"))
    if names:
        scripts = [script for script in scripts if script.stem in names]
    for script in scripts:
        print(f"-- {script.stem}", flush=True)
        subprocess.run([sys.executable, ROOT / "tests/acts/run_act.py", console, script, "--accept"])


if __name__ == "__main__":
    main()
