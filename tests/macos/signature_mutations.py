"""What can be wrong with the signature of an executable."""

import struct

import code_signature
import mach_o
import seal_checks as checks
from build import IDENTIFIER
from executable_edit import change_slice, command_at
from mutation import mutation, replace


def place_of(data):
    """Where the signature begins, and how long it is."""
    return struct.unpack_from("<II", data, command_at(data, mach_o.LC_CODE_SIGNATURE) + 8)


def directory_of(data):
    """Where the code directory begins, which is the first blob of a signature."""
    offset, _ = place_of(data)
    return offset + struct.unpack_from(">I", data, offset + 16)[0]


@mutation(checks.signature)
def a_byte_of_code(build):
    def change(data):
        data[mach_o.file_range_of(bytes(data), b"__TEXT")[1] - 20000] ^= 1

    change_slice(build, "arm64", change)


@mutation(checks.signature)
def a_byte_of_code_for_the_other_kind_of_mac(build):
    def change(data):
        data[mach_o.file_range_of(bytes(data), b"__TEXT")[1] - 20000] ^= 1

    change_slice(build, "x86_64", change)


@mutation(checks.signature)
def a_byte_of_a_signature(build):
    def change(data):
        data[place_of(data)[0] + 600] ^= 1

    change_slice(build, "arm64", change)


@mutation(checks.signature)
def a_byte_behind_a_signature(build):
    def change(data):
        (length,) = struct.unpack_from(">I", data, place_of(data)[0] + 4)
        assert length < place_of(data)[1]
        data[-1] = 1

    change_slice(build, "arm64", change)


@mutation(checks.signature)
def a_byte_between_the_slices(build):
    data = bytearray(build.executable.read_bytes())
    data[4000] = 1
    build.executable.write_bytes(data)


@mutation(checks.signature)
def a_byte_behind_the_slices(build):
    with open(build.executable, "ab") as executable:
        executable.write(b"\0")


def sign_with_flags(build, flags):
    change_slice(build, "arm64", lambda data: struct.pack_into(">I", data, directory_of(data) + 12, flags))


@mutation(checks.signature)
def a_signature_that_is_not_ad_hoc(build):
    sign_with_flags(build, 0)


@mutation(checks.signature)
def the_hardened_runtime_without_entitlements(build):
    sign_with_flags(build, code_signature.AD_HOC | code_signature.HARDENED)


@mutation(checks.signature)
def a_signature_under_another_name(build):
    def change(data):
        place = data.index(b"com.kelmar.uninstaller\0", directory_of(data))
        data[place + 4] ^= 1

    change_slice(build, "x86_64", change)


@mutation(checks.signature)
def a_signature_unknown_to_the_executable(build):
    # Another command of the same form, LC_LINKER_OPTIMIZATION_HINT, stands in its stead.
    def change(data):
        struct.pack_into("<I", data, command_at(data, mach_o.LC_CODE_SIGNATURE), 0x2E)

    change_slice(build, "arm64", change)


@mutation(checks.signature)
def a_signature_that_outgrows_its_segment(build):
    def change(data):
        for command, place in commands_with_places(data):
            if command == mach_o.LC_SEGMENT_64 and data[place + 8 :].startswith(b"__LINKEDIT"):
                (size,) = struct.unpack_from("<Q", data, place + 48)
                struct.pack_into("<Q", data, place + 48, size - 16)

    change_slice(build, "x86_64", change)


def commands_with_places(data):
    place = 32
    for command, bytes_of_it in mach_o.load_commands(bytes(data)):
        yield command, place
        place += len(bytes_of_it)


@mutation(checks.signature, checks.sealed_files)
def a_list_of_other_files(build):
    replace(build.contents / checks.LIST, b"Resources/uninstall-as-admin.sh", b"Resources/uninstall-as-admin.md", 2)


@mutation(checks.signature, checks.sealed_files)
def a_hash_of_another_file(build):
    path = build.contents / checks.LIST
    data = path.read_bytes()
    place = data.index(b"<data>", data.index(b"uninstall-as-admin.sh", data.index(b"files2"))) + 14
    while not chr(data[place]).isalpha():
        place += 1
    other = b"A" if data[place : place + 1] != b"A" else b"B"
    path.write_bytes(data[:place] + other + data[place + 1 :])


@mutation(checks.signature, checks.sealed_files)
def rules_that_leave_something_out(build):
    replace(build.contents / checks.LIST, rb"^PkgInfo$", rb"^[^/]+$|^Frameworks/")


def unnoticed_bytes(build):
    """Where in the executables a changed byte goes unnoticed. Changes every byte of the signatures, and of the code,
    whose pages have a hash each, one byte a page."""
    data = build.executable.read_bytes()
    information = (build.contents / "Info.plist").read_bytes()
    resources = (build.contents / checks.LIST).read_bytes()
    for architecture, executable in mach_o.slices(data).items():
        limit, signature = code_signature.of(executable)
        for place in [*range(100, limit, 4096), *range(limit, limit + len(signature))]:
            changed = bytearray(executable)
            changed[place] ^= 1
            if not any(code_signature.findings(bytes(changed), IDENTIFIER, information, resources)):
                yield f"{architecture}: byte {place}"
