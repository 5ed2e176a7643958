"""A folder that serves dpkg as a whole system: what is installed there touches nothing else."""

import glob
import os
import shutil
import subprocess

DATABASE = "var/lib/dpkg"


class ScratchSystem:
    """It counts as installed whatever is on this machine, so that dpkg itself judges dependencies,
    and it owns no file of that. Works with and without root rights."""

    def __init__(self, root):
        self.root = root
        self._database = os.path.join(root, DATABASE)
        for name in ("info", "updates", "triggers"):
            os.makedirs(os.path.join(self._database, name))
        self._copy_status()
        for listed in glob.glob(f"/{DATABASE}/info/*.list"):
            open(os.path.join(self._database, "info", os.path.basename(listed)), "wb").close()

    def _copy_status(self):
        """A package of ours that is on this machine is left out: the test installs its own."""
        with open(f"/{DATABASE}/status", encoding="utf-8") as status:
            packages = status.read().split("\n\n")
        with open(os.path.join(self._database, "status"), "w", encoding="utf-8") as status:
            status.write("\n\n".join(each for each in packages
                                     if not each.startswith("Package: tarvold-editor\n")))
        foreign = f"/{DATABASE}/arch"
        if os.path.exists(foreign):
            shutil.copy(foreign, self._database)

    def path(self, path):
        """Where a path of this system is on the machine."""
        return self.root + path

    def files(self):
        """All that is there, folders too, but for dpkg's own notes."""
        found = set()
        for folder, folders, names in os.walk(self.root):
            if folder == self._database:
                folders.clear()
                continue
            found.update(os.path.join(folder, name)[len(self.root):] for name in folders + names)
        return found

    def dpkg(self, *what):
        """Runs dpkg; its warnings are errors. A machine that leaves documents out does not here."""
        # What dpkg looks for on its way is not on every user's search path.
        environment = dict(os.environ, LC_ALL="C.UTF-8", HOME=self.root,
                           PATH="/usr/sbin:/sbin:" + os.environ["PATH"])
        run = subprocess.run(["dpkg", "--root=" + self.root, "--force-not-root", "--log=/dev/null",
                              "--path-include=/*", *what],
                             env=environment, capture_output=True, text=True, check=False)
        if run.returncode != 0 or run.stderr:
            raise RuntimeError(f"dpkg {what}: status {run.returncode}: {run.stdout}{run.stderr}")
