#!/usr/bin/env python3
"""Lists the folder's files, and tells whether the drawing is the original still."""

from pathlib import Path

for path in sorted(Path(".").iterdir()):
    print(path.name)
for original in Path(".").glob("original-*"):
    same = original.read_bytes() == Path(original.name.removeprefix("original-")).read_bytes()
    print("the drawing is", "as it was" if same else "CHANGED")
