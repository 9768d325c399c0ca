"""Edits an executable in place: its slices, its load commands."""

import os
import subprocess

import mach_o
from build import llvm
from executable_checks import ARCHITECTURES


def run(tool, *arguments):
    subprocess.run([llvm(tool), *arguments], check=True)


def change_slice(build, architecture, change):
    """Rewrites one architecture's executable in place; the size stays."""
    data = build.executable.read_bytes()
    old = mach_o.slices(data)[architecture]
    new = bytearray(old)
    change(new)
    assert len(new) == len(old) and new != old
    build.executable.write_bytes(data.replace(old, bytes(new)))


def remake(build, change):
    """Takes the universal executable apart, lets `change` have each executable's path, and joins them."""
    parts = []
    for architecture in sorted(ARCHITECTURES):
        part = build.folder / architecture
        run("llvm-lipo", "-thin", architecture, str(build.executable), "-output", str(part))
        change(architecture, part)
        parts.append(str(part))
    run("llvm-lipo", "-create", *parts, "-output", str(build.executable))
    for part in parts:
        os.remove(part)


def unused_place(data):
    """Where room is left between the load commands and the code."""
    return data.index(bytes(1024)) + 512


def command_at(executable, wanted):
    """Where the first load command of that number is."""
    position = 32
    for command, data in mach_o.load_commands(executable):
        if command == wanted:
            return position
        position += len(data)
    raise AssertionError("no such load command")
