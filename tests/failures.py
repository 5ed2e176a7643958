#!/usr/bin/python3
"""Prints the last output lines of each failed test in a result file.

Usage: failures.py RESULTS   (as "ctest --output-junit" writes them)
"""

import sys
import xml.etree.ElementTree

LINES = 20


def main():
    for test in xml.etree.ElementTree.parse(sys.argv[1]).iter("testcase"):
        if test.find("failure") is not None:
            output = (test.findtext("system-out") or "").splitlines()
            print(f'\n{test.get("name")} failed:', *output[-LINES:], sep="\n")


if __name__ == "__main__":
    main()
