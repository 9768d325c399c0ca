"""A finished build: the bundle and the archive, how they are read, and what the sources say of them."""

import os
import pathlib
import re
import stat
import subprocess

PROJECT = pathlib.Path(__file__).resolve().parents[2]
NAME = "Kelmar Uninstaller"
IDENTIFIER = "com.kelmar.uninstaller"
MINIMUM = "12.0"


def version():
    return re.search(r"^  VERSION (\S+)$", (PROJECT / "CMakeLists.txt").read_text(), re.MULTILINE).group(1)


def legacy_identifier():
    text = (PROJECT / "discovery/identifiers.hpp").read_text()
    return re.search(r'legacyBundleIdentifier = "([^"]+)"', text).group(1)


class Build:
    """The bundle, and the archive beside it."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.bundle = self.folder / f"{NAME}.app"
        self.contents = self.bundle / "Contents"
        self.executable = self.contents / "MacOS" / NAME
        self.archive = self.folder / f"Kelmar-Uninstaller-{version()}.zip"
        # What it was built with; a mutation of these works on copies.
        self.declarations = PROJECT / "packaging/macos/declarations"
        self.entitlements = PROJECT / "packaging/macos/entitlements.plist"


def output_of(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True).stdout


def llvm(tool):
    """Debian leaves some of LLVM's tools out of the path."""
    return os.path.join(output_of("llvm-config", "--bindir").strip(), tool)


def tree(root):
    """Every path below `root` and `root` itself, with its mode, and what a link leads to."""
    found = {}
    for path in [root, *sorted(root.rglob("*"))]:
        mode = path.lstat().st_mode
        found[str(path.relative_to(root))] = os.readlink(path) if stat.S_ISLNK(mode) else stat.S_IMODE(mode)
    return found
