#!/usr/bin/python3
"""Compares every declaration that the build for the Mac sees with the headers of GNUstep, which were
written from the same reference by other people: a misspelt selector or a wrong type shows.

    check_selectors.py DECLARATIONS

DECLARATIONS is the folder of the project's declarations. What GNUstep lacks or has otherwise is listed
beside this file, each with the reason why it is believed all the same, and what it has by an older name.
"""

import os
import sys

import headers
import known
from comparison import Comparison


def main(folder):
    beside = os.path.dirname(os.path.abspath(__file__))
    errors = []
    lists = {}
    for name in ("absent", "different", "renamed"):
        lists[name], complaints = known.read(os.path.join(beside, f"{name}.txt"))
        errors += complaints
    absent, different, renamed = lists["absent"], lists["different"], lists["renamed"]
    comparison = Comparison(headers.declared(folder), headers.gnustep(), renamed).run()
    errors += known.complaints(comparison, absent, different, renamed)
    for line in errors:
        print(line)
    print(f"{comparison.agreeing} declarations agree with GNUstep's, {len(comparison.renamed)} of them by an "
          f"older name; {len(comparison.absent)} it has not, {len(comparison.different)} differ.")
    return 1 if errors or comparison.agreeing == 0 else 0


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1]))
