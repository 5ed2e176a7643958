#!/usr/bin/env python3
"""Starts the Windows programs in a folder that has libraries of the names of those of Windows, as
mods of a game put them there, and fails if one gets loaded.

    foreign_libraries_test.py DISK LIBRARY CARELESS EDITOR RECORDS

LIBRARY leaves a file wherever it is loaded; CARELESS is a program that loads all it is told. The
programs run under Wine with the folder DISK as its disk.
"""

import glob
import os
import shutil
import sys
import tempfile
import unittest

from window import OnOwnDisplay, Shown, run

MARK = ".loaded"

# What the programs use, and what mods or installers are known to replace.
NAMES = """
    authz.dll comctl32.dll cryptbase.dll cryptsp.dll d2d1.dll d3d10.dll d3d11.dll d3d12.dll d3d8.dll
    d3d9.dll d3dcompiler_47.dll dbghelp.dll dcomp.dll ddraw.dll dinput8.dll dsound.dll dwmapi.dll
    dwrite.dll dxgi.dll hid.dll iphlpapi.dll mpr.dll msimg32.dll netapi32.dll netutils.dll opengl32.dll
    profapi.dll propsys.dll secur32.dll srvcli.dll sspicli.dll uiautomationcore.dll userenv.dll
    uxtheme.dll version.dll windowscodecs.dll winhttp.dll wininet.dll winmm.dll winmmbase.dll
    winspool.drv winsta.dll wintypes.dll wkscli.dll wtsapi32.dll xinput1_3.dll
""".split()
OFFERED = [name for name in NAMES if name != "version.dll"]  # which Wine's own programs depend on


class ForeignLibraries(OnOwnDisplay):
    library = careless = editor = records = ""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        for name in NAMES:
            shutil.copy(self.library, os.path.join(self.folder, name))

    def copy_of(self, program):
        return shutil.copy(program, self.folder)

    def loaded(self):
        return sorted(os.path.basename(each).removesuffix(MARK)
                      for each in glob.glob(os.path.join(self.folder, "*" + MARK)))

    def test_the_editor_loads_none(self):
        with Shown(self.disk, "Tarvold 1.3 Data Editor", self.copy_of(self.editor),
                   folder=self.folder):
            self.assertEqual(self.loaded(), [])

    def test_records_in_a_window_loads_none(self):
        with Shown(self.disk, "Tarvold Records", self.copy_of(self.records), folder=self.folder):
            self.assertEqual(self.loaded(), [])

    def test_records_without_a_window_loads_none(self):
        done = run(self.disk, self.copy_of(self.records), "--version", folder=self.folder)
        self.assertEqual((done.returncode, done.stdout[:16]), (0, b"tarvold-records "))
        self.assertEqual(self.loaded(), [])

    def test_a_program_that_takes_them_from_anywhere_loads_them_all(self):
        """Shows that Wine, too, looks into the folder of the program first."""
        run(self.disk, self.copy_of(self.careless), *NAMES, folder=self.folder)
        self.assertEqual(self.loaded(), sorted(OFFERED))


if __name__ == "__main__":
    (ForeignLibraries.disk, ForeignLibraries.library, ForeignLibraries.careless,
     ForeignLibraries.editor, ForeignLibraries.records) = map(os.path.abspath, sys.argv[1:6])
    del sys.argv[1:6]
    # Otherwise Wine takes its own library for some names, wherever another is.
    os.environ["WINEDLLOVERRIDES"] = ",".join(OFFERED) + "=n,b"
    unittest.main()
