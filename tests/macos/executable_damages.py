"""What can be wrong with the executable, beside its signature."""

import os
import struct

import executable_checks as checks
from damage import damage
from executable_edit import change_slice, command_at, remake, run, unused_place
from made import PROJECT


@damage(checks.both_architectures, checks.signature)
def one_architecture_missing(made):
    thin = made.folder / "thin"
    run("llvm-lipo", "-thin", "x86_64", str(made.executable), "-output", str(thin))
    run("llvm-lipo", "-create", str(thin), "-output", str(made.executable))
    thin.unlink()


@damage(checks.both_architectures, checks.minimum_version, checks.libraries, checks.classes)
def one_architecture_too_many(made):
    # i386, as the third in the list: a header, and nothing that it does.
    data = bytearray(made.executable.read_bytes())
    padding = -len(data) % 4096
    struct.pack_into(">I", data, 4, 3)
    struct.pack_into(">5I", data, 48, 7, 3, len(data) + padding, 4096, 12)
    data += bytes(padding) + struct.pack("<7I", 0xFEEDFACE, 7, 3, 2, 0, 0, 0) + bytes(4096 - 28)
    made.executable.write_bytes(data)


@damage(checks.minimum_version)
def an_older_system_promised(made):
    change_slice(made, "x86_64", lambda data: struct.pack_into("<I", data, command_at(data, 0x32) + 12, 11 << 16))


@damage(checks.minimum_version, checks.signature)
def a_newer_interface_claimed(made):
    change_slice(made, "arm64", lambda data: struct.pack_into("<I", data, command_at(data, 0x32) + 16, 26 << 16))


@damage(checks.libraries)
def another_library(made):
    def change(data):
        place = data.index(b"/usr/lib/libobjc.A.dylib")
        data[place : place + 24] = b"/usr/lib/libicuuc.dylib\0"

    change_slice(made, "x86_64", change)


@damage(checks.libraries)
def a_library_more(made):
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

    remake(made, change)


@damage(checks.search_paths)
def a_search_path(made):
    def change(architecture, part):
        if architecture == "x86_64":
            run("llvm-install-name-tool", "-add_rpath", "/tmp", str(part))

    remake(made, change)


@damage(checks.classes)
def classes_that_are_not_announced(made):
    def change(data):
        place = data.index(b"__objc_imageinfo")
        data[place : place + 16] = b"__objc_image_inf"

    change_slice(made, "x86_64", change)


@damage(checks.stripped)
def inner_names(made):
    def change(data):
        place = unused_place(data)
        name = b"-[AppDelegate init]"
        data[place : place + len(name)] = name

    change_slice(made, "x86_64", change)


@damage(checks.stripped)
def a_path_of_this_machine(made):
    def change(data):
        path = os.fsencode(PROJECT / "app")
        place = unused_place(data)
        data[place : place + len(path)] = path

    change_slice(made, "x86_64", change)
