#!/usr/bin/env python3
"""The real program goes on when the system tells it that a file has grown too large.

    signal_test.py EDITOR

Exit code: 0 when it does, 1 when it does not.
"""

import os
import signal
import subprocess
import sys
import time

PATIENCE = 60
QUIET = 0.5


def ignores(pid, number):
    with open(f"/proc/{pid}/status", encoding="ascii") as status:
        mask = next(line.split()[1] for line in status if line.startswith("SigIgn:"))
    return bool(int(mask, 16) >> (number - 1) & 1)


def processor_time(pid):
    with open(f"/proc/{pid}/stat", encoding="ascii", errors="replace") as stat:
        return stat.read().rsplit(")", 1)[1].split()[11:13]


def wait_until_idle(process):
    """Until the program is up: it waits for its user and uses no more processor time."""
    deadline = time.monotonic() + PATIENCE
    before = None
    while time.monotonic() < deadline and process.poll() is None:
        now = processor_time(process.pid)
        if now == before and ignores(process.pid, signal.SIGXFSZ):
            return True
        before = now
        time.sleep(QUIET)
    return False


def main():
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    # Python itself ignores the signal; what is started from here has it as the system sets it.
    with subprocess.Popen([sys.argv[1]], env=environment, restore_signals=True) as process:
        idle = wait_until_idle(process)
        process.send_signal(signal.SIGXFSZ)
        time.sleep(QUIET)
        alive = process.poll() is None
        process.terminate()
    print(f"idle with the signal ignored: {idle}, alive after the signal: {alive}")
    return 0 if idle and alive else 1


if __name__ == "__main__":
    sys.exit(main())
