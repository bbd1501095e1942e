"""What every run of the real programs begins with: a folder with the program and its data."""

import contextlib
import tempfile
import unittest
from pathlib import Path

import page as at
from programs import WindowsProgram, install


class Installed:
    """A test case's start; the classes beside it bring the desk and the platform's `program`."""

    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()), "Tables d'été à l'école")
        self.executable = install(self.source, self.folder)
        self.file = self.folder / "datas" / "18"

    @contextlib.contextmanager
    def started(self, **how):
        with self.program(self.desk, self.executable, **how) as program:
            program.page.wait_for(at.START)
            yield program

    @classmethod
    def run_all(cls, program, *probe):
        """Runs the tests of the class on a program; tells whether they hold."""
        cls.source = Path(program).resolve()
        with tempfile.TemporaryDirectory() as scratch:
            if probe:
                WindowsProgram.prepare(Path(scratch, "wine"), *probe)
            tests = unittest.defaultTestLoader.loadTestsFromTestCase(cls)
            return unittest.TextTestRunner(verbosity=2).run(tests).wasSuccessful()
