"""What must hold of the executable."""

import os
import re

import declarations
import mach_o
from build import MINIMUM, PROJECT, llvm, output_of

ARCHITECTURES = {"arm64", "x86_64"}
# Bytes behind the load commands.
LEAST_ROOM = 32
FRAMEWORKS = "/System/Library/Frameworks"
LIBRARIES = {
    "/usr/lib/libSystem.B.dylib",
    "/usr/lib/libobjc.A.dylib",
    f"{FRAMEWORKS}/AppKit.framework/Versions/C/AppKit",
    f"{FRAMEWORKS}/CoreFoundation.framework/Versions/A/CoreFoundation",
    f"{FRAMEWORKS}/Foundation.framework/Versions/C/Foundation",
}


def headers(build):
    """The load commands as text, by architecture."""
    text = output_of("llvm-objdump", "--macho", "--arch=all", "--private-headers", str(build.executable))
    parts = re.split(r"^.* \(architecture (\w+)\):$", text, flags=re.MULTILINE)
    return dict(zip(parts[1::2], parts[2::2]))


def both_architectures(build):
    found = set(output_of(llvm("llvm-lipo"), "-archs", str(build.executable)).split())
    if found != ARCHITECTURES:
        yield f"{sorted(found)}"


def minimum_version(build):
    for architecture, text in headers(build).items():
        command = re.search(r"cmd LC_BUILD_VERSION.*?platform (\w+).*?sdk (\S+).*?minos (\S+)", text, re.DOTALL)
        if not command or command.group(1) != "macos" or command.group(3) != MINIMUM:
            yield f"{architecture}: {command.groups() if command else 'no build version'}"
        elif command.group(2) != MINIMUM:
            yield f"{architecture}: behaves as if made with the interface of {command.group(2)}"


def libraries(build):
    for architecture, text in headers(build).items():
        found = set(re.findall(r"cmd LC_\w*DYLIB\n.*?name (\S+) \(offset", text, re.DOTALL))
        if found - LIBRARIES:
            yield f"{architecture}: also {sorted(found - LIBRARIES)}"
        if LIBRARIES - found:
            yield f"{architecture}: not {sorted(LIBRARIES - found)}"


def search_paths(build):
    for architecture, text in headers(build).items():
        for command in re.findall(r"cmd (LC_RPATH|LC_DYLD_ENVIRONMENT)", text):
            yield f"{architecture}: {command}"


def classes(build):
    """dyld tells the runtime of Objective-C of an executable with the first of these, which then reads the second."""
    for architecture, data in mach_o.slices(build.executable.read_bytes()).items():
        for name in sorted({"__objc_imageinfo", "__objc_classlist"} - mach_o.section_names(data)):
            yield f"{architecture}: no {name}"


def room_for_commands(build):
    """codesign(1) adds a load command, and a signer may want another one; the linker leaves no room by itself."""
    for architecture, data in mach_o.slices(build.executable.read_bytes()).items():
        if data[:4] == mach_o.MAGIC_64 and mach_o.room_for_commands(data) < LEAST_ROOM:
            yield f"{architecture}: {mach_o.room_for_commands(data)} bytes"


def stripped(build):
    data = build.executable.read_bytes()
    # Those that a table of the executable refers to stay in; no table refers to a method.
    if re.search(rb"\0[-+]\[\w+ [\w:]+\]", data):
        yield "the names of methods are in it"
    for path in {str(PROJECT), os.path.expanduser("~")} - {"/"}:
        if path.encode() + b"/" in data:
            yield f"{path} is in it"


def nothing_unused(build):
    yield from declarations.unused(str(build.executable), build.declarations)


def pages_named(build):
    yield from declarations.without_page(build.declarations)
