"""The table of help context numbers in a compiled help file: reading it, and mending what the compiler writes.

#IVB holds the table's length, then pairs of 32-bit numbers: a context and the place of its page's path in #STRINGS."""

import struct
import subprocess
import tempfile
from pathlib import Path


def extract(chm, folder):
    """Unpacks the file with libchm-bin's extract_chmLib."""
    subprocess.run(["extract_chmLib", chm, folder], check=True, capture_output=True)


def read_contexts(folder):
    """Context number to path, of an unpacked file."""
    table, strings = (Path(folder) / "#IVB").read_bytes(), (Path(folder) / "#STRINGS").read_bytes()
    length = struct.unpack_from("<I", table)[0]
    pairs = struct.iter_unpack("<II", table[4:4 + length])
    return {context: strings[place:strings.index(b"\0", place)].decode() for context, place in pairs}


def encoded(number, size):
    """An integer of the directory: seven bits a byte from the top, the high bit on all but the last."""
    groups = [number >> (7 * i) & 0x7F for i in range(size)]
    if number >> (7 * size):
        raise ValueError(f"{number} needs more than {size} bytes")
    return bytes([group | 0x80 for group in groups[:0:-1]] + [groups[0]])


def end_of_number(data, place):
    while data[place] & 0x80:
        place += 1
    return place + 1


def move_outside_compression(chm, name, content):
    """Appends new content of the same length for an inner file, and has its directory entry point to it."""
    data = bytearray(chm.read_bytes())
    (header,) = struct.unpack_from("<Q", data, 0x38)
    (content_start,) = struct.unpack_from("<Q", data, 0x58)
    entry = bytes([len(name)]) + name.encode()
    section = data.index(entry) + len(entry)
    start = end_of_number(data, section)
    data[section:start] = encoded(0, start - section)
    end = end_of_number(data, start)
    data[start:end] = encoded(len(data) - content_start, end - start)
    data += content
    struct.pack_into("<Q", data, header + 8, len(data))
    chm.write_bytes(data)


def mend_contexts(chm, base):
    """The compiler writes the paths of the table with the project's own folder, `base`, in front, where no viewer finds
    them. Takes it away in place: what follows a shortened path is filled with zeros."""
    with tempfile.TemporaryDirectory() as folder:
        extract(chm, folder)
        strings = (Path(folder) / "#STRINGS").read_bytes()
    prefix = f"{base}/".encode()
    parts = [part.removeprefix(prefix).ljust(len(part), b"\0") for part in strings.split(b"\0")]
    move_outside_compression(chm, "/#STRINGS", b"\0".join(parts))
