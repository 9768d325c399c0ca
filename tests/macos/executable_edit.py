"""How an executable is spoilt: its slices, its load commands."""

import os
import subprocess

import mach_o
from executable_checks import ARCHITECTURES
from made import llvm


def run(tool, *arguments):
    subprocess.run([llvm(tool), *arguments], check=True)


def change_slice(made, architecture, change):
    """Rewrites one architecture's executable in place; the size stays."""
    data = made.executable.read_bytes()
    old = mach_o.slices(data)[architecture]
    new = bytearray(old)
    change(new)
    assert len(new) == len(old) and new != old
    made.executable.write_bytes(data.replace(old, bytes(new)))


def remake(made, change):
    """Takes the universal executable apart, lets `change` have each executable's path, and joins them."""
    parts = []
    for architecture in sorted(ARCHITECTURES):
        part = made.folder / architecture
        run("llvm-lipo", "-thin", architecture, str(made.executable), "-output", str(part))
        change(architecture, part)
        parts.append(str(part))
    run("llvm-lipo", "-create", *parts, "-output", str(made.executable))
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
