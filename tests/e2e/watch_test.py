#!/usr/bin/env python3
"""Tests that the watch allows what the program may do and nothing else."""

import unittest

import watch

START = '7 execve("/opt/editor", ["/opt/editor"], 0x7ffd /* 45 vars */) = 0'
ALLOWED = (
    '7 openat(AT_FDCWD, "/etc/passwd", O_RDONLY|O_CLOEXEC) = 3',
    '7 openat(AT_FDCWD, "normreports.tvd", O_WRONLY|O_CREAT|O_APPEND|O_CLOEXEC, 0666) = 10',
    '8 openat(AT_FDCWD, "/home/a/my own.tvd", O_WRONLY|O_CREAT|O_APPEND|O_CLOEXEC, 0666) = 10',
    '7 openat(AT_FDCWD, "/home/a", O_WRONLY|O_CLOEXEC|O_TMPFILE, 0600) = 13',
    '7 linkat(AT_FDCWD, "/proc/self/fd/13", AT_FDCWD, "/home/a/s.tvd.1x2y3z", 0x400) = 0',
    '7 rename("/home/a/s.tvd.1x2y3z", "/home/a/s.tvd") = 0',
    '7 mkdir("/run/user/1000", 0700) = -1 EEXIST (File exists)',
    "7 socket(AF_UNIX, SOCK_STREAM|SOCK_CLOEXEC, 0) = 3",
    "7 clone3({flags=CLONE_VM|CLONE_FS|CLONE_THREAD|CLONE_SYSVSEM, stack=0x7f}, 88) = 9",
    '8 openat(AT_FDCWD, "/etc/group", O_RDONLY <unfinished ...>',
    "8 <... openat resumed>) = 3",
    '8 mkdir("/run/user/1000", 0700 <unfinished ...>',
    "8 <... mkdir resumed>) = -1 EEXIST (File exists)",
    "7 +++ exited with 0 +++",
)
FORBIDDEN = (
    '7 execve("/bin/sh", ["sh", "-c", "ls"], 0x7ffd /* 45 vars */) = 0',
    "7 clone(child_stack=NULL, flags=CLONE_CHILD_CLEARTID|SIGCHLD) = 9",
    "7 vfork() = 9",
    "7 socket(AF_INET, SOCK_STREAM, IPPROTO_TCP) = 3",
    "7 socket(AF_INET6, SOCK_DGRAM, 0) = 3",
    "7 socket(AF_NETLINK, SOCK_RAW, NETLINK_ROUTE) = 3",
    '7 openat(AT_FDCWD, "notes.txt", O_WRONLY|O_CREAT|O_TRUNC, 0666) = 10',
    '7 openat(AT_FDCWD, "sub/normreports.tvd", O_WRONLY|O_CREAT|O_APPEND, 0666) = 10',
    '7 openat(AT_FDCWD, "/home/b/normreports.tvd", O_WRONLY|O_CREAT|O_APPEND, 0666) = 10',
    '7 openat(AT_FDCWD, "/home/b/.config/editor.conf", O_RDWR|O_CREAT, 0666) = 10',
    '7 openat(AT_FDCWD, "/tmp", O_WRONLY|O_CLOEXEC|O_TMPFILE, 0600) = 13',
    '7 openat(5, "normreports.tvd", O_WRONLY|O_CREAT|O_APPEND, 0666) = 10',
    "7 openat(AT_FDCWD, 0x7ffd, O_WRONLY|O_CREAT, 0666) = -1 EFAULT (Bad address)",
    "7 rename(0x7ffd, 0x7ffe) = -1 EFAULT (Bad address)",
    '7 linkat(AT_FDCWD, "/proc/self/fd/13", AT_FDCWD, "/home/a/s.tvd", AT_SYMLINK_FOLLOW) = -1',
    '7 linkat(AT_FDCWD, "/home/a/s.tvd", AT_FDCWD, "/home/a/other.tvd", 0) = 0',
    '7 rename("/home/a/s.tvd", "/home/a/t.tvd") = 0',
    '7 rename("/home/a/s.tvd.1x2y3z", "/home/a/s.bak") = 0',
    '7 unlink("/home/a/normreports.tvd") = 0',
    '7 mkdir("/home/a/.cache", 0700) = 0',
)


class WatchTest(unittest.TestCase):
    def test_allows_what_the_program_may_do(self):
        self.assertEqual(watch.complaints([START, *ALLOWED], "/home/a"), [])

    def test_reports_everything_else(self):
        for line in FORBIDDEN:
            with self.subTest(line):
                self.assertEqual(watch.complaints([START, *ALLOWED, line], "/home/a"), [line])

    def test_reports_an_interrupted_call(self):
        lines = [START, '7 mkdir("/home/a/x", 0700 <unfinished ...>', *ALLOWED,
                 "7 <... mkdir resumed>) = 0"]
        self.assertEqual(watch.complaints(lines, "/home/a"), ['7 mkdir("/home/a/x", 0700) = 0'])

    def test_has_a_rule_for_each_traced_call(self):
        for call in watch.RULES:
            with self.subTest(call):
                line = f'7 {call}("/etc/x", "/etc/y", O_WRONLY) = 0'
                self.assertEqual(watch.complaints([START, line], "/home/a"), [line])


if __name__ == "__main__":
    unittest.main()
