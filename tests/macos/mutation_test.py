#!/usr/bin/env python3
"""Mutates copies of a good bundle, each in one way, and says whether exactly the checks fail that must:
mutation_test.py FOLDER"""

import pathlib
import shutil
import subprocess
import sys
import tempfile

import archive_mutations
import bundle_checks
import declaration_mutations
import executable_mutations
import resource_mutations
import signature_mutations
from build import PROJECT, Build
from mutation import MUTATIONS, write_checksum

# Each has added its own to the list.
MODULES = (archive_mutations, declaration_mutations, executable_mutations, resource_mutations, signature_mutations)


def copy_of(build, folder):
    """The bundle, its archive and checksum, to be mutated."""
    shutil.copytree(build.bundle, folder / build.bundle.name, symlinks=True)
    shutil.copy2(build.archive, folder)
    shutil.copy2(build.folder / (build.archive.name + ".sha256"), folder)
    return Build(folder)


def failing(build):
    return {check for check in bundle_checks.CHECKS.values() if bundle_checks.findings_of(check, build)}


def names(checks):
    return ", ".join(name for name, check in bundle_checks.CHECKS.items() if check in checks) or "none"


def caught(build, wanted, mutate, packed_anew):
    """Whether exactly the wanted checks fail on the mutation; says which fail instead."""
    with tempfile.TemporaryDirectory() as folder:
        copy = copy_of(build, pathlib.Path(folder))
        mutate(copy)
        if packed_anew:
            pack = str(PROJECT / "packaging/macos/make-archive")
            subprocess.run([pack, str(copy.bundle), str(copy.archive)], check=True)
            write_checksum(copy)
        found = failing(copy)
    if found != wanted:
        print(f"        failed: {names(found)}\n        must fail: {names(wanted)}")
    return found == wanted


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: mutation_test.py FOLDER")
    build = Build(sys.argv[1])
    if failing(build):
        sys.exit(f"mutation_test.py: the bundle itself is not good: {names(failing(build))}")
    failed = False
    for name, wanted, mutate, packed_anew in MUTATIONS:
        good = caught(build, wanted, mutate, packed_anew)
        print(f"{'ok' if good else 'FAILED':8}{name}")
        failed = failed or not good
    for place in signature_mutations.unnoticed_bytes(build):
        print(f"FAILED  a changed byte goes unnoticed: {place}")
        failed = True
    never = set(bundle_checks.CHECKS.values()) - set().union(*(wanted for _, wanted, _, _ in MUTATIONS))
    if never:
        print(f"FAILED  nothing makes these fail: {names(never)}")
    sys.exit(1 if failed or never else 0)


main()
