"""What is wrong with an icon (icns): a list of pictures, each with a four-letter kind and its length."""

import struct
import zlib

PNG = b"\x89PNG\r\n\x1a\n"

# The kinds that take a PNG, with its size; "2x" is twice the points, for fine screens.
PICTURES = {
    b"ic11": 32,  # 16 points, 2x
    b"ic12": 64,  # 32 points, 2x
    b"ic07": 128,
    b"ic13": 256,  # 128 points, 2x
    b"ic08": 256,
    b"ic14": 512,  # 256 points, 2x
    b"ic09": 512,
    b"ic10": 1024,  # 512 points, 2x
}
# The kinds that take packed channels, with the size; each goes with a mask of one byte a pixel.
CHANNELS = {b"is32": 16, b"il32": 32}
MASKS = {b"s8mk": 16, b"l8mk": 32}


def is_sound(png):
    """Whether every part of a PNG has its checksum, and the last one is where it ends."""
    position = len(PNG)
    while position + 12 <= len(png):
        length, kind = struct.unpack_from(">I4s", png, position)
        end = position + 8 + length
        if end + 4 > len(png) or struct.unpack_from(">I", png, end)[0] != zlib.crc32(png[position + 4 : end]):
            return False
        if kind == b"IEND":
            return end + 4 == len(png)
        position = end + 4
    return False


def unpacked_size(data):
    """How many bytes the runs stand for, or -1 where they end too early."""
    size = position = 0
    while position < len(data):
        control = data[position]
        used = 2 if control >= 128 else control + 2
        size += control - 125 if control >= 128 else control + 1
        position += used
    return size if position == len(data) else -1


def findings_in(data):
    magic, length = struct.unpack_from(">4sI", data)
    if magic != b"icns" or length != len(data):
        return ["not an icon of the length that it says"]
    elements, position = {}, 8
    while position + 8 <= length:
        kind, size = struct.unpack_from(">4sI", data, position)
        if size < 8 or position + size > length:
            return [f"{kind!r} goes beyond the end"]
        elements[kind] = data[position + 8 : position + size]
        position += size
    findings = []
    wanted = PICTURES.keys() | CHANNELS.keys() | MASKS.keys()
    if position != length or elements.keys() != wanted:
        findings.append(f"the kinds are {sorted(elements)}, wanted {sorted(wanted)}")
    for kind, size in PICTURES.items():
        picture = elements.get(kind, b"")
        if picture[:8] != PNG or struct.unpack_from(">II", picture, 16) != (size, size):
            findings.append(f"{kind!r} is not a PNG of {size}")
        elif not is_sound(picture):
            findings.append(f"{kind!r} is corrupt")
    for kind, size in CHANNELS.items():
        if unpacked_size(elements.get(kind, b"")) != 3 * size * size:
            findings.append(f"{kind!r} is not {size} wide")
    for kind, size in MASKS.items():
        if len(elements.get(kind, b"")) != size * size:
            findings.append(f"{kind!r} is not {size} wide")
    return findings
