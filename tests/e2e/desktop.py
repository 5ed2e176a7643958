"""A private virtual display with a window manager and an accessibility bus."""

import os
import select
import subprocess
import tempfile

WIDTH, HEIGHT = 1366, 768

FONTS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "fonts.conf")
# Variables by which a user's session sets style, size, colours and language.
TASTES = ("QT_", "XDG_CURRENT_DESKTOP", "XDG_CONFIG", "XDG_DATA", "DESKTOP_SESSION", "KDE_",
          "GNOME_", "GTK", "LANG", "LC_", "XMODIFIERS", "RESOURCE_NAME")


def plain_environment():
    """Returns an environment in which the program looks the same on every machine."""
    kept = {name: value for name, value in os.environ.items() if not name.startswith(TASTES)}
    return {**kept, "LC_ALL": "C.UTF-8", "FONTCONFIG_FILE": FONTS, "QT_QPA_PLATFORM": "xcb",
            "QT_FONT_DPI": "96", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}


class Desktop:
    """A context manager. Inside its `with` block DISPLAY, the bus address and the runtime folder are
    set, as in a login session."""

    def __init__(self, log):
        self._log = log
        self._processes = []
        self._runtime = tempfile.TemporaryDirectory()

    def __enter__(self):
        try:
            os.environ["XDG_RUNTIME_DIR"] = self._runtime.name
            os.environ["DISPLAY"] = self._start_display()
            os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._start_bus()
            self._start_window_manager()
            self._park_pointer()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self._processes):
            process.terminate()
            process.wait()
        self._runtime.cleanup()

    def _start(self, *command, **options):
        process = subprocess.Popen(command, stderr=self._log, **options)
        self._processes.append(process)
        return process

    def _start_display(self):
        # The server picks a free display number and reports it once it is ready. Auto-repeat is off,
        # as a busy machine may hold keys down for long.
        reader, writer = os.pipe()
        self._start("Xvfb", "-displayfd", str(writer), "-nolisten", "tcp",
                    "-dpi", "96", "-wr", "-r", "-screen", "0", f"{WIDTH}x{HEIGHT}x24", pass_fds=[writer])
        os.close(writer)
        with open(reader, encoding="ascii") as answer:
            return ":" + answer.readline().strip()

    def _start_window_manager(self):
        # A window shown while the window manager starts would never appear.
        reader, writer = os.pipe()
        command = f"/bin/sh -c 'echo ready > /proc/{os.getpid()}/fd/{writer}'"
        self._start("openbox", "--sm-disable", "--startup", command, stdout=self._log)
        ready, _, _ = select.select([reader], [], [], 60)
        os.close(reader)
        os.close(writer)
        if not ready:
            raise RuntimeError("the window manager did not start")

    def _park_pointer(self):
        # At its initial position, windows would open under it.
        subprocess.run(["xdotool", "mousemove", "--sync", str(WIDTH - 1), str(HEIGHT - 1)],
                       stderr=self._log, check=True)

    def _start_bus(self):
        bus = self._start("dbus-daemon", "--session", "--nofork", "--print-address",
                          stdout=subprocess.PIPE, text=True)
        with bus.stdout as answer:
            return answer.readline().strip()
