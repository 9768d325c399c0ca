#!/usr/bin/python3
"""Compares every declaration that the build for the Mac sees with two others' of the same interfaces: a misspelt
selector, a wrong number or a wrong type shows.

    check_selectors.py DECLARATIONS SDK

DECLARATIONS is the folder of the project's declarations. SDK is one with the names, the numbers of arguments and the
values of Apple's own SDK, as a generator for another language wrote them. GNUstep's headers, which other people wrote
from the same reference, have the types. What is not as in the SDK, and what GNUstep has otherwise, is listed beside
this file, each with the reason why it is believed all the same; and what the two have by another name.
"""

import os
import sys

import headers
import known
import sdk
from comparison import Comparison


def main(folder, sdk_folder):
    beside = os.path.dirname(os.path.abspath(__file__))
    errors = []
    lists = {}
    for name in ("sdk-apart", "different", "renamed", "sdk-renamed"):
        lists[name], complaints = known.read(os.path.join(beside, f"{name}.txt"))
        errors += complaints
    renamed = lists["renamed"]
    here = headers.declared(folder)
    comparison = Comparison(here, headers.gnustep(), renamed).run()
    missing = dict(sdk.missing(here, sdk.read(sdk_folder), lists["sdk-renamed"]))
    errors += known.complaints(comparison, missing, lists["sdk-apart"], lists["different"], renamed)
    for line in errors:
        print(line)
    print(
        f"{comparison.agreeing} declarations agree with GNUstep's, {len(comparison.renamed)} of them by an "
        f"older name; {len(comparison.absent)} it has not, {len(comparison.different)} differ. "
        f"{len(missing)} are not as in the SDK."
    )
    return 1 if errors or comparison.agreeing == 0 else 0


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1], sys.argv[2]))
