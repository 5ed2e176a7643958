#!/usr/bin/env python3
"""Checks the file of the Windows program: size, dependencies, hardening and resources.

    program_test.py PROGRAM VERSION OBJDUMP

Reads the program itself, as a compiler or linker flag that gets lost goes unnoticed.
"""

import os
import re
import struct
import subprocess
import sys
import unittest

MOST_BYTES = 20_000_000

# The libraries that Windows 10 and later know (KnownDLLs), and so never look for in the program's
# folder. No compiler runtime, and no Qt.
KNOWN = {
    "advapi32", "combase", "gdi32", "imm32", "kernel32", "msvcrt", "ole32", "oleaut32",
    "shcore", "shell32", "shlwapi", "user32", "ws2_32",
}
PARTS_OF_WINDOWS = "api-ms-win-core-"  # aliases of libraries, which are in no folder

# Address space layout randomization with 64 bits, and non-executable data.
CHARACTERISTICS = {"HIGH_ENTROPY_VA", "DYNAMIC_BASE", "NX_COMPAT"}

# The structure by which the program tells Windows where to look for libraries.
LOAD_CONFIGURATION = ".loadcfg"
LIBRARIES_FROM = 78  # DependentLoadFlags
SYSTEM_FOLDER = 0x800  # LOAD_LIBRARY_SEARCH_SYSTEM32

ICONS, ICON, VERSION, MANIFEST = 14, 3, 16, 24  # resource types of Windows
RESOURCE_DIRECTORY = struct.Struct("<12x2H")
RESOURCE_ENTRY = struct.Struct("<2I")
IS_DIRECTORY = 1 << 31
FIXED_VERSION_MARK = struct.pack("<I", 0xFEEF04BD)
# After the mark and the structure version: the file version, minor part first.
FIXED_VERSION = struct.Struct("<8x4H")


class WindowsProgram(unittest.TestCase):
    program = version = objdump = ""

    @classmethod
    def setUpClass(cls):
        cls.headers = cls.read("-p")
        cls.sections = {row[1]: row for row in map(str.split, cls.read("-h").splitlines())
                        if len(row) == 7}
        _, _, size, _, _, start, _ = cls.sections.get(".rsrc", "0" * 7)
        with open(cls.program, "rb") as file:
            file.seek(int(start, 16))
            cls.resources = file.read(int(size, 16))

    @classmethod
    def read(cls, what):
        return subprocess.run([cls.objdump, what, cls.program], check=True, capture_output=True,
                              text=True).stdout

    def test_is_small(self):
        self.assertLessEqual(os.path.getsize(self.program), MOST_BYTES)

    def test_starts_with_known_libraries_alone(self):
        names = re.findall(r"DLL Name: (\S+)\.(?:dll|drv)$", self.headers, re.MULTILINE | re.I)
        self.assertIn("kernel32", [name.lower() for name in names])
        self.assertEqual(len(names), self.headers.count("DLL Name:"))
        others = {name.lower() for name in names} - KNOWN
        self.assertEqual([name for name in others if not name.startswith(PARTS_OF_WINDOWS)], [])

    def test_takes_libraries_from_the_system_folder(self):
        place, size = re.search(r"^Entry a (\w+) (\w+) Load Config", self.headers, re.M).groups()
        _, _, _, address, _, start, _ = self.sections[LOAD_CONFIGURATION]
        base = int(re.search(r"^ImageBase\s+(\w+)", self.headers, re.M)[1], 16)
        self.assertEqual(int(place, 16), int(address, 16) - base)
        with open(self.program, "rb") as file:
            file.seek(int(start, 16))
            configuration = file.read(int(size, 16))
        self.assertEqual(struct.unpack_from("<I", configuration), (len(configuration),))
        self.assertEqual(struct.unpack_from("<H", configuration, LIBRARIES_FROM), (SYSTEM_FOLDER,))

    def test_is_a_64_bit_program(self):
        self.assertEqual(re.search(r"file format (\S+)", self.headers)[1], "pei-x86-64")

    def test_opens_no_console(self):
        self.assertEqual(re.search(r"^Subsystem\s+\w+\s+\((.*)\)", self.headers, re.MULTILINE)[1],
                         "Windows GUI")

    def test_has_aslr_and_nx(self):
        flags = re.search(r"DllCharacteristics\s+\w+\n((?:\t+\w+\n)*)", self.headers)[1]
        self.assertLessEqual(CHARACTERISTICS, set(flags.split()))

    def test_has_relocations(self):
        self.assertEqual(re.findall("relocations stripped", self.headers), [])
        self.assertIn(".reloc", self.sections)

    def test_has_an_icon_in_several_sizes(self):
        self.assertEqual(len(self.resources_of(ICONS)), 1)
        self.assertGreaterEqual(len(self.resources_of(ICON)), 4)

    def test_has_a_manifest(self):
        self.assertEqual(len(self.resources_of(MANIFEST)), 1)
        self.assertTrue(b"PerMonitorV2" in self.resources)
        # Data files need the system's own code page.
        self.assertFalse(b"<activeCodePage" in self.resources)

    def test_has_its_version(self):
        self.assertEqual(len(self.resources_of(VERSION)), 1)
        wanted = [*map(int, self.version.split(".")), 0]
        minor, major, build, patch = FIXED_VERSION.unpack_from(
            self.resources, self.resources.index(FIXED_VERSION_MARK))
        self.assertEqual([major, minor, patch, build], wanted)
        for name in ("FileVersion", "ProductVersion"):
            self.assertTrue(self.text_of_version(name).startswith(self.version), name)
        self.assertEqual(self.text_of_version("ProductName"), "Tarvold Data Editor")

    def text_of_version(self, name):
        key = name.encode("utf-16-le") + b"\0\0"
        start = self.resources.index(key) + len(key)
        start += start % 4  # values are aligned to four bytes
        return self.resources[start:].decode("utf-16-le", "replace").lstrip("\0").split("\0")[0]

    def resources_of(self, kind):
        """The entries of all resources of a type, from the directory at the start of the section."""
        kinds = dict(self.entries(0)) if self.resources else {}
        return list(self.entries(kinds[kind] & ~IS_DIRECTORY)) if kind in kinds else []

    def entries(self, start):
        named, numbered = RESOURCE_DIRECTORY.unpack_from(self.resources, start)
        for index in range(named + numbered):
            yield RESOURCE_ENTRY.unpack_from(
                self.resources, start + RESOURCE_DIRECTORY.size + index * RESOURCE_ENTRY.size)


if __name__ == "__main__":
    WindowsProgram.objdump = sys.argv.pop()
    WindowsProgram.version = sys.argv.pop()
    WindowsProgram.program = sys.argv.pop()
    unittest.main()
