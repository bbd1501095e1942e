"""The system calls of a running process: listed, or one of them made its last."""

import collections
import subprocess
import tempfile
from pathlib import Path


class Trace:
    """Follows a process to its end, which is before the call told, the n-th of its name."""

    def __init__(self, process, *last_call):
        self._scratch = tempfile.TemporaryDirectory()
        self._log = Path(self._scratch.name, "calls")
        kill = ["--inject={}:signal=KILL:when={}".format(*last_call)] if last_call else []
        command = ["strace", "-y", "-o", self._log, *kill, "-p", str(process)]
        self._strace = subprocess.Popen(command, stderr=subprocess.PIPE, text=True)
        self.attached = "attached" in self._strace.stderr.readline()

    def calls(self, path):
        """The calls that named a path, each as its name and how many of that name there were by then."""
        self._strace.communicate()
        with self._scratch:
            lines = self._log.read_text().splitlines()
        numbers = collections.Counter()
        found = []
        for line in lines:
            name = line.partition("(")[0]
            numbers[name] += 1
            if path in line:
                found.append((name, numbers[name]))
        return found
