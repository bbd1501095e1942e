"""What the tests of the packages begin with."""

import tempfile
from pathlib import Path

import counters
import page as at
from installed import DeskTest
from programs import Program

CONSULTED_ONCE = {counters.SAVED_ONCE: 1, counters.of_table(7)[0]: 1}


class Packages(DeskTest):
    def setUp(self):
        self.scratch = Path(self.enterContext(tempfile.TemporaryDirectory()))

    def package(self, pattern):
        (file,) = self.source.glob(pattern)
        return file

    def consult_table_of_7(self, program, **environment):
        with Program(self.desk, program, **environment) as running:
            running.wait_until_started()
            running.page.go(at.TABLE_OF_7, at.LEARNING)
            running.page.back()
            running.page.click(at.QUIT)
            self.assertEqual(running.wait(), 0)


def files(folder):
    """Every file below a folder, by its name there."""
    return {str(file.relative_to(folder)) for file in folder.rglob("*") if not file.is_dir()}
