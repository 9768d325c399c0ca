"""Reads of a Mach-O executable what LLVM's tools don't: its code signature."""

import hashlib
import struct

FAT_MAGIC = 0xCAFEBABE
CPUS = {0x0100000C: "arm64", 0x01000007: "x86_64"}
MAGIC_64 = b"\xcf\xfa\xed\xfe"
LC_SEGMENT_64 = 0x19
LC_CODE_SIGNATURE = 0x1D

# The layout is that of <kern/cs_blobs.h>; all numbers of a signature are big-endian.
SIGNATURE_MAGIC = 0xFADE0CC0
DIRECTORY_MAGIC = 0xFADE0C02
DIRECTORY_SLOT = 0
AD_HOC = 0x2
HARDENED = 0x10000
HASH_SHA256 = 2
VERSION_WITH_EXECUTABLE_SEGMENT = 0x20400
MAIN_BINARY = 1


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


def signature_findings(executable):
    """What is wrong with the ad-hoc signature of an executable of one architecture."""
    commands = [data for command, data in load_commands(executable) if command == LC_CODE_SIGNATURE]
    if len(commands) != 1:
        return ["there is no signature"]
    offset, size = struct.unpack_from("<II", commands[0], 8)
    if offset + size != len(executable):
        return ["the signature is not the end of the executable"]
    magic, length, count = struct.unpack_from(">III", executable, offset)
    if magic != SIGNATURE_MAGIC or length > size:
        return ["the signature is not one"]
    for index in range(count):
        slot, place = struct.unpack_from(">II", executable, offset + 12 + 8 * index)
        if slot == DIRECTORY_SLOT:
            return directory_findings(executable, offset, offset + place)
    return ["the signature has no code directory"]


def directory_findings(executable, signature, start):
    """What is wrong with the code directory at `start`, whose pages end where the signature begins."""
    fields = struct.unpack_from(">9I4BI", executable, start)
    magic, _, version, flags, hashes, _, _, count, limit, hash_size, hash_kind, _, page_bits, _ = fields
    if magic != DIRECTORY_MAGIC or version < VERSION_WITH_EXECUTABLE_SEGMENT:
        return ["the code directory is not one, or too old"]
    findings = []
    if not flags & AD_HOC:
        findings.append("the signature is not ad hoc")
    if flags & HARDENED:
        findings.append("the hardened runtime is on, and nothing here allows the password prompt under it")
    if (hash_kind, hash_size) != (HASH_SHA256, 32):
        return findings + ["the pages' hashes are not SHA-256"]
    if limit != signature:
        findings.append("code ahead of the signature is not covered")
    page = 1 << page_bits
    if count != (limit + page - 1) // page:
        return findings + ["the number of pages is wrong"]
    for index in range(count):
        digest = hashlib.sha256(executable[index * page : min((index + 1) * page, limit)]).digest()
        place = start + hashes + 32 * index
        if executable[place : place + 32] != digest:
            findings.append(f"page {index} is not what was signed")
    segment, segment_size, segment_flags = struct.unpack_from(">QQQ", executable, start + 64)
    if (segment, segment_size) != file_range_of(executable, b"__TEXT") or segment_flags != MAIN_BINARY:
        findings.append("the executable segment is another one")
    return findings
