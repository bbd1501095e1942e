"""acceptance.py PROGRAM [PROBE]: drives the real program, in a real window, with a real pointer, as a pupil does."""

import sys
import time
import unittest

import counters
import page as at
from desk import Desk
from installed import Installed
from programs import LinuxProgram, WindowsProgram
from waiting import wait_until


class Acceptance(Installed):
    """What both programs are put to; the classes below bring the platform."""

    def setUp(self):
        super().setUp()
        self.desk = self.enterContext(Desk())

    def start(self, **environment):
        return self.enterContext(self.started(**environment))

    def quit(self, program):
        program.page.click(at.QUIT)
        self.assertEqual(program.wait(), 0)
        self.check_desk_put_back(program)

    def test_a_visit_is_counted(self):
        before = self.file.read_bytes()
        program = self.start()
        page = program.page
        self.check_page_alone(program)

        page.go(at.TABLE_OF_7, at.LEARNING)
        page.click(at.FACTORING_MORE)
        page.click(at.FACTORING_ANSWER)
        page.click(at.MULTIPLE_NO)
        page.back()
        page.go(at.EXERCISES, at.EXERCISES_SCREEN)
        page.click(at.PRODUCT_MORE)
        page.click(at.PRODUCT_ANSWER)
        page.back()
        page.go(at.PYTHAGORAS, at.PYTHAGORAS_SCREEN)
        page.click(at.column(8))
        page.click(at.row(7))
        page.back()
        page.go(at.LESSONS, at.LESSONS_SCREEN)
        page.back()
        page.go(at.REPORT, at.REPORT_SCREEN)
        page.back()
        self.quit(program)

        changes = counters.changes(before, self.file.read_bytes())
        consultations, exercises, *verdicts = counters.of_table(7)
        self.assertEqual(sum(changes.pop(verdict, 0) for verdict in verdicts), 2)
        self.assertEqual(changes.pop(exercises), 2)
        puzzles = counters.PUZZLE_RIGHT, counters.PUZZLE_WRONG
        self.assertEqual(sum(changes.pop(verdict, 0) for verdict in puzzles), 1)
        once = (
            counters.SAVED_ONCE,
            consultations,
            counters.PUZZLE_COUNT,
            counters.PYTHAGORE_CONSULTATIONS,
            counters.PYTHAGORE_SOLVES,
            counters.LESSON_CONSULTATIONS,
        )
        self.assertEqual(changes, dict.fromkeys(once, 1))

    def test_nothing_done_changes_nothing(self):
        worn = counters.worn()
        self.file.write_bytes(worn)
        for locale in ("C", "xx_XX.UTF-8"):
            self.quit(self.start(LC_ALL=locale))
            self.assertEqual(self.file.read_bytes(), worn)

    def test_a_file_that_lacks_stops_the_start(self):
        for name in ("18", "16"):
            with self.subTest(name):
                file = self.folder / "datas" / name
                content = file.read_bytes()
                file.unlink()
                with self.program(self.desk, self.executable) as program:
                    self.assertIn(f"datas{self.separator}{name}", program.report())
                    self.assertNotEqual(program.wait(), 0)
                    self.check_desk_untouched(program)
                file.write_bytes(content)

    def test_sounds_reach_the_sound_device(self):
        program = self.start()
        self.assertFalse(self.desk.heard())
        program.page.go(at.LESSONS, at.LESSONS_SCREEN)
        # What was played is written to the end once the device is left alone.
        self.assertTrue(wait_until(self.desk.heard, 15))

    def test_an_end_by_force_saves_nothing(self):
        before = self.file.read_bytes()
        program = self.start()
        program.page.go(at.TABLE_OF_7, at.LEARNING)
        program.kill()
        self.assertEqual(self.file.read_bytes(), before)
        self.check_desk_left(program)


class LinuxAcceptance(Acceptance, unittest.TestCase):
    program = LinuxProgram
    separator = "/"

    def check_page_alone(self, program):
        left, top, *size = program.page.box
        self.assertEqual((left, top, *size), (0, 0, 1024, 768))

    def check_desk_put_back(self, program):
        pass

    check_desk_untouched = check_desk_left = check_desk_put_back

    def test_waiting_costs_next_to_nothing(self):
        program = self.start()
        start = program.processor_time()
        time.sleep(4)
        self.assertLess(program.processor_time() - start, 0.05 * 4)


class WindowsAcceptance(Acceptance, unittest.TestCase):
    program = WindowsProgram
    separator = "\\"

    # Wine shows a hidden taskbar again whenever the desktop changes its size; the page covers it.
    BEFORE, DURING = "desk 1024x768 with taskbar", "desk 640x480 without taskbar"

    def check_page_alone(self, program):
        pass  # the probe's account is read at the end

    def check_desk_put_back(self, program):
        self.assertEqual(program.told[:3], [self.BEFORE, "desk 1024x768 without taskbar", self.DURING])
        self.assertEqual(program.told[-1], self.BEFORE)

    def check_desk_untouched(self, program):
        self.assertEqual([line for line in program.told if line.startswith("desk")], [self.BEFORE])

    def check_desk_left(self, program):
        self.assertIn("desk 640x480", program.told[-1])


def main(*programs):
    case = WindowsAcceptance if len(programs) > 1 else LinuxAcceptance
    return case.run_all(*programs)


if __name__ == "__main__":
    sys.exit(not main(*sys.argv[1:]))
