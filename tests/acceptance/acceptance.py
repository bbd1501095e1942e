"""acceptance.py PROGRAM [PROBE]: drives the real program, in a real window, with a real pointer, as a pupil does."""

import sys
import time

import counters
import page as at
from installed import Installed, main
from programs import Program, install
from visits import Visits
from waiting import wait_until


class Acceptance(Visits, Installed):
    ENVIRONMENTS = {"LC_ALL": "C"}, {"LC_ALL": "xx_XX.UTF-8"}

    def test_of_two_copies_started_at_once_one_stays(self):
        before = self.file.read_bytes()
        for _ in range(20):
            with self.program() as one, self.program(beside=True) as other:
                self.assertTrue(wait_until(lambda: one.has_ended() or other.has_ended()))
                first, second = (other, one) if one.has_ended() else (one, other)
                self.assertEqual(second.wait(), 0)
                first.wait_until_started()
                first.kill()  # which stops no next start
        program = self.start()
        program.page.go(at.TABLE_OF_7, at.LEARNING)
        program.page.back()
        with self.program(beside=True) as second:
            self.assertEqual(second.wait(), 0)
        self.quit(program)
        self.check_counted(before, {counters.of_table(7)[0]: 1})

    def test_a_second_start_brings_the_first_copy_to_the_front(self):
        program = self.start()
        program.page.go(at.LESSONS, at.LESSONS_SCREEN)
        pupils = install(self.source, self.folder.with_name("Zoé"))
        with Program(self.desk, pupils, beside=True) as of_another_folder:
            of_another_folder.page.wait_for(at.START)
            with self.program(beside=True) as second:
                self.assertEqual(second.wait(), 0)
            program.page.wait_for(at.LESSONS_SCREEN)
            self.assertFalse(of_another_folder.has_ended())

    def test_sounds_reach_the_sound_device(self):
        self.desk.sounds.unlink(missing_ok=True)
        program = self.start()
        self.assertFalse(self.desk.heard())
        program.page.go(at.LESSONS, at.LESSONS_SCREEN)
        # What was played is written to the end once the device is left alone.
        self.assertTrue(wait_until(self.desk.heard))

    def test_an_end_by_force_saves_nothing(self):
        before = self.file.read_bytes()
        program = self.start()
        program.page.go(at.TABLE_OF_7, at.LEARNING)
        program.kill()
        self.assertEqual(self.file.read_bytes(), before)
        self.check_desk_becomes(self.desk.IN_USE)

    def test_waiting_costs_next_to_nothing(self):
        program = self.start()
        self.assertTrue(wait_until(lambda: self.is_at_rest(program)))  # it first makes the other pages ready
        used, begun = program.processor_time(), time.monotonic()
        time.sleep(2)
        self.assertLess(program.processor_time() - used, 0.05 * (time.monotonic() - begun))

    def is_at_rest(self, program):
        before = program.processor_time()
        time.sleep(0.5)
        return program.processor_time() - before < 0.01


if __name__ == "__main__":
    sys.exit(main(Acceptance, *sys.argv[1:]))
