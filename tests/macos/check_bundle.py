#!/usr/bin/env python3
"""Says of each check whether it holds of the bundle in a folder: check_bundle.py FOLDER"""

import sys

import bundle_checks
from build import Build


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: check_bundle.py FOLDER")
    build = Build(sys.argv[1])
    if not build.bundle.is_dir():
        sys.exit(f"check_bundle.py: {build.bundle} is not there; scripts/build-macos makes it")
    failed = False
    for name, check in bundle_checks.CHECKS.items():
        findings = bundle_checks.findings_of(check, build)
        print(f"{'FAILED' if findings else 'ok':8}{name}")
        for finding in findings:
            print(f"          {finding}")
        failed = failed or bool(findings)
    sys.exit(1 if failed else 0)


main()
