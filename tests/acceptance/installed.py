"""What every test of the real program begins with: a desk, and a folder with the program and its data."""

import contextlib
import tempfile
import unittest
from pathlib import Path

import page as at
from desk import Desk
from programs import Program, install
from waiting import wait_until
from wine import WineDesk


def new_desk(*probe):
    return WineDesk(*probe) if probe else Desk()


class DeskTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desk = cls.enterClassContext(new_desk(*cls.probe))


class Installed(DeskTest):
    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()), "Tables d'été à l'école")
        self.executable = install(self.source, self.folder)
        self.file = self.folder / "datas" / "18"
        for copy in self.desk.own_copies():
            copy.unlink()

    def program(self, **options):
        return Program(self.desk, self.executable, **options)

    @contextlib.contextmanager
    def started(self, **environment):
        with self.program(**environment) as program:
            program.wait_until_started()
            yield program

    def start(self, **environment):
        return self.enterContext(self.started(**environment))

    def quit(self, program):
        program.page.click(at.QUIT)
        self.assertEqual(program.wait(), 0)
        self.check_desk_becomes(self.desk.AT_REST)

    def check_desk_becomes(self, state):
        self.assertTrue(wait_until(lambda: self.desk.states()[-1] == state), self.desk.states())

    def check_report(self, program, *texts):
        report = program.report()
        for text in texts:
            self.assertIn(text, report)
        self.assertEqual(program.wait(), 1, report)


def main(case, source, *probe):
    """Runs the tests of a class on a program, or whatever it is made for."""
    case.source, case.probe = Path(source).resolve(), probe
    tests = unittest.defaultTestLoader.loadTestsFromTestCase(case)
    return not unittest.TextTestRunner(verbosity=2).run(tests).wasSuccessful()
