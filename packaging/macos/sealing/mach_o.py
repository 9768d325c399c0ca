"""Takes a universal executable apart, makes room in an executable for a signature, and joins them: <mach-o/fat.h>,
<mach-o/loader.h>."""

import dataclasses
import struct

LC_SEGMENT_64 = 0x19
LC_CODE_SIGNATURE = 0x1D
FAT_MAGIC = 0xCAFEBABE
MAGIC_64 = 0xFEEDFACF
CPU_ARM64 = 0x0100000C


@dataclasses.dataclass
class Slice:
    """An executable in a universal one."""

    cpu: int
    subtype: int
    alignment: int  # as the exponent of 2
    data: bytes


def slices(data):
    magic, count = struct.unpack_from(">II", data)
    if magic != FAT_MAGIC:
        raise ValueError("not a universal executable")
    found = []
    for index in range(count):
        cpu, subtype, offset, size, alignment = struct.unpack_from(">5I", data, 8 + 20 * index)
        found.append(Slice(cpu, subtype, alignment, data[offset : offset + size]))
    return found


def joined(parts):
    header = struct.pack(">II", FAT_MAGIC, len(parts))
    end, body = 8 + 20 * len(parts), b""
    start = end
    for part in parts:
        padding = -end % (1 << part.alignment)
        offset = end + padding
        header += struct.pack(">5I", part.cpu, part.subtype, offset, len(part.data), part.alignment)
        body += bytes(padding) + part.data
        end = offset + len(part.data)
    assert start + len(body) == end
    return header + body


def commands(data):
    """Pairs of a load command's number and its place."""
    magic, _, _, _, count = struct.unpack_from("<5I", data)
    if magic != MAGIC_64:
        raise ValueError("not an executable for 64 bits")
    place = 32
    for _ in range(count):
        command, size = struct.unpack_from("<II", data, place)
        yield command, place
        place += size


def segment(data, name):
    """The place of the load command of a segment."""
    for command, place in commands(data):
        if command == LC_SEGMENT_64 and data[place + 8 : place + 24].rstrip(b"\0") == name:
            return place
    raise ValueError(f"no segment {name.decode()}")


def first_section(data):
    """Where the first section lies in the file: what is ahead of it belongs to the load commands."""
    offsets = []
    for command, place in commands(data):
        if command == LC_SEGMENT_64:
            (sections,) = struct.unpack_from("<I", data, place + 64)
            offsets += [struct.unpack_from("<I", data, place + 72 + 80 * each + 48)[0] for each in range(sections)]
    return min(offset for offset in offsets if offset != 0)


def without_signature(data):
    """A copy that can be changed, without the signature and with a load command for one; its place and the copy."""
    data = bytearray(data)
    for command, place in commands(data):
        if command == LC_CODE_SIGNATURE:
            (offset,) = struct.unpack_from("<I", data, place + 8)
            del data[offset:]
            return place, data
    count, size = struct.unpack_from("<II", data, 16)
    place = 32 + size
    if place + 16 > first_section(data) or any(data[place : place + 16]):
        raise ValueError("no room for the load command of a signature")
    struct.pack_into("<II", data, 16, count + 1, size + 16)
    struct.pack_into("<II", data, place, LC_CODE_SIGNATURE, 16)
    return place, data


def make_room(data, command, size):
    """Has the last segment end in `size` bytes for a signature, and the load command at `command` name them."""
    data += bytes(-len(data) % 16)
    place = segment(data, b"__LINKEDIT")
    (offset,) = struct.unpack_from("<Q", data, place + 40)
    (cpu,) = struct.unpack_from("<I", data, 4)
    page = 0x4000 if cpu == CPU_ARM64 else 0x1000
    length = len(data) + size - offset
    struct.pack_into("<Q", data, place + 32, length + -length % page)
    struct.pack_into("<Q", data, place + 48, length)
    struct.pack_into("<II", data, command + 8, len(data), size)
