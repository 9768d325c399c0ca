"""What can be wrong with the signature of the arm64 executable."""

import struct

import executable_checks as checks
import mach_o
from executable_edit import change_slice, command_at
from mutation import mutation


@mutation(checks.signature)
def a_byte_of_code(build):
    def change(data):
        data[mach_o.file_range_of(bytes(data), b"__TEXT")[1] - 20000] ^= 1

    change_slice(build, "arm64", change)


@mutation(checks.signature)
def a_byte_of_a_signature(build):
    def change(data):
        offset, _ = struct.unpack_from("<II", data, command_at(data, mach_o.LC_CODE_SIGNATURE) + 8)
        data[offset + 600] ^= 1

    change_slice(build, "arm64", change)


def sign_with_flags(build, flags):
    def change(data):
        offset, _ = struct.unpack_from("<II", data, command_at(data, mach_o.LC_CODE_SIGNATURE) + 8)
        (place,) = struct.unpack_from(">I", data, offset + 16)
        struct.pack_into(">I", data, offset + place + 12, flags)

    change_slice(build, "arm64", change)


@mutation(checks.signature)
def a_signature_that_is_not_ad_hoc(build):
    sign_with_flags(build, 0)


@mutation(checks.signature)
def the_hardened_runtime_without_entitlements(build):
    sign_with_flags(build, mach_o.AD_HOC | mach_o.HARDENED)


@mutation(checks.signature)
def a_signature_unknown_to_the_executable(build):
    # Another command of the same form, LC_LINKER_OPTIMIZATION_HINT, stands in its stead.
    def change(data):
        struct.pack_into("<I", data, command_at(data, mach_o.LC_CODE_SIGNATURE), 0x2E)

    change_slice(build, "arm64", change)
