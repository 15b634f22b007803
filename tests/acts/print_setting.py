#!/usr/bin/env python3
"""Prints what the settings file of the install folder holds for a key."""

import sys
from pathlib import Path

for line in Path("data/vorlane/Vorlane.ini").read_bytes().decode("cp1252").splitlines():
    if line.startswith(sys.argv[1] + "="):
        print(line)
