#!/usr/bin/python3
"""Prints what each failed test of a result file said last.

Usage: failures.py RESULTS   (as "ctest --output-junit" writes them)
"""

import sys
import xml.etree.ElementTree

LINES = 20


def main():
    for test in xml.etree.ElementTree.parse(sys.argv[1]).iter("testcase"):
        if test.find("failure") is not None:
            said = (test.findtext("system-out") or "").splitlines()
            print(f'\n{test.get("name")} failed:', *said[-LINES:], sep="\n")


if __name__ == "__main__":
    main()
