"""What can be wrong with the executable, beside its signature."""

import os
import struct

import executable_checks as checks
import mach_o
import seal_checks
from build import PROJECT
from executable_edit import change_slice, command_at, remake, run, unused_place
from mutation import mutation


@mutation(checks.both_architectures)
def one_architecture_missing(build):
    thin = build.folder / "thin"
    run("llvm-lipo", "-thin", "x86_64", str(build.executable), "-output", str(thin))
    run("llvm-lipo", "-create", str(thin), "-output", str(build.executable))
    thin.unlink()


@mutation(checks.both_architectures, checks.minimum_version, checks.libraries, checks.classes, seal_checks.signature)
def one_architecture_too_many(build):
    # i386, as the third in the list: a header, and nothing that it does.
    data = bytearray(build.executable.read_bytes())
    padding = -len(data) % 4096
    struct.pack_into(">I", data, 4, 3)
    struct.pack_into(">5I", data, 48, 7, 3, len(data) + padding, 4096, 12)
    data += bytes(padding) + struct.pack("<7I", 0xFEEDFACE, 7, 3, 2, 0, 0, 0) + bytes(4096 - 28)
    build.executable.write_bytes(data)


@mutation(checks.minimum_version, seal_checks.signature)
def an_older_system_promised(build):
    change_slice(build, "x86_64", lambda data: struct.pack_into("<I", data, command_at(data, 0x32) + 12, 11 << 16))


@mutation(checks.minimum_version, seal_checks.signature)
def a_newer_interface_claimed(build):
    change_slice(build, "arm64", lambda data: struct.pack_into("<I", data, command_at(data, 0x32) + 16, 26 << 16))


@mutation(checks.libraries, seal_checks.signature)
def another_library(build):
    def change(data):
        place = data.index(b"/usr/lib/libobjc.A.dylib")
        data[place : place + 24] = b"/usr/lib/libicuuc.dylib\0"

    change_slice(build, "x86_64", change)


@mutation(checks.libraries, seal_checks.signature)
def a_library_more(build):
    def change(architecture, part):
        if architecture == "x86_64":
            data = bytearray(part.read_bytes())
            count, length = struct.unpack_from("<II", data, 16)
            name = b"/usr/lib/libz.1.dylib\0".ljust(32, b"\0")
            command = struct.pack("<6I", 0xC, 24 + len(name), 24, 2, 1 << 16, 1 << 16) + name
            end = 32 + length
            assert not any(data[end : end + len(command)])
            data[end : end + len(command)] = command
            struct.pack_into("<II", data, 16, count + 1, length + len(command))
            part.write_bytes(data)

    remake(build, change)


@mutation(checks.room_for_commands, seal_checks.signature)
def no_room_for_a_load_command(build):
    # A command without a meaning to dyld, LC_LINKER_OPTION, takes all but 16 bytes of what is free.
    def change(data):
        count, size = struct.unpack_from("<II", data, 16)
        more = mach_o.room_for_commands(bytes(data)) - 16
        struct.pack_into("<II", data, 16, count + 1, size + more)
        struct.pack_into("<3I", data, 32 + size, 0x2D, more, 0)

    change_slice(build, "x86_64", change)


@mutation(checks.search_paths, seal_checks.signature)
def a_search_path(build):
    def change(architecture, part):
        if architecture == "x86_64":
            run("llvm-install-name-tool", "-add_rpath", "/tmp", str(part))

    remake(build, change)


@mutation(checks.classes, seal_checks.signature)
def classes_that_are_not_announced(build):
    def change(data):
        place = data.index(b"__objc_imageinfo")
        data[place : place + 16] = b"__objc_image_inf"

    change_slice(build, "x86_64", change)


@mutation(checks.stripped, seal_checks.signature)
def inner_names(build):
    def change(data):
        place = unused_place(data)
        name = b"-[AppDelegate init]"
        data[place : place + len(name)] = name

    change_slice(build, "x86_64", change)


@mutation(checks.stripped, seal_checks.signature)
def a_path_of_this_machine(build):
    def change(data):
        path = os.fsencode(PROJECT / "app")
        place = unused_place(data)
        data[place : place + len(path)] = path

    change_slice(build, "x86_64", change)
