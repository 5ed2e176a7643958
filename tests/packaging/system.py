"""A folder that dpkg uses as its root: installing there does not change the real system."""

import glob
import os
import shutil
import subprocess

DATABASE = "var/lib/dpkg"


class ScratchSystem:
    """A root folder whose package database is a copy of this machine's, so that dpkg can check
    dependencies, but lists no files. Works with and without root permissions."""

    def __init__(self, root):
        self.root = root
        self._database = os.path.join(root, DATABASE)
        for name in ("info", "updates", "triggers"):
            os.makedirs(os.path.join(self._database, name))
        self._copy_status()
        for listed in glob.glob(f"/{DATABASE}/info/*.list"):
            open(os.path.join(self._database, "info", os.path.basename(listed)), "wb").close()

    def _copy_status(self):
        """Copies the database without this program's package, which the test installs itself."""
        with open(f"/{DATABASE}/status", encoding="utf-8") as status:
            packages = status.read().split("\n\n")
        with open(os.path.join(self._database, "status"), "w", encoding="utf-8") as status:
            status.write("\n\n".join(each for each in packages
                                     if not each.startswith("Package: tarvold-editor\n")))
        foreign = f"/{DATABASE}/arch"
        if os.path.exists(foreign):
            shutil.copy(foreign, self._database)

    def path(self, path):
        """The real path of a path in this system."""
        return self.root + path

    def files(self):
        """The paths of all files and folders, except the dpkg database."""
        found = set()
        for folder, folders, names in os.walk(self.root):
            if folder == self._database:
                folders.clear()
                continue
            found.update(os.path.join(folder, name)[len(self.root):] for name in folders + names)
        return found

    def dpkg(self, *what):
        """Runs dpkg; warnings are errors. Installs documents even if the machine is set to skip them."""
        # Not every user has the tools that dpkg calls on PATH.
        environment = dict(os.environ, LC_ALL="C.UTF-8", HOME=self.root,
                           PATH="/usr/sbin:/sbin:" + os.environ["PATH"])
        run = subprocess.run(["dpkg", "--root=" + self.root, "--force-not-root", "--log=/dev/null",
                              "--path-include=/*", *what],
                             env=environment, capture_output=True, text=True, check=False)
        if run.returncode != 0 or run.stderr:
            raise RuntimeError(f"dpkg {what}: status {run.returncode}: {run.stdout}{run.stderr}")
