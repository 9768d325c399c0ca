"""The ad-hoc signature of one executable in a bundle: <kern/cs_blobs.h> of XNU. All its numbers are big-endian.

It is what codesign(1) makes: a code directory with SHA-256 alone, which every system since macOS 10.11.4 takes; no
requirements; and a wrapper for a signer's message, which is empty."""

import hashlib
import struct

from sealing import mach_o

SUPER_BLOB, DIRECTORY, REQUIREMENTS, WRAPPER = 0xFADE0CC0, 0xFADE0C02, 0xFADE0C01, 0xFADE0B01
DIRECTORY_SLOT, REQUIREMENTS_SLOT, WRAPPER_SLOT = 0, 2, 0x10000
VERSION = 0x20400  # the first that names the executable segment
AD_HOC = 0x2
SHA256, HASH_SIZE = 2, 32
PAGE_BITS = 12
MAIN_BINARY = 1
HEADER_SIZE = 88

NO_REQUIREMENTS = struct.pack(">3I", REQUIREMENTS, 12, 0)
NO_MESSAGE = struct.pack(">II", WRAPPER, 8)


def digest(data):
    return hashlib.sha256(data).digest()


def directory(code, identifier, special):
    """The code directory of the bytes `code`; `special` are the hashes of what is not among them, last slot first."""
    name = identifier.encode() + b"\0"
    page = 1 << PAGE_BITS
    pages = [digest(code[start : start + page]) for start in range(0, len(code), page)]
    hashes = HEADER_SIZE + len(name) + HASH_SIZE * len(special)
    size = hashes + HASH_SIZE * len(pages)
    text = mach_o.segment(code, b"__TEXT")
    start, length = struct.unpack_from("<QQ", code, text + 40)
    header = struct.pack(">6I", DIRECTORY, size, VERSION, AD_HOC, hashes, HEADER_SIZE)
    header += struct.pack(">3I", len(special), len(pages), len(code))
    header += struct.pack(">4B", HASH_SIZE, SHA256, 0, PAGE_BITS)
    # Nothing is scattered, there is no team, and the code needs no 64 bits to be counted.
    header += struct.pack(">4IQ", 0, 0, 0, 0, 0)
    header += struct.pack(">3Q", start, length, MAIN_BINARY)
    return header + name + b"".join(special) + b"".join(pages)


def blob(code, identifier, information, resources):
    special = [digest(resources), digest(NO_REQUIREMENTS), digest(information)]
    parts = [
        (DIRECTORY_SLOT, directory(code, identifier, special)),
        (REQUIREMENTS_SLOT, NO_REQUIREMENTS),
        (WRAPPER_SLOT, NO_MESSAGE),
    ]
    index, body = b"", b""
    place = 12 + 8 * len(parts)
    for slot, part in parts:
        index += struct.pack(">II", slot, place + len(body))
        body += part
    return struct.pack(">3I", SUPER_BLOB, place + len(body), len(parts)) + index + body


def signed(executable, identifier, information, resources):
    """An executable with a signature that covers the bundle's Info.plist and its list of resources too."""
    command, code = mach_o.without_signature(executable)
    # How long the signature is depends on how long the code is, and on nothing that the signature says.
    mach_o.make_room(code, command, 0)
    size = len(blob(code, identifier, information, resources))
    room = size + -size % 16
    mach_o.make_room(code, command, room)
    made = blob(code, identifier, information, resources)
    assert len(made) == size
    return bytes(code) + made + bytes(room - size)
