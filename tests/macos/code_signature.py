"""Reads the ad-hoc signature of an executable and says what is wrong with it.

The layout is that of <kern/cs_blobs.h> in XNU's published source, where all numbers of a signature are big-endian. The
code directory itself is covered by nothing, since an ad-hoc signature has no signer: so every field of it is compared
with the one value that it may have, and no byte is left out."""

import hashlib
import struct

import mach_o

LC_CODE_SIGNATURE = mach_o.LC_CODE_SIGNATURE
SIGNATURE_MAGIC = 0xFADE0CC0
# What the signature has, slot by slot.
CODE_DIRECTORY, REQUIREMENTS, MESSAGE = 0, 2, 0x10000
NO_REQUIREMENTS = bytes.fromhex("fade0c01 0000000c 00000000")
NO_MESSAGE = bytes.fromhex("fade0b01 00000008")
AD_HOC = 0x2
HARDENED = 0x10000
# The fields of a code directory of version 0x20400, in their order.
FIELDS = struct.Struct(">9I4B4IQ3Q")
NAMES = (
    "magic length version flags hashOffset identOffset nSpecialSlots nCodeSlots codeLimit hashSize hashType platform"
    " pageSize spare2 scatterOffset teamOffset spare3 codeLimit64 execSegBase execSegLimit execSegFlags"
).split()


def digest(data):
    return hashlib.sha256(data).digest()


def of(executable):
    """Where the signature begins, and its bytes; none when the executable has none at its end."""
    commands = [data for command, data in mach_o.load_commands(executable) if command == LC_CODE_SIGNATURE]
    if len(commands) != 1 or len(commands[0]) != 16:
        return None
    offset, size = struct.unpack_from("<II", commands[0], 8)
    return (offset, executable[offset:]) if offset + size == len(executable) else None


def parts(signature):
    """The blobs of a signature, by slot; they stand one behind the other, and what is left are zeros."""
    magic, length, count = struct.unpack_from(">III", signature)
    if magic != SIGNATURE_MAGIC or length > len(signature) or any(signature[length:]):
        raise ValueError("the signature is not one")
    found, end = {}, 12 + 8 * count
    for index in range(count):
        slot, place = struct.unpack_from(">II", signature, 12 + 8 * index)
        (size,) = struct.unpack_from(">I", signature, place + 4)
        if place != end or slot in found:
            raise ValueError("the signature has blobs out of order")
        end = place + size
        found[slot] = signature[place:end]
    if end != length:
        raise ValueError("the signature has more than its blobs")
    return found


def findings(executable, identifier, information, resources):
    """What is wrong with the signature of an executable in a bundle with this identifier, whose Info.plist and list of
    resources have these bytes."""
    found = of(executable)
    if found is None:
        yield "there is no signature, or not at the end"
        return
    try:
        offset, signature = found
        blobs = parts(signature)
    except (ValueError, struct.error) as error:
        yield str(error)
        return
    if offset % 16 or len(signature) % 16:
        yield "the signature is not aligned"
    start, length = mach_o.file_range_of(executable, b"__LINKEDIT")
    if start + length != len(executable):
        yield "the last segment does not end where the signature does"
    if set(blobs) != {CODE_DIRECTORY, REQUIREMENTS, MESSAGE}:
        yield f"the signature has the slots {sorted(blobs)}"
    if blobs.get(REQUIREMENTS) != NO_REQUIREMENTS:
        yield "the signature has requirements"
    if blobs.get(MESSAGE) != NO_MESSAGE:
        yield "the signature is somebody's"
    # The slots ahead of the first page, the last one first.
    special = {3: ("its resources", resources), 2: ("requirements", NO_REQUIREMENTS), 1: ("Info.plist", information)}
    yield from directory_findings(blobs.get(CODE_DIRECTORY, b""), executable, offset, identifier, special)


def directory_findings(directory, executable, limit, identifier, special):
    if len(directory) < FIELDS.size:
        yield "there is no code directory"
        return
    page = 4096
    pages = [executable[place : min(place + page, limit)] for place in range(0, limit, page)]
    name = identifier.encode() + b"\0"
    text_start, text_size = mach_o.file_range_of(executable, b"__TEXT")
    hashes = FIELDS.size + len(name) + 32 * len(special)
    wanted = {
        "magic": 0xFADE0C02,
        "length": hashes + 32 * len(pages),
        "version": 0x20400,
        # The hardened runtime would want entitlements, without which it allows no password prompt.
        "flags": AD_HOC,
        "hashOffset": hashes,
        "identOffset": FIELDS.size,
        "nSpecialSlots": len(special),
        "nCodeSlots": len(pages),
        "codeLimit": limit,
        "hashSize": 32,
        "hashType": 2,
        "pageSize": 12,
        "execSegBase": text_start,
        "execSegLimit": text_size,
        "execSegFlags": 1,
    }
    values = dict(zip(NAMES, FIELDS.unpack_from(directory)))
    wrong = [field for field in NAMES if values[field] != wanted.get(field, 0)]
    for field in wrong:
        yield f"{field} is {values[field]:#x}, wanted {wanted.get(field, 0):#x}"
    if directory[FIELDS.size : FIELDS.size + len(name)] != name:
        yield "it is signed under another identifier"
    if wrong:
        return
    for slot, (called, data) in special.items():
        if directory[hashes - 32 * slot : hashes - 32 * slot + 32] != digest(data):
            yield f"{called}: not what was signed"
    for index, data in enumerate(pages):
        if directory[hashes + 32 * index : hashes + 32 * index + 32] != digest(data):
            yield f"page {index} is not what was signed"
