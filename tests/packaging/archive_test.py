#!/usr/bin/env python3
"""Tests the archive of programs of one file, above all that its notices cover all linked libraries.

    archive_test.py linux|windows FOLDER VERSION

FOLDER is the one in which the build script of packaging/linux or packaging/windows works.
"""

import os
import re
import subprocess
import sys
import tarfile
import tempfile
import unittest
import zipfile

ROOT = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
LINK = re.compile(r"\]\(([^)\s#:]+)(?:#[^)]*)?\)")
# Libraries in the programs, with words of their licence or of the notice that it requires.
LINKED = {
    "Qt": "GNU LESSER GENERAL PUBLIC LICENSE",
    "HarfBuzz-NG": "HarfBuzz is licensed under the so-called \"Old MIT\" license.",
    "LibPNG": "PNG Reference Library License version 2",
    "PCRE2": "PCRE2 is a library of functions to support regular expressions",
    "Data Compression Library (zlib)": "Jean-loup Gailly",
    "The runtime libraries of the GNU Compiler Collection": "GCC RUNTIME LIBRARY EXCEPTION",
}
LINKED_FOR = {
    "linux": {
        "The X client library libxcb": "Bart Massey",
        "The X client libraries xcb-util": "Permission is hereby granted",
        "The X library libXau": "The Open Group",
        "The X library libXdmcp": "The Open Group",
        "The keyboard library libxkbcommon": "Permission is hereby granted",
    },
    "windows": {
        "Freetype 2": "The FreeType Project (www.freetype.org)",
        "The runtime library of mingw-w64": "ZPL-2.1",
    },
}
SUFFIXES = {"linux": "", "windows": ".exe"}
MAPS = ("tarvold-editor.map", "tarvold-records.map")


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def unpack(path):
    """The content of each file of an archive, by its path."""
    if path.endswith(".zip"):
        with zipfile.ZipFile(path) as archive:
            return {name: archive.read(name) for name in archive.namelist() if not name.endswith("/")}
    with tarfile.open(path) as archive:
        return {each.name: archive.extractfile(each).read() for each in archive if each.isfile()}


class Archive(unittest.TestCase):
    platform = folder = version = ""

    def setUp(self):
        name = f"tarvold-editor-{self.version}-{self.platform}"
        ending = {"linux": ".tar.gz", "windows": ".zip"}[self.platform]
        self.files = {os.path.relpath(path, name): content for path, content
                      in unpack(os.path.join(self.folder, name + ending)).items()}

    def test_has_the_programs_and_their_documents(self):
        top = {path.split("/")[0] for path in self.files}
        programs = {name + SUFFIXES[self.platform] for name in ("tarvold-editor", "tarvold-records")}
        more = {"linux": {"install.sh", "share"}, "windows": set()}[self.platform]
        self.assertEqual(top, programs | more | {"LICENSE.txt", "NOTICES.txt", "docs", "examples"})
        for name in programs:
            with open(os.path.join(self.folder, name), "rb") as program:
                self.assertEqual(self.files[name], program.read())

    def test_has_all_files_that_its_documents_link_to(self):
        documents = [path for path in self.files if path.endswith(".md")]
        self.assertIn("docs/guide.md", documents)
        for document in documents:
            for target in LINK.findall(self.files[document].decode()):
                with self.subTest(document=document, target=target):
                    place = os.path.normpath(os.path.join(os.path.dirname(document), target))
                    self.assertIn(place, self.files)

    def test_has_notices_with_the_line_ends_of_the_system(self):
        notices = self.files["NOTICES.txt"]
        windows = notices.count(b"\n") if self.platform == "windows" else 0
        self.assertEqual(notices.count(b"\r\n"), windows)


class Notices(unittest.TestCase):
    platform = folder = ""

    def write_notices(self, change):
        """Writes the notices from changed maps; returns the finished process and the parts."""
        with tempfile.TemporaryDirectory() as scratch:
            maps = [os.path.join(scratch, name) for name in MAPS]
            for path in maps:
                text = read(os.path.join(self.folder, "packaging", self.platform, os.path.basename(path)))
                with open(path, "w", encoding="utf-8") as file:
                    file.write(change(text))
            script = os.path.join(ROOT, "packaging", "notices")
            output = os.path.join(scratch, "NOTICES.txt")
            done = subprocess.run([sys.executable, "-B", script, self.platform, *maps, self.folder, output],
                                  check=False, capture_output=True, text=True)
            text = read(output) if done.returncode == 0 else ""
        return done, {part.strip().splitlines()[0]: part for part in text.split("=" * 78) if text}

    def test_cover_all_linked_libraries(self):
        done, parts = self.write_notices(lambda text: text)
        self.assertEqual(done.returncode, 0, done.stderr)
        linked = LINKED | LINKED_FOR[self.platform]
        self.assertLessEqual(set(linked), set(parts))
        for name, words in linked.items():
            with self.subTest(name):
                self.assertIn(words, "\n".join(parts.values()) if name in ("Qt", "Freetype 2")
                              else parts[name])

    def test_cover_only_linked_libraries(self):
        # Works whose headers no library of Qt includes. Qt for Linux has no code generator of PCRE.
        compiler = "PCRE2 - Stack-less Just-In-Time Compiler"
        work, library = {"linux": ("The X library libXau", "libXau"),
                         "windows": (compiler, "libQt6BundledPcre2")}[self.platform]
        _, parts = self.write_notices(lambda text: text)
        self.assertIn(work, list(parts))
        self.assertEqual(compiler in parts, self.platform == "windows")
        _, parts = self.write_notices(lambda text: re.sub(rf"(?m)^\S*{library}\.a.*$", "", text))
        self.assertNotIn(work, list(parts))
        self.assertIn("HarfBuzz-NG", list(parts))

    def test_fail_for_an_unknown_library(self):
        done, _ = self.write_notices(lambda text: "/opt/somebody/libnew.a(new.o)\n" + text)
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("/opt/somebody/libnew.a", done.stderr)


if __name__ == "__main__":
    Archive.version = sys.argv.pop()
    Archive.folder = Notices.folder = sys.argv.pop()
    Archive.platform = Notices.platform = sys.argv.pop()
    unittest.main()
