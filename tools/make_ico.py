#!/usr/bin/env python3
"""Packs PNG pictures into an icon file of Windows: make_ico.py ICON.ico PICTURE.png..."""

import struct
import sys
from pathlib import Path


def main():
    pictures = [Path(name).read_bytes() for name in sys.argv[2:]]
    head, offset = struct.pack("<HHH", 0, 1, len(pictures)), 6 + 16 * len(pictures)
    for data in pictures:
        width, height = struct.unpack(">II", data[16:24])  # of the PNG's first chunk
        head += struct.pack("<BBBBHHII", width % 256, height % 256, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    Path(sys.argv[1]).write_bytes(head + b"".join(pictures))


if __name__ == "__main__":
    main()
