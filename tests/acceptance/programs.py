"""The real program, started from a folder of its own on a desk."""

import shutil
import subprocess
import time
from pathlib import Path

from page import START, Page
from waiting import PATIENCE, wait_until

ROOT = Path(__file__).parents[2]


def install(program, folder):
    """Copies a program and its data into a folder, with the counters as they are delivered."""
    folder.mkdir(parents=True)
    shutil.copy(program, folder)
    shutil.copytree(ROOT / "datas", folder / "datas")
    return folder / program.name


class Program:
    def __init__(self, desk, executable, beside=False, **environment):
        """On a desk brought to rest, or beside another program."""
        self.page = Page(desk, self.has_ended)
        self._desk, self._command = desk, [*desk.starter, str(executable)]
        self._environment, self._beside = desk.environment(**environment), beside

    def __enter__(self):
        if not self._beside:
            self._desk.tidy()
        self._process = subprocess.Popen(
            self._command, env=self._environment, stderr=subprocess.PIPE, text=True, encoding="utf-8"
        )
        return self

    def __exit__(self, *_):
        self._process.kill()
        self._process.communicate()

    @property
    def process(self):
        return self._process.pid

    def wait_until_started(self):
        self.page.wait_for(START)
        assert wait_until(self._desk.is_in_use), self._desk.states()

    def wait(self):
        """The exit status, once it has ended."""
        return self._desk.status(self._process.wait(PATIENCE))

    def has_ended(self):
        return self._process.poll() is not None

    def kill(self):
        self._process.kill()
        self._process.wait()

    def report(self):
        """The report of an error, once it is put away and the program has ended."""
        wait_until(lambda: self._desk.put_away() and self.has_ended())
        self._process.kill()
        return self._desk.report(self._process.stderr.read())

    def processor_time(self):
        """Seconds of one core that the program has used."""
        clock_of_process = ~self.process << 3 | 2
        return time.clock_gettime(clock_of_process)
