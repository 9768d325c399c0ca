"""Reads of a Mach-O executable what LLVM's tools don't say: <mach-o/fat.h>, <mach-o/loader.h>."""

import struct

FAT_MAGIC = 0xCAFEBABE
CPUS = {0x0100000C: "arm64", 0x01000007: "x86_64"}
MAGIC_64 = b"\xcf\xfa\xed\xfe"
LC_SEGMENT_64 = 0x19
LC_CODE_SIGNATURE = 0x1D


def slices(data):
    """The executables in a universal one, by architecture."""
    magic, count = struct.unpack_from(">II", data)
    if magic != FAT_MAGIC:
        raise ValueError("not a universal executable")
    found = {}
    for index in range(count):
        cpu, _, offset, size, _ = struct.unpack_from(">5I", data, 8 + 20 * index)
        found[CPUS.get(cpu, hex(cpu))] = data[offset : offset + size]
    return found


def load_commands(executable):
    """Pairs of a load command's number and its bytes."""
    (count,) = struct.unpack_from("<I", executable, 16)
    position = 32
    for _ in range(count):
        command, size = struct.unpack_from("<II", executable, position)
        yield command, executable[position : position + size]
        position += size


def section_names(executable):
    """The names of the sections of an executable for 64 bits; none of another one."""
    names = set()
    if executable[:4] == MAGIC_64:
        for command, data in load_commands(executable):
            if command == LC_SEGMENT_64:
                names |= {data[place : place + 16].rstrip(b"\0").decode() for place in range(72, len(data), 80)}
    return names


def file_range_of(executable, name):
    """Where a segment lies in the file: its offset and its size."""
    for command, data in load_commands(executable):
        if command == LC_SEGMENT_64 and data[8:24].rstrip(b"\0") == name:
            return struct.unpack_from("<QQ", data, 40)
    raise ValueError(f"no segment {name.decode()}")


def room_for_commands(executable):
    """How many bytes are free between the last load command and the first section."""
    (size,) = struct.unpack_from("<I", executable, 20)
    offsets = []
    for command, data in load_commands(executable):
        if command == LC_SEGMENT_64:
            offsets += [struct.unpack_from("<I", data, place + 48)[0] for place in range(72, len(data), 80)]
    return min(offset for offset in offsets if offset) - 32 - size


def beside_the_slices(data):
    """What is in a universal executable and belongs to none of the slices: they stand in order, with zeros between."""
    _, count = struct.unpack_from(">II", data)
    end = 8 + 20 * count
    for index in range(count):
        _, _, offset, size, alignment = struct.unpack_from(">5I", data, 8 + 20 * index)
        if offset != end + -end % (1 << alignment):
            yield f"slice {index} is not where the one before ends"
        elif any(data[end:offset]):
            yield f"something is ahead of slice {index}"
        end = offset + size
    if end != len(data):
        yield "something is behind the last slice"
