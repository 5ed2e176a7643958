#!/usr/bin/env python3
"""Checks that the links in the documents work, and that what they show of the tour is correct."""

import os
import re
import sys
import unittest

ROOT = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
sys.path.append(os.path.join(ROOT, "tests", "e2e"))

import flows
import pictures

LINK = re.compile(r"(!?)\[([^\]]*)\]\(([^)\s]+)\)")
HEADING = re.compile(r"^#+ (.*)$", re.MULTILINE)
CODE = re.compile(r"```.*?```|`[^`\n]*`", re.DOTALL)
ELSEWHERE = re.compile(r"[a-z]+:")
MOST_BYTES_OF_PICTURES = 700_000


def documents():
    """Every Markdown document, by its path from the root."""
    folders = ("", "docs")
    return {os.path.join(folder, name): read(os.path.join(folder, name)) for folder in folders
            for name in os.listdir(os.path.join(ROOT, folder)) if name.endswith(".md")}


def read(path):
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        return file.read()


def links():
    """The document, picture mark, text and target of every link to a file here."""
    for path, text in documents().items():
        for mark, words, target in LINK.findall(CODE.sub("", text)):
            if not ELSEWHERE.match(target):
                yield path, mark, words, target


def anchors(text):
    """The link targets in a document: its headings in lower case, joined by hyphens."""
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")
            for heading in HEADING.findall(text)}


class Links(unittest.TestCase):
    def test_there_are_some(self):
        self.assertLessEqual({"README.md", os.path.join("docs", "guide.md")}, set(documents()))
        self.assertGreater(len(list(links())), 20)

    def test_every_link_points_to_a_file_and_a_heading(self):
        for path, _, _, target in links():
            with self.subTest(document=path, target=target):
                name, _, anchor = target.partition("#")
                there = os.path.normpath(os.path.join(os.path.dirname(path), name)) if name else path
                self.assertTrue(os.path.exists(os.path.join(ROOT, there)))
                if anchor:
                    self.assertIn(anchor, anchors(read(there)))


class Pictures(unittest.TestCase):
    def test_every_picture_is_shown(self):
        kept = {name for name in os.listdir(pictures.FOLDER)}
        self.assertEqual(kept, {f"{name}.png" for name in pictures.shown()})

    def test_every_picture_has_a_description(self):
        for path, mark, words, target in links():
            if mark:
                with self.subTest(document=path, picture=target):
                    self.assertGreaterEqual(len(words.split()), 4)

    def test_they_are_small(self):
        sizes = [os.path.getsize(pictures.stored(name)) for name in pictures.shown()]
        self.assertLess(sum(sizes), MOST_BYTES_OF_PICTURES)


class FirstEnding(unittest.TestCase):
    def test_the_lines_in_the_guide_match_the_file_of_the_tour(self):
        guide = read(os.path.join("docs", "guide.md"))
        section = guide.split("### What lands in the file")[1].split("\n#")[0]
        rows = "".join(line for line in section.splitlines() if line.startswith("|"))
        self.assertEqual(re.findall(r"`([^`]*)`", rows), flows.NORMAL_ENDING)


if __name__ == "__main__":
    unittest.main()
