"""The system calls of a process: listed, or one of them made its last."""

import collections
import subprocess
import tempfile
import unittest
from pathlib import Path


class Trace:
    """Follows a process from now on, in its calls on these paths or in all of them, to its end: that of before the call
    told, the n-th of its name, or its own."""

    def __init__(self, process, *last_call, paths=()):
        self._scratch = tempfile.TemporaryDirectory()
        self._log = Path(self._scratch.name, "calls")
        kill = ["--inject={}:signal=KILL:when={}".format(*last_call)] if last_call else []
        only = [f"--trace-path={path}" for path in paths]
        command = ["strace", "-y", "-o", self._log, *only, *kill, "-p", str(process)]
        self._strace = subprocess.Popen(command, stderr=subprocess.PIPE, text=True)
        if not any("attached" in line for line in iter(self._strace.stderr.readline, "")):
            raise unittest.SkipTest("a process may not be traced here")

    def calls(self, word):
        """Whether it was killed, and the calls that held a word, each as its name and how many of that name there
        were by then."""
        self._strace.communicate()
        with self._scratch:
            lines = self._log.read_text().splitlines()
        numbers = collections.Counter()
        found = []
        for line in lines:
            name = line.partition("(")[0]
            numbers[name] += 1
            if word in line:
                found.append((name, numbers[name]))
        return "SIGKILL" in lines[-1], found
