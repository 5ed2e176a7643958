#!/usr/bin/python3
"""Builds the Debian package of a release build, checks it, and installs and removes it.

    package_test.py SOURCE_FOLDER BUILD_FOLDER VERSION

All files are written to BUILD_FOLDER/tests/packaging; the system is not changed.
"""

import configparser
import glob
import gzip
import os
import re
import shutil
import stat
import subprocess
import sys
import tarfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path += [os.path.join(HERE, "..", "e2e")]

from desktop import Desktop  # noqa: E402
from driver import SCREEN_TITLE, Driver  # noqa: E402
from steps import MENU  # noqa: E402
from system import ScratchSystem  # noqa: E402

NAME = "tarvold-editor"
RECORDS = "tarvold-records"
PROGRAMS = (NAME, RECORDS)
APPLICATION = "org.example.tarvold.editor"
DOCUMENTS = f"/usr/share/doc/{NAME}"
PAGES = [f"/usr/share/man/man1/{program}.1.gz" for program in PROGRAMS]
DESKTOP_ENTRY = f"/usr/share/applications/{APPLICATION}.desktop"
RECORDS_ENTRY = "/usr/share/applications/org.example.tarvold.records.desktop"
MIME_TYPE = "application/x-tarvold-data"
METAINFO = f"/usr/share/metainfo/{APPLICATION}.metainfo.xml"
LINK = re.compile(r"\]\(([^)\s#]+)[^)]*\)")


def run(*command, **options):
    """Runs a command that must succeed and returns its output."""
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          check=False, **options)
    if done.returncode != 0:
        raise AssertionError(f"{command}: status {done.returncode}\n{done.stdout}")
    return done.stdout


def setUpModule():
    """Builds the package, with a restrictive umask, and unpacks it."""
    shutil.rmtree(Package.work, ignore_errors=True)
    os.makedirs(Package.work)
    run("cpack", "-G", "DEB", "-B", Package.work, cwd=Package.build, umask=0o077)
    (Package.file,) = glob.glob(Package.work + "/*.deb")
    run("dpkg-deb", "--extract", Package.file, Package.tree)


class Package(unittest.TestCase):
    """Paths that the tests share."""

    maxDiff = None
    source = build = version = work = tree = file = ""

    def unpacked(self, path):
        return self.tree + path

    def desktop_entry(self, path=DESKTOP_ENTRY):
        entry = configparser.ConfigParser(interpolation=None)
        entry.read(self.unpacked(path))
        return entry["Desktop Entry"]

    def expected(self):
        """The expected permissions of files and folders, by path."""
        with open(os.path.join(HERE, "files.txt"), encoding="utf-8") as listed:
            lines = [line.split() for line in listed if not line.startswith("#")]
        files = {path: mode for mode, path in lines}
        docs = os.path.join(self.source, "docs")
        for pattern in ("*.md", "*/*.png"):
            for file in glob.glob(os.path.join(docs, pattern)):
                files[f"{DOCUMENTS}/{os.path.relpath(file, docs)}"] = "644"
        folders = set()
        for path in files:
            while (path := os.path.dirname(path)) != "/":
                folders.add(path)
        return files | dict.fromkeys(folders, "755")


class Contents(Package):

    def test_has_exactly_the_listed_files_and_permissions(self):
        with subprocess.Popen(["dpkg-deb", "--fsys-tarfile", self.file],
                              stdout=subprocess.PIPE) as reader:
            entries = list(tarfile.open(fileobj=reader.stdout, mode="r|"))
        self.assertEqual({each.name[1:]: f"{each.mode:o}" for each in entries}, self.expected())
        self.assertEqual({(each.uname, each.gname) for each in entries}, {("root", "root")})
        self.assertEqual({each.type for each in entries}, {tarfile.REGTYPE, tarfile.DIRTYPE})

    def test_has_the_same_files_as_an_installation_from_source(self):
        prefix = os.path.join(self.work, "prefix")
        run("cmake", "--install", self.build, "--prefix", prefix, umask=0o022)
        installed = {}
        for folder, folders, names in os.walk(prefix):
            for path in (os.path.join(folder, name) for name in folders + names):
                mode = stat.S_IMODE(os.lstat(path).st_mode)
                installed["/usr" + path[len(prefix):]] = f"{mode:o}"
        self.assertEqual(installed | {"/usr": "755"}, self.expected())

    def test_links_in_documents_lead_to_packaged_files(self):
        documents = glob.glob(self.unpacked(DOCUMENTS) + "/*.md")
        links = 0
        for document in documents:
            with open(document, encoding="utf-8") as text:
                found = LINK.findall(text.read())
            for link in (each for each in found if not re.match(r"\w+:", each)):
                target = os.path.join(os.path.dirname(document), link)
                self.assertTrue(os.path.exists(target), f"{document}: {link}")
                links += 1
        self.assertGreater(links, 0)

    def test_paths_in_the_man_pages_are_packaged(self):
        for page, count in zip(PAGES, (2, 1)):
            with gzip.open(self.unpacked(page), "rt", encoding="utf-8") as unzipped:
                text = unzipped.read().replace("\\-", "-")
            paths = [path.rstrip(".") for path in re.findall(r"/usr/share/\S+", text)]
            self.assertEqual(len(paths), count)
            for path in paths + [f"{DOCUMENTS}/{name}" for name in re.findall(r"[\w-]+\.md", text)]:
                self.assertTrue(os.path.exists(self.unpacked(path)), path)

    def test_screenshots_in_the_metainfo_are_packaged(self):
        with open(self.unpacked(METAINFO), encoding="utf-8") as text:
            pictures = re.findall(r"<image type=\"source\">\S+/(pictures/\S+)</image>", text.read())
        self.assertGreater(len(pictures), 1)
        for picture in pictures:
            self.assertTrue(os.path.exists(self.unpacked(f"{DOCUMENTS}/{picture}")), picture)

    def test_programs_and_icons_of_the_desktop_entries_are_packaged(self):
        for path, command in ((DESKTOP_ENTRY, [NAME]), (RECORDS_ENTRY, [RECORDS, "%F"])):
            entry = self.desktop_entry(path)
            self.assertEqual(entry["Exec"].split(), command)
            self.assertTrue(os.access(self.unpacked("/usr/bin/" + command[0]), os.X_OK))
            icons = glob.glob(self.unpacked(f"/usr/share/icons/hicolor/*/apps/{entry['Icon']}.*"))
            self.assertEqual(len(icons), 4)

    def test_all_files_have_the_version_of_the_program(self):
        versions = {"the package": run("dpkg-deb", "--field", self.file, "Version").strip()}
        for path, pattern in (*((page, r'"Tarvold ([\d.]+)"') for page in PAGES),
                              (f"{DOCUMENTS}/changelog.gz", r"^tarvold-editor \(([\d.]+)\)")):
            with gzip.open(self.unpacked(path), "rt", encoding="utf-8") as text:
                versions[path] = re.search(pattern, text.read(), re.M)[1]
        with open(self.unpacked(METAINFO), encoding="utf-8") as text:
            versions[METAINFO] = re.search(r'<release version="([\d.]+)"', text.read())[1]
        told = run(self.unpacked(f"/usr/bin/{RECORDS}"), "--version")
        versions[RECORDS] = re.fullmatch(r"tarvold-records ([\d.]+)\n", told)[1]
        self.assertEqual(versions, dict.fromkeys(versions, self.version))

    def test_the_packaged_programs_are_hardened(self):
        hardening = os.path.join(HERE, "..", "hardening", "hardening_test.py")
        for program in PROGRAMS:
            run(sys.executable, "-B", hardening, self.unpacked(f"/usr/bin/{program}"))

    def test_the_packaged_program_finds_no_problem_in_the_examples(self):
        examples = glob.glob(self.unpacked(f"{DOCUMENTS}/examples/*.tvd"))
        self.assertEqual(len(examples), 6)
        self.assertEqual(run(self.unpacked(f"/usr/bin/{RECORDS}"), "--check", *examples), "")


class Validators(Package):

    def test_the_desktop_entries_have_no_findings(self):
        for path in (DESKTOP_ENTRY, RECORDS_ENTRY):
            self.assertEqual(run("desktop-file-validate", self.unpacked(path)), "")

    def test_the_desktop_opens_data_files_with_the_second_program(self):
        """Asks a desktop whose only folder is that of the package."""
        share = self.unpacked("/usr/share")
        data = os.path.join(self.work, "share")
        for folder in ("applications", "mime/packages"):
            shutil.copytree(os.path.join(share, folder), os.path.join(data, folder))
        environment = dict(os.environ, XDG_DATA_DIRS=data, XDG_DATA_HOME=data, LC_ALL="C.UTF-8",
                           PATH=os.path.join(self.tree, "usr/bin") + ":" + os.environ["PATH"])
        # Errors in the files are only printed.
        for tool, folder in (("update-mime-database", "mime"),
                             ("update-desktop-database", "applications")):
            self.assertEqual(run(tool, os.path.join(data, folder), env=environment), "")
        ask = ("from gi.repository import Gio\n"
               "kind, _ = Gio.content_type_guess('some.tvd', None)\n"
               "print(kind, Gio.content_type_get_description(kind))\n"
               "print(*(app.get_id() for app in Gio.AppInfo.get_all_for_type(kind)))\n")
        self.assertEqual(run(sys.executable, "-c", ask, env=environment).splitlines(),
                         [f"{MIME_TYPE} Tarvold data file", "org.example.tarvold.records.desktop"])

    def test_the_metainfo_has_no_findings(self):
        for what in (("validate", self.unpacked(METAINFO)), ("validate-tree", self.tree)):
            output = run("appstreamcli", what[0], "--no-net", "--pedantic", "--no-color", what[1])
            self.assertNotRegex(output, r"(?m)^\s*[EWIP]:")
            self.assertIn("Validation was successful.", output)

    def test_the_man_pages_have_no_findings(self):
        environment = dict(os.environ, LC_ALL="C.UTF-8", MANROFFSEQ="", MANWIDTH="80")
        for page in PAGES:
            done = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z",
                                   self.unpacked(page)], env=environment, capture_output=True,
                                  text=True, check=True)
            self.assertEqual(done.stderr, "")
            self.assertIn("TARVOLD", done.stdout)

    def test_the_package_has_no_findings(self):
        output = run("lintian", "--allow-root", "--pedantic", "--display-info",
                   "--fail-on", "error,warning,info,pedantic", self.file)
        self.assertEqual(output, "")


class Installation(Package):

    @classmethod
    def setUpClass(cls):
        cls.system = ScratchSystem(os.path.join(cls.work, "system"))
        cls.before = cls.system.files()
        cls.system.dpkg("--install", cls.file)

    @classmethod
    def tearDownClass(cls):
        cls.system.dpkg("--purge", NAME)
        left = cls.system.files() - cls.before
        if left:
            raise AssertionError(f"removing the package leaves behind {sorted(left)}")

    def test_installs_all_files(self):
        self.assertEqual(self.system.files() - self.before, set(self.expected()))

    def test_starts_and_exits(self):
        program = self.system.path(f"/usr/bin/{NAME}")
        folder = os.path.join(self.work, "folder")
        os.mkdir(folder)
        with open(os.path.join(self.work, "start.log"), "w", encoding="utf-8") as log, Desktop(log):
            driver = Driver([program], folder, self.work, 60, log)
            try:
                driver.wait_screen(MENU)
                self.check_window(self.desktop_entry()["StartupWMClass"])
                driver.press("Exit")
                driver.wait_end()
            finally:
                driver.stop()
        self.assertEqual(os.listdir(folder), [])

    def check_window(self, window_class):
        """Expects the window to have the class of the desktop entry, and the icon in both sizes."""
        window = run("xdotool", "search", "--onlyvisible", "--name", f"^{SCREEN_TITLE}$").strip()
        properties = run("xprop", "-id", window, "WM_CLASS", "_NET_WM_ICON")
        self.assertIn(f'"{window_class}"', properties)
        self.assertEqual(set(re.findall(r"Icon \((\d+) x \d+\)", properties)), {"48", "128"})

    def test_man_finds_the_pages(self):
        environment = dict(os.environ, LC_ALL="C.UTF-8", MANWIDTH="80",
                           MANPATH=self.system.path("/usr/share/man"))
        page = run("man", NAME, env=environment)
        self.assertIn("tarvold-editor - write the content of a wrestling-promotion game", page)
        page = " ".join(run("man", RECORDS, env=environment).split())
        self.assertIn("tarvold-records - see, search, check and correct the data files", page)


if __name__ == "__main__":
    Package.version = sys.argv.pop()
    Package.build = os.path.abspath(sys.argv.pop())
    Package.source = os.path.abspath(sys.argv.pop())
    Package.work = os.path.join(Package.build, "tests", "packaging", "package")
    Package.tree = os.path.join(Package.work, "tree")
    unittest.main()
