#!/usr/bin/env python3
"""Spoils copies of a good bundle, each in one way, and says whether just the checks that ought to see it do:
self_test.py FOLDER"""

import pathlib
import shutil
import subprocess
import sys
import tempfile

import archive_damages
import bundle_checks
import declaration_damages
import executable_damages
import resource_damages
import signature_damages
from damage import DAMAGES, write_checksum
from made import PROJECT, Made

# Each has added its own to the list.
MODULES = (archive_damages, declaration_damages, executable_damages, resource_damages, signature_damages)


def copy_of(made, folder):
    """The bundle, its archive and checksum, to be spoilt."""
    shutil.copytree(made.bundle, folder / made.bundle.name, symlinks=True)
    shutil.copy2(made.archive, folder)
    shutil.copy2(made.folder / (made.archive.name + ".sha256"), folder)
    return Made(folder)


def red(made):
    return {check for check in bundle_checks.CHECKS.values() if bundle_checks.findings_of(check, made)}


def names(checks):
    return ", ".join(name for name, check in bundle_checks.CHECKS.items() if check in checks) or "none"


def seen(made, wanted, spoil, packed_anew):
    """Whether exactly the wanted checks see the damage; says what else they saw."""
    with tempfile.TemporaryDirectory() as folder:
        copy = copy_of(made, pathlib.Path(folder))
        spoil(copy)
        if packed_anew:
            pack = str(PROJECT / "packaging/macos/make-archive")
            subprocess.run([pack, str(copy.bundle), str(copy.archive)], check=True)
            write_checksum(copy)
        found = red(copy)
    if found != wanted:
        print(f"        seen by: {names(found)}\n        instead of: {names(wanted)}")
    return found == wanted


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: self_test.py FOLDER")
    made = Made(sys.argv[1])
    if red(made):
        sys.exit(f"self_test.py: the bundle itself is not good: {names(red(made))}")
    failed = False
    for name, wanted, spoil, packed_anew in DAMAGES:
        good = seen(made, wanted, spoil, packed_anew)
        print(f"{'ok' if good else 'FAILED':8}{name}")
        failed = failed or not good
    never = set(bundle_checks.CHECKS.values()) - set().union(*(wanted for _, wanted, _, _ in DAMAGES))
    if never:
        print(f"FAILED  nothing makes these fail: {names(never)}")
    sys.exit(1 if failed or never else 0)


main()
